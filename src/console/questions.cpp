// Boxes with an answer, and the wait between two tries.
#include "console/questions.h"

#include <cmath>

#include "common/text.h"
#include "console/pending_error.h"
#include "controls/desktop.h"
#include "jet/dao/engine.h"
#include "jet/file/errors.h"
#include "platform/clock.h"

namespace console {
namespace {

/// Error numbers that mean a database open in another program.
bool apertoAltrove(int numero) {
  return numero == runtime::PermissionDenied || numero == jet::OpenedElsewhere;
}

/// Closes a database that is only read, whatever happened meanwhile.
struct Chiusura {
  jet::dao::DatabasePtr db;
  ~Chiusura() {
    PendingError errori;
    errori.attempt([this] { db->Close(); });
  }
};

/// The value of row AppName in the database's parameters; empty if it has none.
std::string nomeInDatabase(const std::string& percorso) {
  const Chiusura aperto{jet::dao::DBEngine::OpenDatabase(percorso)};
  const auto righe = aperto.db->OpenRecordset("SELECT * FROM KEPGenerali WHERE Nome IN ('AppName')");
  if (righe->atEnd()) return {};
  const runtime::Variant valore = righe->value("Valore");
  return valore.isNull() ? std::string() : common::SenzaSpazi(valore.toText());
}

}  // namespace

std::string ChiediApplicazione(const std::string& percorso, const std::string& proposta) {
  try {
    return controls::desktop().inputBox("Inserire il nome della applicazione a cui si riferisce il database",
                                        "Nome applicazione",
                                        proposta.empty() ? nomeInDatabase(percorso) : proposta);
  } catch (const runtime::Error&) {
    return {};
  }
}

bool VerificaDatabaseChiuso(const std::string& percorso) {
  for (;;) {
    try {
      jet::dao::DBEngine::Workspaces(0)->OpenDatabase(percorso, true)->Close();
      return true;
    } catch (const runtime::Error& errore) {
      if (!apertoAltrove(errore.number())) return true;
    }
    const auto risposta = controls::desktop().msgBox(
        "Il database è aperto da un altro programma. Si desidera riprovare con l'aggiornamento ?",
        controls::vbYesNoCancel | controls::vbInformation, "Attenzione database aperto!");
    controls::desktop().doEvents();
    if (risposta != controls::vbYes) return false;
    WaitFor(5);
  }
}

void WaitFor(int secondi) {
  constexpr int giorno = 86400;
  const double inizio = platform::clock().timer();
  const auto passati = [&] {
    return static_cast<int>(std::nearbyint(platform::clock().timer() + giorno - inizio)) % giorno;
  };
  while (passati() < secondi) {
    controls::desktop().doEvents();
    platform::clock().rest(20);
  }
}

}  // namespace console
