#pragma once

#include <memory>
#include <optional>
#include <string>

namespace platform {
class Settings;
}

namespace console {

/// Where the program finds its own things; paths as the system writes them.
struct ProgramOptions {
  std::optional<std::string> programDir;  // stands for the directory of the executable
  std::optional<std::string> settings;    // file of the per-user store
};

/// The directory in force, with backslashes.
std::string programFolder(const ProgramOptions& options);
/// The store in force.
std::unique_ptr<platform::Settings> openSettings(const ProgramOptions& options);

}  // namespace console
