// The texts of the shared options.
#include "apps/aggnorvo/options.h"

#include <CLI/CLI.hpp>

namespace aggnorvo {

void addProgramOptions(CLI::App& app, console::ProgramOptions& options) {
  app.add_option("--program-dir", options.programDir,
                 "Cartella di AggNorvo.mdb, dei riepiloghi e di error.log, al posto di quella del programma")
      ->type_name("CARTELLA");
  app.add_option("--settings", options.settings, "File delle impostazioni, al posto di quello dell'utente")
      ->type_name("FILE");
}

}  // namespace aggnorvo
