// A setting by application, section and key.
#include "platform/settings.h"

#include "platform/ini_file.h"
#include "platform/settings_store.h"

namespace platform {

namespace {

class FileStore : public Settings::Store {
 public:
  explicit FileStore(const std::string& path) : file_(path) {}
  std::optional<std::string> value(std::string_view application, std::string_view section,
                                   std::string_view key) const override {
    return file_.value(std::string(application) + "\\" + std::string(section), key);
  }

 private:
  IniFile file_;
};

}  // namespace

Settings::Settings(const std::string& file) : store_(std::make_unique<FileStore>(file)) {}

Settings::~Settings() = default;

std::string Settings::get(std::string_view application, std::string_view section, std::string_view key,
                          std::string_view fallback) const {
  return store_->value(application, section, key).value_or(std::string(fallback));
}

}  // namespace platform
