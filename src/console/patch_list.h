#pragma once

#include <string>
#include <string_view>

namespace console {

/// The application that the patch was built for: the last value of key "Norvo-Prg" in the content of
/// PatchList.txt; empty if there is none.
std::string nomeProgramma(std::string_view contenuto);

}  // namespace console
