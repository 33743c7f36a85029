#pragma once

#include <string>
#include <string_view>

namespace jet::sql::stored {

/// A name as the engine shows it: in brackets where it is no plain word or the language has the word.
std::string shownName(std::string_view name);
/// The same for names joined by "." or "!", as rows keep columns and parameters; one that is written in
/// brackets already stays as it is.
std::string shownPath(std::string_view path);

}  // namespace jet::sql::stored
