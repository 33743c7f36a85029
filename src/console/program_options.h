// What every program of the suite is told about its surroundings.
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

/// What the options, or the settings, name and isn't there, in words; empty if all is. A store that can't be
/// read would pass for an empty one, and a program would work on other folders than it was told.
std::string missingOf(const ProgramOptions& options);

/// The folder and the settings that the options name, in force for the procedures of the suite
/// (common/globale.h) as long as this lives. The setting ("AggNorvo", "Computer", "File") names another file
/// of the computer (platform/computer.h).
class ProgramScope {
 public:
  explicit ProgramScope(const ProgramOptions& options);
  ~ProgramScope();
  ProgramScope(const ProgramScope&) = delete;
  ProgramScope& operator=(const ProgramScope&) = delete;

  /// With backslashes, without a closing one.
  const std::string& folder() const { return folder_; }
  const platform::Settings& settings() const { return *settings_; }

 private:
  std::string folder_;
  std::unique_ptr<platform::Settings> settings_;
};

}  // namespace console
