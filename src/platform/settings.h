#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace platform {

/// The per-user settings store: text values under application, section and key; names without regard to case.
/// Kept as an INI file in UTF-8: lines "key = value" under sections "[application\section]", comments behind
/// ";" or
/// "#" at a line's beginning, blanks around names and values don't count. A store that can't be read answers
/// every default.
class Settings {
 public:
  /// Store "aggnorvo\impostazioni.ini" in userSettingsFolder().
  Settings();
  /// Store in this file (backslash path).
  explicit Settings(std::string file);
  ~Settings();
  Settings(const Settings&) = delete;
  Settings& operator=(const Settings&) = delete;

  /// The text as it was when the store was opened.
  std::string get(std::string_view application, std::string_view section, std::string_view key,
                  std::string_view fallback = {}) const;

 private:
  struct Store;
  std::unique_ptr<Store> store_;
};

}  // namespace platform
