// Sections and keys of a settings file, by the library that reads it.
#include "platform/ini_file.h"

#define SI_NO_CONVERSION
#include <SimpleIni.h>

#include "platform/files.h"

namespace platform {

struct IniFile::Content {
  CSimpleIniA values{/*utf8*/ true};
};

IniFile::IniFile(const std::string& path) : content_(std::make_unique<Content>()) {
  try {
    content_->values.LoadData(readWholeFile(path));
  } catch (const DiskError&) {
    // Without its file, a computer or a user has no settings.
  }
}

IniFile::~IniFile() = default;

bool IniFile::has(std::string_view section) const {
  return content_->values.GetSection(std::string(section).c_str()) != nullptr;
}

std::optional<std::string> IniFile::value(std::string_view section, std::string_view key) const {
  const char* found =
      content_->values.GetValue(std::string(section).c_str(), std::string(key).c_str(), nullptr);
  return found ? std::optional<std::string>(found) : std::nullopt;
}

}  // namespace platform
