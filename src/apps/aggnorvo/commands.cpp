// Each command with its help, its options and what it calls.
#include "apps/aggnorvo/commands.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <map>

#include "patcher/batch.h"
#include "platform/paths.h"

namespace aggnorvo {
namespace {

using Answer = controls::BatchDesktop::Answer;

class Batch : public Command {
 public:
  std::string name() const override { return "--batch"; }
  std::string help() const override {
    return "Aggiorna un database senza finestra; il riepilogo va sullo standard output, gli avvisi sullo "
           "standard error";
  }
  void addOptions(CLI::App& app, CLI::Option* chosen) override {
    static const std::map<std::string, Answer> answers = {
        {"yes", Answer::Yes}, {"no", Answer::No}, {"cancel", Answer::Cancel}};
    const std::string group = "Opzioni di --batch";
    app.add_option("--app", options_.app,
                   "Applicazione da aggiornare; senza, e senza --database, quella della patch")
        ->type_name("NOME")
        ->group(group)
        ->needs(chosen);
    app.add_option("--database", options_.database, "Database da aggiornare, al posto di quello registrato")
        ->type_name("FILE")
        ->group(group)
        ->needs(chosen);
    app.add_flag(
           "--plan", options_.plan,
           "Mostra soltanto che cosa cambierebbe in tabelle, campi, indici, relazioni, query e tabelle di "
           "riferimento, una riga per modifica; non scrive nulla")
        ->group(group)
        ->needs(chosen);
    app.add_option_function<std::string>(
           "--answer", [this](const std::string& word) { options_.answer = answers.at(word); },
           "Risposta alle domande: yes, no o cancel; senza, il pulsante predefinito di ognuna")
        ->check(CLI::IsMember(&answers))
        ->type_name("RISPOSTA")
        ->group(group)
        ->needs(chosen);
  }
  int run(const console::ProgramOptions& program) override {
    static_cast<console::ProgramOptions&>(options_) = program;
    return console::runBatch(options_, std::cout, std::cerr);
  }

 private:
  console::BatchOptions options_;
};

class List : public Command {
 public:
  std::string name() const override { return "--list"; }
  std::string help() const override {
    return "Elenca le applicazioni trovate su questo computer: nome, tabulazione, percorso del database";
  }
  void addOptions(CLI::App&, CLI::Option*) override {}
  int run(const console::ProgramOptions& program) override {
    return console::runList(program, std::cout, std::cerr);
  }
};

class Patch : public Command {
 public:
  std::string name() const override { return "--patch"; }
  std::string help() const override {
    return "Copia i file della patch che sta in una cartella, come dice il suo PatchList.txt, senza "
           "finestra; "
           "il resoconto va sullo standard output, gli avvisi sullo standard error";
  }
  CLI::Option* addChoice(CLI::App& app) override {
    return app.add_option(name(), folder_)->type_name("CARTELLA");
  }
  void addOptions(CLI::App&, CLI::Option*) override {}
  int run(const console::ProgramOptions& program) override {
    const console::ProgramScope scope(program);
    return patcher::runPatch(platform::fromSystemPath(folder_), std::cout, std::cerr);
  }

 private:
  std::string folder_;
};

}  // namespace

CLI::Option* Command::addChoice(CLI::App& app) {
  return app.add_flag(name());
}

std::vector<std::unique_ptr<Command>> commands() {
  std::vector<std::unique_ptr<Command>> all;
  all.push_back(std::make_unique<Batch>());
  all.push_back(std::make_unique<List>());
  all.push_back(std::make_unique<Patch>());
  return all;
}

}  // namespace aggnorvo
