// One command line: choice, run or plan or list, exit status.
#include "console/batch.h"

#include <algorithm>
#include <ostream>
#include <vector>

#include "common/text.h"
#include "console/aggiornamento.h"
#include "console/applications.h"
#include "console/pending_error.h"
#include "console/summary.h"
#include "controls/text_box.h"
#include "jet/dao/engine.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "schema/piano.h"

namespace console {
namespace {

/// The program on a desktop without an operator: its reference database, open as long as this lives, and the
/// applications that it finds.
class Program {
 public:
  Program(const ProgramOptions& options, controls::BatchDesktop::Answer answer, std::ostream& err)
      : scope_(options), desktop_(err, answer), desktopScope_(desktop_) {
    if (Check_Percorso(referencePath).empty()) {
      desktop_.msgBox("Database mancante");
      return;
    }
    try {
      load();
    } catch (const runtime::Error& error) {
      reference = nullptr;
      err << "Database di riferimento non utilizzabile: " << platform::toSystemPath(referencePath) << ": "
          << inUnaRiga(error) << std::endl;
    }
  }
  ~Program() {
    PendingError errors;
    errors.attempt([] { jet::dao::DBEngine::Workspaces(0)->Close(); });
  }

  schema::Ambiente ambiente() const {
    schema::Ambiente given;
    given.riferimento = reference;
    given.percorsoRiferimento = referencePath;
    return given;
  }

 private:
  void load() {
    reference = jet::dao::DBEngine::OpenDatabase(referencePath, false, true);
    const auto norvi = reference->OpenRecordset("Norvi", jet::dao::dbOpenTable, jet::dao::dbReadOnly);
    ofPatch = applicazioneDellaPatch(folder);
    elencaApplicazioni(*norvi, scope_.settings(),
                       [this](const Applicazione& each) { applications.push_back(each); });
    norvi->Close();
  }

  ProgramScope scope_;
  controls::BatchDesktop desktop_;
  controls::DesktopScope desktopScope_;

 public:
  const std::string folder = scope_.folder();
  const std::string referencePath = folder + "\\AggNorvo.mdb";
  jet::dao::DatabasePtr reference;  // nothing if it can't be used
  std::string ofPatch;              // the application that the patch was built for
  std::vector<Applicazione> applications;
};

/// Makes the choice that the options tell. Returns why it can't be made; empty if it is made.
std::string choose(const Program& program, const BatchOptions& options, Scelta& choice) {
  const auto& all = program.applications;
  choice.proposta = program.ofPatch;
  if (options.app) {
    const auto known = std::ranges::find_if(
        all, [&](const Applicazione& each) { return common::StessoTesto(each.nome, *options.app); });
    if (known == all.end()) return "Applicazione sconosciuta: " + *options.app;
    choice.applicazione = known->nome;
  }
  if (options.database) {
    choice.database = platform::fromSystemPath(*options.database);
    choice.aMano = true;
    return {};
  }
  const std::string name = options.app ? choice.applicazione : program.ofPatch;
  for (const Applicazione& each : all) {
    if (!each.presente || !common::StessoTesto(each.nome, name)) continue;
    choice.applicazione = each.nome;
    choice.database = each.percorso;
    if (options.app) break;  // of the patch's the last one counts, as in the window
  }
  if (!choice.database.empty()) return {};
  return options.app ? "Applicazione non installata, il suo database non è registrato o non esiste: " + name
                     : "Specificare l'applicazione:";
}

const char* sentenceOf(Esito end) {
  switch (end) {
    case Esito::NonDatabase:
      return "Aggiornamento rifiutato";
    case Esito::Ripristinata:
      return "Il numero dei record è cambiato, si ripristina il backup";
    case Esito::NonRimossa:
    case Esito::NonCompattata:
      return "Aggiornato, ma non compattato";
    case Esito::Completata:
      return "Errore tralasciato";
    default:
      return "Aggiornamento annullato";
  }
}

/// Says in one line why a run didn't begin or didn't end well, where no box has said it.
void explain(const Corsa& run, std::ostream& err) {
  if (run.esito == Esito::NonScelta)
    err << "Database inesistente o non leggibile: " << platform::toSystemPath(run.database) << std::endl;
  if (run.esito == Esito::SenzaNome)
    err << "Nome dell'applicazione non indicato: aggiornamento non eseguito." << std::endl;
  if (run.causa) err << sentenceOf(run.esito) << ": " << inUnaRiga(*run.causa) << std::endl;
}

/// What was written to `out` has to have arrived; else this says so and fails.
bool arrived(std::ostream& out, std::ostream& err) {
  if (out.flush()) return true;
  err << "Lo standard output non si può scrivere." << std::endl;
  return false;
}

bool isAsItWas(const Corsa& run) {
  if (!run.databaseAperto) return true;
  try {
    return platform::sameContent(run.database, run.backup);
  } catch (const runtime::Error&) {
    return false;
  }
}

int update(const Program& program, const Scelta& choice, std::ostream& out, std::ostream& err) {
  controls::TextBox summary("txtRiepilogo");
  controls::streamText(summary, out);
  schema::Ambiente ambiente = program.ambiente();
  ambiente.scrivi = [&](std::string text, schema::Voce voce) {
    ScriviRiepilogo(summary, text, voce != schema::Voce::Seguito);
  };
  Aggiornamento run(choice, ambiente, [&] { SalvaRiepilogo(summary, program.folder, "AggNorvo"); });
  try {
    run.esegui();
  } catch (const std::exception& failure) {
    err << "Errore imprevisto: " << failure.what() << std::endl;
    return run.corsa().databaseAperto ? FailedChanged : FailedUnchanged;
  }
  if (!summary.text().empty() && !summary.text().ends_with('\n')) out << std::endl;
  explain(run.corsa(), err);
  arrived(out, err);  // the run stands, and its summary has a file of its own
  return exitStatus(run.corsa());
}

int showPlan(const Program& program, const Scelta& choice, std::ostream& out, std::ostream& err) {
  schema::Piano plan;
  Aggiornamento run(choice, program.ambiente());
  run.prevedi(plan);
  for (const std::string& change : plan.modifiche) out << change << '\n';
  const bool shown = arrived(out, err);
  for (const std::string& line : plan.errori) err << line << std::endl;
  explain(run.corsa(), err);
  const int status = exitStatus(run.corsa());
  if (status != Done) return status;
  if (!shown) return FailedUnchanged;
  return plan.modifiche.empty() ? Done : WouldChange;
}

}  // namespace

int exitStatus(const Corsa& run) {
  if (run.esito <= Esito::ApertoAltrove) return Refused;
  if (run.esito == Esito::Completata && !run.erroreInChiusura && !run.erroreTrattenuto) return Done;
  return isAsItWas(run) ? FailedUnchanged : FailedChanged;
}

int runBatch(const BatchOptions& options, std::ostream& out, std::ostream& err) {
  const Program program(options, options.answer, err);
  if (!program.reference) return Refused;
  Scelta choice;
  if (const std::string refusal = choose(program, options, choice); !refusal.empty()) {
    err << refusal << std::endl;
    return Refused;
  }
  return options.plan ? showPlan(program, choice, out, err) : update(program, choice, out, err);
}

int runList(const ProgramOptions& options, std::ostream& out, std::ostream& err) {
  const Program program(options, controls::BatchDesktop::Answer::Default, err);
  if (!program.reference) return Refused;
  for (const Applicazione& each : program.applications) {
    if (each.presente) out << each.nome << '\t' << platform::toSystemPath(each.percorso) << '\n';
  }
  for (const Applicazione& each : program.applications) {
    if (!each.presente && !each.percorso.empty())
      err << each.nome << ": il database registrato non c'è: " << platform::toSystemPath(each.percorso)
          << std::endl;
  }
  return arrived(out, err) ? Done : FailedUnchanged;
}

}  // namespace console
