// Where the user's settings file lies.
#include "platform/settings.h"

#include "platform/paths.h"
#include "platform/settings_store.h"

namespace platform {

Settings::Settings() : Settings(userSettingsFolder() + "\\aggnorvo\\impostazioni.ini") {}

}  // namespace platform
