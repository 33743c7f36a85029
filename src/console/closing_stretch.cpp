// What follows the commit: compaction, the check of the record counts, the restore. Errors are passed over
// here and tested by hand.
#include "console/aggiornamento.h"
#include "console/copies.h"
#include "console/pending_error.h"
#include "console/record_counts.h"
#include "controls/desktop.h"
#include "jet/dao/engine.h"
#include "platform/files.h"

namespace console {
namespace {

void avvisaInterrotto() {
  controls::desktop().msgBox("ATTENZIONE! Aggiornamento interrotto, contattare subito assistenza software!",
                             controls::vbExclamation);
}

}  // namespace

void Aggiornamento::compattaEControlla() {
  PendingError errori;
  controls::desktop().doEvents();
  errori.attempt([&] {
    if (platform::fileExists(corsa_.compattato)) platform::removeFile(corsa_.compattato);
  });
  if (errori.pending()) {
    corsa_.esito = Esito::NonRimossa;
    corsa_.causa = errori.error();
    scriviErrore(errori.number(), errori.description());
    avvisaInterrotto();
    concludi();
    return;
  }
  controls::desktop().doEvents();
  riga("Compattazione del database " + corsa_.database + "...");
  errori.attempt([&] { jet::dao::DBEngine::CompactDatabase(corsa_.database, corsa_.compattato); });
  controls::desktop().doEvents();
  if (errori.pending()) {
    corsa_.esito = Esito::NonCompattata;
    corsa_.causa = errori.error();
    scriviErrore(errori.number(), errori.description());
  } else {
    errori.attempt([&] {
      impostaDestinazione(jet::dao::DBEngine::Workspaces(0)->OpenDatabase(corsa_.compattato, true));
    });
    if (!tabelleComplete()) {
      corsa_.esito = Esito::Ripristinata;
      ripristina(errori);
      concludi();
      return;
    }
    corsa_.esito = Esito::Completata;
    errori.attempt([this] { chiudiDestinazione(); });
    errori.attempt([&] { platform::copyFile(corsa_.compattato, corsa_.database); });
    errori.attempt([&] { platform::removeFile(corsa_.compattato); });
    riga("Compattazione eseguita.");
  }
  corsa_.erroreInChiusura = errori.pending();
  if (errori.pending()) corsa_.causa = errori.error();
  controls::desktop().doEvents();
  controls::desktop().doEvents();
  riga("");
  riga("Aggiornamento del database terminato,");
  riga("puoi uscire.");
  riga("");
  controls::desktop().doEvents();
  concludi();
}

bool Aggiornamento::tabelleComplete() {
  for (std::size_t tabella = 0; tabella < TabelleControllo.size(); ++tabella) {
    const auto differenza = ControllaRecords(ambiente_, TabelleControllo[tabella], corsa_.conteggi[tabella]);
    if (!differenza) continue;
    corsa_.causa = runtime::Error(0, "", *differenza);
    return false;
  }
  return true;
}

void Aggiornamento::ripristina(PendingError& errori) {
  avvisaInterrotto();
  errori.attempt([&] { copiaConOra(corsa_.database, "ErrUnioncol", oraPerNomi()); });
  riga("Ripristino database di backup " + corsa_.backup + "... ");
  errori.attempt([&] { platform::copyFile(corsa_.backup, corsa_.database); });
  // An error of before, such as a damaged copy that could not be kept, counts here too.
  seguito(errori.pending() ? "non riuscito!!!!" : "fatto!");
  riga("Aggiornamento interrotto, contattare subito assistenza tecnica!");
  // A second time whatever the first one gave: a file that was held only for a moment is replaced now.
  errori.attempt([&] { platform::copyFile(corsa_.backup, corsa_.database); });
  errori.attempt([this] { chiudiDestinazione(); });
  errori.attempt([&] { platform::removeFile(corsa_.compattato); });
  if (errori.pending()) corsa_.causa->addPlace(inUnaRiga(*errori.error()));
}

}  // namespace console
