#pragma once

#include <optional>

namespace CLI {
class App;
class ParseError;
}  // namespace CLI

/// What the programs' command lines have in common.
namespace apps {

/// Exit status of a command line that can't be understood.
inline constexpr int wrongUsage = 64;

/// Italian headings and words for the help that the parser makes, with --help and --version. Call it before
/// the options are added.
void speakItalian(CLI::App& app);

/// The answer to an interrupted parse: --help and --version on standard output give 0 (1 where it can't
/// be written); anything else is told
/// on standard error and gives wrongUsage.
int answer(const CLI::App& app, const CLI::ParseError& error);

/// Makes the options that are there refuse what can't be meant: a value that is empty or begins with "--", as
/// that of an option whose own value was forgotten, and any value of an option that takes none.
void refuseSwallowedOptions(CLI::App& app);

/// Reads the command line. Returns the exit status of a program that has nothing more to do.
std::optional<int> parse(CLI::App& app, int argc, char** argv);

}  // namespace apps
