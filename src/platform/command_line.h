#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// The words of a command line: blanks and tabs part them, except between quotes; a quote behind an odd
/// number of backslashes stands for itself, backslashes before a quote count half, others stand for
/// themselves. In the first word, the program, backslashes never do anything to a quote.
std::vector<std::string> splitCommandLine(std::string_view line);
/// The line that splitCommandLine takes apart into these words.
std::string joinCommandLine(const std::vector<std::string>& words);

}  // namespace platform
