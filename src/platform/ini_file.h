#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace platform {

/// A settings file in UTF-8: lines "key = value" under "[section]", comments behind ";" or "#" at a line's
/// beginning, blanks around names and values don't count, nor does the case of names. Read once; a file that
/// can't be read is empty.
class IniFile {
 public:
  explicit IniFile(const std::string& path);
  ~IniFile();
  IniFile(const IniFile&) = delete;
  IniFile& operator=(const IniFile&) = delete;

  bool has(std::string_view section) const;
  std::optional<std::string> value(std::string_view section, std::string_view key) const;

 private:
  struct Content;
  std::unique_ptr<Content> content_;
};

}  // namespace platform
