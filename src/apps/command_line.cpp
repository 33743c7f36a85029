// Command lines read, refused and explained alike by all programs.
#include "apps/command_line.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <map>
#include <string>

namespace apps {
namespace {

/// Kinds of parse errors with their Italian beginning; the parser's own text names the option.
const std::map<CLI::ExitCodes, std::string> sentences = {
    {CLI::ExitCodes::RequiredError, "manca un argomento"},
    {CLI::ExitCodes::ArgumentMismatch, "numero di valori errato"},
    {CLI::ExitCodes::ConversionError, "valore non valido"},
    {CLI::ExitCodes::ValidationError, "valore non valido"},
    {CLI::ExitCodes::ExcludesError, "opzioni incompatibili"},
    {CLI::ExitCodes::RequiresError, "manca un'opzione"},
};

std::string sentenceFor(const CLI::App& app, const CLI::ParseError& error) {
  const auto kind = static_cast<CLI::ExitCodes>(error.get_exit_code());
  if (kind == CLI::ExitCodes::ExtrasError) {
    std::string list;
    for (const auto& argument : app.remaining()) list += " " + argument;
    return "argomento non previsto:" + list;
  }
  const auto found = sentences.find(kind);
  return (found == sentences.end() ? "uso errato" : found->second) + " (" + error.what() + ")";
}

/// What it answered has to reach someone.
int told(const CLI::App& app) {
  if (std::cout.flush()) return 0;
  std::cerr << app.get_name() << ": lo standard output non si può scrivere\n";
  return 1;
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
    return told(app);
  }
  if (error.get_name() == "CallForVersion") {
    std::cout << error.what() << "\n";
    return told(app);
  }
  std::cerr << app.get_name() << ": " << sentenceFor(app, error) << "\n"
            << "Le istruzioni: " << app.get_name() << " --help\n";
  return wrongUsage;
}

std::optional<int> parse(CLI::App& app, int argc, char** argv) {
  refuseSwallowedOptions(app);
  try {
    app.parse(argc, argv);
    return std::nullopt;
  } catch (const CLI::ParseError& error) {
    return answer(app, error);
  }
}

}  // namespace apps
