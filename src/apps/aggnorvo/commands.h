// The commands of the program without a window.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "console/batch.h"

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace aggnorvo {

/// Something that the program does instead of opening its window, chosen by the option that names it.
class Command {
 public:
  virtual ~Command() = default;
  virtual std::string name() const = 0;  // with its dashes
  virtual std::string help() const = 0;
  /// Adds the option that names the command.
  virtual CLI::Option* addChoice(CLI::App& app);
  /// Adds the command's own options; `chosen` is the option that names it.
  virtual void addOptions(CLI::App& app, CLI::Option* chosen) = 0;
  /// Returns an exit status.
  virtual int run(const console::ProgramOptions& program) = 0;
};

/// All of them, in the order of the help.
std::vector<std::unique_ptr<Command>> commands();

}  // namespace aggnorvo
