#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace platform {

/// The per-user settings store: text values under application, section and key; names without regard to case.
/// It is the system's, or a file of sections "[application\section]" (platform/ini_file.h). A store that
/// can't be read answers every default.
class Settings {
 public:
  /// The user's: where the system has none, the file "aggnorvo\impostazioni.ini" in userSettingsFolder().
  Settings();
  /// Store in this file (backslash path).
  explicit Settings(const std::string& file);
  ~Settings();
  Settings(const Settings&) = delete;
  Settings& operator=(const Settings&) = delete;

  /// The text; a file's as it was when the store was opened.
  std::string get(std::string_view application, std::string_view section, std::string_view key,
                  std::string_view fallback = {}) const;

  struct Store;

 private:
  std::unique_ptr<Store> store_;
};

}  // namespace platform
