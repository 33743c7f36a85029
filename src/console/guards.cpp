// The looks that a run takes at its file before anything else.
#include "console/guards.h"

#include "common/files.h"
#include "common/text.h"
#include "controls/desktop.h"
#include "jet/dao/engine.h"
#include "jet/file/errors.h"
#include "platform/files.h"

namespace console {

bool databasePresente(const std::string& percorso) {
  return !percorso.empty() && (common::EsisteFile(percorso) || common::FileOccupato(percorso));
}

bool aggiornamentoVietato(const std::string& percorso) {
  const std::size_t posto = common::Maiuscolo(percorso).find("\\DB");
  if (posto == std::string::npos) return false;
  const std::string marca = percorso.substr(0, posto + 1) + "NoAggNorvo.txt";
  if (!common::EsisteFile(marca) && !common::FileOccupato(marca)) return false;
  controls::desktop().msgBox(
      "Attenzione, per questioni di sicurezza non è consentita l'esecuzione della patch AggNorvo.\r\n"
      "Procedere con la funzione 'Controllo Aggiornamenti'",
      controls::vbCritical);
  return true;
}

bool sceltoRiferimento(const std::string& percorso, const std::string& percorsoRiferimento) {
  try {
    const platform::File scelto = platform::openFile(percorso, platform::OpenMode::Read);
    if (!scelto.isStillAt(percorsoRiferimento)) return false;
  } catch (const runtime::Error&) {
    return false;
  }
  // This program has it open itself: to wait for it to be closed would never end.
  controls::desktop().msgBox("Il database scelto è quello di riferimento e non può essere aggiornato.",
                             controls::vbCritical);
  return true;
}

std::optional<runtime::Error> nonDatabase(const std::string& percorso) {
  try {
    jet::dao::Workspace().OpenDatabase(percorso, false, true);
  } catch (const runtime::Error& errore) {
    if (errore.number() == jet::UnrecognizedFormat) return errore;
  }
  return std::nullopt;
}

}  // namespace console
