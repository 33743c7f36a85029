#include "console/program_options.h"

#include "platform/paths.h"
#include "platform/settings.h"

namespace console {

std::string programFolder(const ProgramOptions& options) {
  return options.programDir ? platform::fromSystemPath(*options.programDir) : platform::executableFolder();
}

std::unique_ptr<platform::Settings> openSettings(const ProgramOptions& options) {
  return options.settings ? std::make_unique<platform::Settings>(platform::fromSystemPath(*options.settings))
                          : std::make_unique<platform::Settings>();
}

}  // namespace console
