// Where the user's settings file lies.
#include "platform/settings.h"

#include "platform/registry.h"
#include "platform/settings_store.h"

namespace platform {

namespace {

/// The part of the registry in which the programs of the suite's language keep their settings.
class RegistryStore : public Settings::Store {
 public:
  std::optional<std::string> value(std::string_view application, std::string_view section,
                                   std::string_view key) const override {
    const std::string name =
        "Software\\VB and VBA Program Settings\\" + std::string(application) + "\\" + std::string(section);
    const auto found = readRegistry(RegistryRoot::CurrentUser, name, key);
    if (!found || found->type != RegistryText) return std::nullopt;
    return found->data.substr(0, found->data.find('\0'));
  }
};

}  // namespace

Settings::Settings() : store_(std::make_unique<RegistryStore>()) {}

}  // namespace platform
