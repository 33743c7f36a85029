#include "platform/settings.h"

#define SI_NO_CONVERSION
#include <SimpleIni.h>

#include "platform/files.h"
#include "platform/paths.h"

namespace platform {

struct Settings::Store {
  CSimpleIniA values{/*utf8*/ true};
};

Settings::Settings() : Settings(userSettingsFolder() + "\\aggnorvo\\impostazioni.ini") {}

Settings::Settings(std::string file) : store_(std::make_unique<Store>()) {
  try {
    store_->values.LoadData(readWholeFile(file));
  } catch (const DiskError&) {
    // Answers every default, as a user without settings has it.
  }
}

Settings::~Settings() = default;

std::string Settings::get(std::string_view application, std::string_view section, std::string_view key,
                          std::string_view fallback) const {
  const std::string path = std::string(application) + "\\" + std::string(section);
  const char* value = store_->values.GetValue(path.c_str(), std::string(key).c_str());
  return value ? value : std::string(fallback);
}

}  // namespace platform
