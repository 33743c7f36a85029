#pragma once

#include <span>
#include <string>

namespace jet::dao {
class Database;
}

namespace jetsql {

class Output;

/// A dot command of the shell.
struct Command {
  const char* name;       // with its dot
  const char* arguments;  // as the help shows them
  const char* help;
  void (*run)(jet::dao::Database& database, const std::string& arguments, Output& output);
  bool ends = false;  // the session
};

/// All of them, in the order of the help.
std::span<const Command> commands();
/// The command that `line` begins with. Error 5 if there is none.
const Command& commandOf(const std::string& line);
/// Runs `line`; false if the session ends with it. Error 5 for an unknown command or wrong arguments; errors
/// of the engine pass through.
bool runCommand(jet::dao::Database& database, const std::string& line, Output& output);
/// One line of help for each command.
std::string commandsHelp();

}  // namespace jetsql
