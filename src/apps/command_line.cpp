#include "apps/command_line.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <map>
#include <string>

namespace apps {
namespace {

/// Kinds of parse errors with their Italian beginning; the parser's own text names the option.
const std::map<std::string, std::string> sentences = {
    {"RequiredError", "manca un argomento"},    {"ArgumentMismatch", "numero di valori errato"},
    {"ConversionError", "valore non valido"},   {"ValidationError", "valore non valido"},
    {"ExcludesError", "opzioni incompatibili"}, {"RequiresError", "manca un'opzione"},
    {"OptionNotFound", "opzione non prevista"},
};

std::string sentenceFor(const CLI::App& app, const CLI::ParseError& error) {
  if (error.get_name() == "ExtrasError") {
    std::string list;
    for (const auto& argument : app.remaining()) list += " " + argument;
    return "argomento non previsto:" + list;
  }
  const auto found = sentences.find(error.get_name());
  return (found == sentences.end() ? "uso errato" : found->second) + " (" + error.what() + ")";
}

}  // namespace

void speakItalian(CLI::App& app) {
  const auto formatter = app.get_formatter();
  formatter->label("Usage", "Uso");
  formatter->label("OPTIONS", "OPZIONI");
  formatter->label("Positionals", "Argomenti");
  formatter->label("REQUIRED", "(obbligatorio)");
  formatter->label("Needs", "Richiede");
  formatter->label("Excludes", "Esclude");
  formatter->label("TEXT", "TESTO");
  app.option_defaults()->group("Opzioni");
  app.set_help_flag("-h,--help", "Mostra queste istruzioni ed esce")->group("Opzioni");
  app.set_version_flag("--version", app.get_name() + " " AGGNORVO_VERSION, "Mostra la versione ed esce")
      ->group("Opzioni");
}

int answer(const CLI::App& app, const CLI::ParseError& error) {
  if (error.get_name() == "CallForHelp") {
    std::cout << app.help();
    return 0;
  }
  if (error.get_name() == "CallForVersion") {
    std::cout << error.what() << "\n";
    return 0;
  }
  std::cerr << app.get_name() << ": " << sentenceFor(app, error) << "\n"
            << "Le istruzioni: " << app.get_name() << " --help\n";
  return wrongUsage;
}

}  // namespace apps
