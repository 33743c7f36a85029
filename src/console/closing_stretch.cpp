// What follows the commit: compaction, the check of the record counts, the restore. Errors are passed over
// here and tested by hand.
#include "console/frmAggMain.h"
#include "console/pending_error.h"
#include "controls/desktop.h"
#include "platform/files.h"

namespace console {
namespace {

void avvisaInterrotto() {
  controls::desktop().msgBox("ATTENZIONE! Aggiornamento interrotto, contattare subito assistenza software!",
                             controls::vbExclamation);
}

}  // namespace

void frmAggMain::compattaEControlla(Corsa& corsa) {
  PendingError errori;
  controls::desktop().doEvents();
  errori.attempt([&] {
    if (platform::fileExists(corsa.compattato)) platform::removeFile(corsa.compattato);
  });
  if (errori.pending()) {
    corsa.esito = Esito::NonRimossa;
    corsa.causa = errori.error();
    scriviErrore(errori.number(), errori.description());
    avvisaInterrotto();
    concludi();
    return;
  }
  controls::desktop().doEvents();
  ScriviRiepilogo("Compattazione del database " + corsa.database + "...", true);
  errori.attempt([&] { jet::dao::DBEngine::CompactDatabase(corsa.database, corsa.compattato); });
  controls::desktop().doEvents();
  if (errori.pending()) {
    corsa.esito = Esito::NonCompattata;
    corsa.causa = errori.error();
    scriviErrore(errori.number(), errori.description());
  } else {
    errori.attempt([&] { DbDestinazione = Ws->OpenDatabase(corsa.compattato, true); });
    if (!tabelleComplete(corsa)) {
      corsa.esito = Esito::Ripristinata;
      ripristina(corsa, errori);
      concludi();
      return;
    }
    corsa.esito = Esito::Completata;
    errori.attempt([this] { chiudiDestinazione(); });
    errori.attempt([&] { platform::copyFile(corsa.compattato, corsa.database); });
    errori.attempt([&] { platform::removeFile(corsa.compattato); });
    ScriviRiepilogo("Compattazione eseguita.", true);
  }
  corsa.erroreInChiusura = errori.pending();
  if (errori.pending()) corsa.causa = errori.error();
  controls::desktop().doEvents();
  controls::desktop().doEvents();
  ScriviRiepilogo("", true);
  ScriviRiepilogo("Aggiornamento del database terminato,", true);
  ScriviRiepilogo("puoi uscire.", true);
  ScriviRiepilogo("", true);
  controls::desktop().doEvents();
  concludi();
  AggiornamentoEseguito = true;
}

bool frmAggMain::tabelleComplete(const Corsa& corsa) {
  for (std::size_t tabella = 0; tabella < TabelleControllo.size(); ++tabella) {
    bool uguale = false;
    ControllaRecords(DbDestinazione, TabelleControllo[tabella], corsa.conteggi[tabella], uguale);
    if (!uguale) return false;
  }
  return true;
}

void frmAggMain::ripristina(Corsa& corsa, PendingError& errori) {
  avvisaInterrotto();
  errori.attempt([&] { copiaConOra(corsa.database, "ErrUnioncol", oraPerNomi()); });
  ScriviRiepilogo("Ripristino database di backup " + corsa.backup + "... ", true);
  errori.attempt([&] { platform::copyFile(corsa.backup, corsa.database); });
  // An error of before, such as a damaged copy that could not be kept, counts here too.
  ScriviRiepilogo(errori.pending() ? "non riuscito!!!!" : "fatto!", false);
  ScriviRiepilogo("Aggiornamento interrotto, contattare subito assistenza tecnica!", true);
  // A second time whatever the first one gave: a file that was held only for a moment is replaced now.
  errori.attempt([&] { platform::copyFile(corsa.backup, corsa.database); });
  errori.attempt([this] { chiudiDestinazione(); });
  errori.attempt([&] { platform::removeFile(corsa.compattato); });
  if (errori.pending()) corsa.causa->addPlace(inUnaRiga(*errori.error()));
}

}  // namespace console
