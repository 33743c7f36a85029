// Options looked at, and put in force.
#include "console/program_options.h"

#include "common/files.h"
#include "common/globale.h"
#include "platform/computer.h"
#include "platform/disk.h"
#include "platform/paths.h"
#include "platform/settings.h"

namespace console {
namespace {

std::unique_ptr<platform::Settings> openSettings(const ProgramOptions& options) {
  return options.settings ? std::make_unique<platform::Settings>(platform::fromSystemPath(*options.settings))
                          : std::make_unique<platform::Settings>();
}

/// Path of another file of the computer; empty without one.
std::string computerFile(const platform::Settings& settings) {
  return common::PercorsoInterno(settings.get("AggNorvo", "Computer", "File"));
}

bool isFolder(const std::string& path) {
  try {
    const auto found = platform::inspectFile(path);
    return found && found->folder;
  } catch (const runtime::Error&) {
    return false;
  }
}

}  // namespace

std::string missingOf(const ProgramOptions& options) {
  if (options.programDir && !isFolder(platform::fromSystemPath(*options.programDir)))
    return "cartella del programma inesistente: " + *options.programDir;
  if (options.settings && !common::EsisteFile(platform::fromSystemPath(*options.settings)))
    return "file delle impostazioni inesistente o non leggibile: " + *options.settings;
  const std::string computer = computerFile(*openSettings(options));
  if (!computer.empty() && !common::EsisteFile(computer))
    return "file del computer inesistente o non leggibile: " + platform::toSystemPath(computer);
  return {};
}

ProgramScope::ProgramScope(const ProgramOptions& options)
    : folder_(options.programDir ? platform::fromSystemPath(*options.programDir)
                                 : platform::executableFolder()),
      settings_(openSettings(options)) {
  common::DirProgramma = folder_;
  common::Impostazioni = settings_.get();
  platform::useComputerFile(computerFile(*settings_));
}

ProgramScope::~ProgramScope() {
  common::DirProgramma.clear();
  common::Impostazioni = nullptr;
  platform::useComputerFile("");
}

}  // namespace console
