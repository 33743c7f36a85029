#include "console/batch.h"

#include <algorithm>
#include <ostream>

#include "common/globale.h"
#include "common/text.h"
#include "console/frmAggMain.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "schema/piano.h"

namespace console {
namespace {

/// The main window on a desktop without an operator, loaded for as long as this lives.
class BatchWindow {
 public:
  BatchWindow(const ProgramOptions& options, controls::BatchDesktop::Answer answer, std::ostream& err)
      : program_(options),
        desktop_(err, answer),
        scope_(desktop_),
        form({program_.settings(), program_.folder()}) {
    common::NomeApplicazione.clear();
    form.load();
    // A missing one has its box.
    if (form.ErroreAvvio)
      err << "Database di riferimento non utilizzabile: " << platform::toSystemPath(form.PercorsoRiferimento)
          << ": " << inUnaRiga(*form.ErroreAvvio) << std::endl;
  }
  ~BatchWindow() { form.unload(); }

 private:
  ProgramScope program_;
  controls::BatchDesktop desktop_;
  controls::DesktopScope scope_;

 public:
  frmAggMain form;
};

/// The application as table Norvi writes it.
std::optional<std::string> knownApplication(const frmAggMain& form, const std::string& name) {
  const auto norvi = form.DbRiferimento->OpenRecordset("Norvi", jet::dao::dbOpenTable, jet::dao::dbReadOnly);
  for (; !norvi->atEnd(); norvi->MoveNext()) {
    const runtime::Variant norvo = norvi->value("norvo");
    if (!norvo.isNull() && common::StessoTesto(norvo.toText(), name)) return norvo.toText();
  }
  return std::nullopt;
}

/// Makes the operator's choice in the window. Returns why it can't be made; empty if it is made.
std::string choose(frmAggMain& form, const BatchOptions& options) {
  std::string name;
  if (options.app) {
    const auto known = knownApplication(form, *options.app);
    if (!known) return "Applicazione sconosciuta: " + *options.app;
    name = *known;
  }
  if (options.database) {
    form.txtAltroDB.setText(platform::fromSystemPath(*options.database));
    common::NomeApplicazione = name;
    return {};
  }
  if (options.app) {
    const auto installed =
        std::find_if(form.ColNomi.begin(), form.ColNomi.end(),
                     [&](const std::string& row) { return common::StessoTesto(row, name); });
    if (installed == form.ColNomi.end())
      return "Applicazione non installata, il suo database non è registrato o non esiste: " + name;
    form.lstDatabase.setListIndex(static_cast<int>(installed - form.ColNomi.begin()) + 1);
  }
  return form.lstDatabase.listIndex() < 1 ? form.lstDatabase.list(0) : std::string();
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
    err << "Database inesistente o non leggibile: "
        << platform::toSystemPath(run.database) << std::endl;
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

int update(frmAggMain& form, std::ostream& out, std::ostream& err) {
  controls::streamText(form.txtRiepilogo, out);
  try {
    form.cmdAggiorna_Click();
  } catch (const std::exception& failure) {
    err << "Errore imprevisto: " << failure.what() << std::endl;
    return form.UltimaCorsa.databaseAperto ? FailedChanged : FailedUnchanged;
  }
  const std::string& summary = form.txtRiepilogo.text();
  if (!summary.empty() && summary.back() != '\n') out << std::endl;
  explain(form.UltimaCorsa, err);
  arrived(out, err);  // the run stands, and its summary has a file of its own
  return exitStatus(form.UltimaCorsa);
}

int showPlan(frmAggMain& form, std::ostream& out, std::ostream& err) {
  schema::Piano plan;
  form.PrevediAggiornamento(plan);
  for (const std::string& change : plan.modifiche) out << change << '\n';
  const bool shown = arrived(out, err);
  for (const std::string& line : plan.errori) err << line << std::endl;
  explain(form.UltimaCorsa, err);
  const int status = exitStatus(form.UltimaCorsa);
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
  BatchWindow window(options, options.answer, err);
  frmAggMain& form = window.form;
  if (!form.DbRiferimento) return Refused;
  if (const std::string refusal = choose(form, options); !refusal.empty()) {
    err << refusal << std::endl;
    return Refused;
  }
  return options.plan ? showPlan(form, out, err) : update(form, out, err);
}

int runList(const ProgramOptions& options, std::ostream& out, std::ostream& err) {
  BatchWindow window(options, controls::BatchDesktop::Answer::Default, err);
  const frmAggMain& form = window.form;
  if (!form.DbRiferimento) return Refused;
  for (std::size_t row = 0; row < form.ColNomi.size(); ++row)
    out << form.ColNomi[row] << '\t' << platform::toSystemPath(form.ColPercorsi[row]) << '\n';
  for (const auto& [name, path] : form.NonTrovati)
    err << name << ": il database registrato non c'è: " << platform::toSystemPath(path) << std::endl;
  return arrived(out, err) ? Done : FailedUnchanged;
}

}  // namespace console
