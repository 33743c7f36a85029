#include "console/program_options.h"

#include "common/files.h"
#include "common/globale.h"
#include "platform/computer.h"
#include "platform/paths.h"
#include "platform/settings.h"

namespace console {
namespace {

std::unique_ptr<platform::Settings> openSettings(const ProgramOptions& options) {
  return options.settings ? std::make_unique<platform::Settings>(platform::fromSystemPath(*options.settings))
                          : std::make_unique<platform::Settings>();
}

}  // namespace

ProgramScope::ProgramScope(const ProgramOptions& options)
    : folder_(options.programDir ? platform::fromSystemPath(*options.programDir)
                                 : platform::executableFolder()),
      settings_(openSettings(options)) {
  common::DirProgramma = folder_;
  common::Impostazioni = settings_.get();
  platform::useComputerFile(common::PercorsoInterno(settings_->get("AggNorvo", "Computer", "File")));
}

ProgramScope::~ProgramScope() {
  common::DirProgramma.clear();
  common::Impostazioni = nullptr;
  platform::useComputerFile("");
}

}  // namespace console
