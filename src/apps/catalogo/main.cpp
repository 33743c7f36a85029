// aggnorvo-catalogo: writes a reference database from finished ones.
#include <CLI/CLI.hpp>
#include <iostream>

#include "apps/catalogo/session.h"
#include "apps/command_line.h"
#include "platform/program.h"

namespace {

const char* const description =
    "Scrive nel database di riferimento il catalogo di una versione, leggendolo da un database modello.\n";

const char* const notes =
    "\nScrive le righe di CampiTabella, Indici, CampiIndice, Relazioni e CampiRelazione al posto di quelle "
    "che\n"
    "il riferimento aveva per la stessa applicazione, e copia tutte le query. Prima si scrive Tutti; poi, "
    "dal\n"
    "modello di un'applicazione, solo ciò che Tutti non dice già. Norvi riceve il nome dell'applicazione.\n"
    "CampiDaEliminare e la colonna UpdateDefaultValue di CampiTabella si riempiono a mano: un modello non sa "
    "che\n"
    "cosa c'era prima di lui.\n"
    "Stato di uscita: 0 scritto, 1 errore e il riferimento è com'era, 64 uso errato.";

void declare(CLI::App& app, catalogo::Request& request) {
  app.add_option("RIFERIMENTO.mdb", request.reference, "Il database di riferimento")
      ->required()
      ->type_name("");
  app.add_option("MODELLO.mdb", request.model, "Il database finito, che viene solo letto")
      ->required()
      ->type_name("");
  app.add_flag("--create", request.create, "Crea il riferimento, nel formato Jet 4");
  app.add_option("--norvo", request.norvo, "L'applicazione a cui il modello appartiene; senza, Tutti")
      ->type_name("NOME");
  const auto tables = [&app](const char* option, std::vector<std::string>& names, const char* help) {
    app.add_option(option, names, help)->type_name("TABELLA")->allow_extra_args(false);
  };
  tables("--add", request.add, "Porta con sé la tabella: i bersagli ne sostituiranno le righe (ADD_)");
  tables("--ins", request.ins, "Porta con sé la tabella: i bersagli ne aggiungeranno le righe (INS_)");
  app.footer(notes);
}

}  // namespace

int main(int argc, char** argv) {
  platform::holdStandardStreams();
  platform::keepRunningOnWriteSignals();
  CLI::App app(description, "aggnorvo-catalogo");
  apps::speakItalian(app);
  catalogo::Request request;
  declare(app, request);
  if (const auto status = apps::parse(app, argc, argv)) return *status;
  return catalogo::run(request, std::cout, std::cerr);
}
