// jetsql: the engine's shell.
#include <CLI/CLI.hpp>
#include <iostream>

#include "apps/command_line.h"
#include "apps/jetsql/commands.h"
#include "apps/jetsql/conversation.h"
#include "apps/jetsql/edited_lines.h"
#include "apps/jetsql/session.h"
#include "platform/paths.h"
#include "platform/program.h"

namespace {

const char* const description = "Esegue istruzioni SQL di Jet su un database .mdb e ne mostra le righe.\n";

const char* const notes =
    "Senza istruzioni tra gli argomenti legge lo standard input: testo UTF-8, ogni istruzione chiusa da un\n"
    "punto e virgola a fine riga; una riga che comincia con -- è un commento. Al primo errore si ferma e "
    "nulla\n"
    "di ciò che ha fatto viene salvato. A un terminale, invece, ogni istruzione viene salvata appena "
    "eseguita,\n"
    "un errore annulla solo la sua, e le frecce richiamano le istruzioni precedenti.\n"
    "Senza --readonly il database è aperto in modo esclusivo.\n"
    "Stato di uscita: 0 tutto eseguito, 1 errore, 64 uso errato.";

void declare(CLI::App& app, jetsql::Request& request) {
  app.add_option("FILE.mdb", request.file, "Il database")->required()->type_name("");
  app.add_option("SQL", request.statements, "Istruzioni o comandi, uno per argomento")->type_name("");
  const auto create = app.add_flag("--create", request.create, "Crea il database, nel formato Jet 4");
  app.add_flag("--readonly", request.readOnly, "Apre il database in sola lettura")->excludes(create);
  app.add_flag("--json", request.json, "Mostra ogni riga come oggetto JSON");
  app.add_option(
         "--param", request.answers,
         "Risponde al parametro NOME; il valore è scritto come in SQL: 12, 'testo', #2026-11-16#, NULL")
      ->type_name("NOME=VALORE")
      ->allow_extra_args(false);
  app.footer("\n" + jetsql::commandsHelp() + "\n" + notes);
}

}  // namespace

int main(int argc, char** argv) {
  platform::holdStandardStreams();
  platform::keepRunningOnWriteSignals();
  std::ios::sync_with_stdio(false);
  CLI::App app(description, "jetsql");
  apps::speakItalian(app);
  jetsql::Request request;
  declare(app, request);
  if (const auto status = apps::parse(app, argc, argv)) return *status;
  if (!request.statements.empty() || !jetsql::atTerminal())
    return jetsql::runSession(request, std::cin, std::cout, std::cerr);
  const auto lines =
      jetsql::editedLines(platform::toSystemPath(platform::userStateFolder()) + "/aggnorvo/jetsql_history");
  return jetsql::runConversation(request, *lines, std::cout, std::cerr);
}
