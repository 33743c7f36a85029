#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Text files of lines "key=value", in UTF-8 with its mark or, as the suite keeps them, in code page 1252.
namespace common {

/// The lines of a file's content that aren't empty, in UTF-8. CR LF, CR alone and LF alone end a line; the
/// last one may lack its end. Every other byte is a character of its line, NUL too.
std::vector<std::string> Righe(std::string_view contenuto);

/// The parts of a text before and behind its first `segno`; nothing without one.
std::optional<std::pair<std::string_view, std::string_view>> DividiInDue(std::string_view testo, char segno);

}  // namespace common
