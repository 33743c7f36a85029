#include "platform/settings.h"

#include "platform/ini_file.h"
#include "platform/paths.h"

namespace platform {

struct Settings::Store {
  IniFile values;
};

Settings::Settings() : Settings(userSettingsFolder() + "\\aggnorvo\\impostazioni.ini") {}

Settings::Settings(std::string file) : store_(new Store{IniFile(file)}) {}

Settings::~Settings() = default;

std::string Settings::get(std::string_view application, std::string_view section, std::string_view key,
                          std::string_view fallback) const {
  const std::string path = std::string(application) + "\\" + std::string(section);
  return store_->values.value(path, key).value_or(std::string(fallback));
}

}  // namespace platform
