// The program: its commands, or the window beside it.
#include <CLI/CLI.hpp>
#include <iostream>

#include "apps/aggnorvo/commands.h"
#include "apps/aggnorvo/options.h"
#include "apps/command_line.h"
#include "platform/paths.h"
#include "platform/program.h"
#include "runtime/error.h"

namespace {

const char* const description =
    "Aggiorna il database di un'applicazione della suite Norvo. Senza comandi apre la finestra.\n";

const char* const notes =
    "\nStato di uscita: 0 aggiornamento terminato, o con --plan nulla da cambiare; 1 non riuscito, il\n"
    "database è com'era; 2 rifiutato prima di cominciare, nulla è stato scritto; 3 con --plan, qualcosa\n"
    "cambierebbe; 4 non riuscito, il database non è com'era; 64 uso errato.\n"
    "Con --patch: 0 nessun errore; 1 qualche errore; 2 elenco non leggibile, nulla è stato scritto.";

/// Adds the commands, one at a time to be chosen, and returns the options that choose them.
std::vector<CLI::Option*> addCommands(CLI::App& app,
                                      const std::vector<std::unique_ptr<aggnorvo::Command>>& commands) {
  std::vector<CLI::Option*> choices;
  for (const auto& command : commands) {
    CLI::Option* chosen = command->addChoice(app)->description(command->help())->group("Comandi");
    for (CLI::Option* other : choices) chosen->excludes(other);
    command->addOptions(app, chosen);
    choices.push_back(chosen);
  }
  return choices;
}

/// The window is a program of its own, beside this one.
int openWindow(int argc, char** argv) {
  const std::string window = platform::executableFolder() + "\\aggnorvo-window";
  try {
    return platform::continueAs(window, {argv + 1, argv + argc});
  } catch (const runtime::Error& error) {
    std::cerr << "aggnorvo: " << platform::toSystemPath(window) << ": " << error.description() << "\n";
    return console::Refused;
  }
}

/// All of them write; what nobody would read is not begun.
int runCommand(aggnorvo::Command& command, const console::ProgramOptions& program) {
  if (platform::hasStandardOutput()) return command.run(program);
  std::cerr << "aggnorvo: lo standard output è chiuso\n";
  return console::Refused;
}

}  // namespace

int main(int argc, char** argv) {
  platform::holdStandardStreams();
  platform::keepRunningOnWriteSignals();
  CLI::App app(description, "aggnorvo");
  apps::speakItalian(app);
  app.footer(notes);
  console::ProgramOptions program;
  aggnorvo::addProgramOptions(app, program);
  const auto commands = aggnorvo::commands();
  const auto choices = addCommands(app, commands);
  if (const auto status = apps::parse(app, argc, argv)) return *status;
  if (const std::string missing = console::missingOf(program); !missing.empty()) {
    std::cerr << "aggnorvo: " << missing << "\n";
    return console::Refused;
  }
  for (std::size_t command = 0; command < commands.size(); ++command)
    if (choices[command]->count() > 0) return runCommand(*commands[command], program);
  return openWindow(argc, argv);
}
