// Where the suite's programs and databases lie, from the registry and the settings.
#include "common/directories.h"

#include "common/error_log.h"
#include "common/files.h"
#include "common/globale.h"
#include "common/text.h"
#include "platform/computer.h"
#include "platform/settings.h"
#include "runtime/error.h"
#include "runtime/text.h"

namespace common {
namespace {

std::string chiusa(const std::string& cartella) {
  std::string percorso = TroncaAlNul(cartella);
  if (!percorso.empty()) AggiungiBarra(percorso);
  return percorso;
}

/// Characters before the last backslash and with it; 0 without one.
std::int32_t ultimaBarra(const std::string& percorso) {
  return InStrEx(-1, 1, percorso, "\\", ConfrontoTesto).toLong();
}

std::string percorsoDatabase(const std::string& nomeApp) {
  if (!Impostazioni) throw runtime::languageError(runtime::InvalidCall);
  return PercorsoInterno(Impostazioni->get(nomeApp, "DBSECTION", "dbPath"));
}

std::string dirDatabase(const std::string& nomeApp, std::int32_t livello) {
  const std::string percorso = percorsoDatabase(nomeApp);
  const std::int32_t barra = ultimaBarra(percorso);
  if (barra == 0) return "";
  std::string cartella(runtime::left(percorso, barra - 1));
  if (livello == DirSopraDatabase) {
    const std::int32_t barraSopra = ultimaBarra(cartella);
    if (barraSopra == 0) return "";
    cartella = runtime::left(cartella, barraSopra);
  }
  if (!cartella.ends_with('\\')) cartella += '\\';
  return cartella;
}

std::string dirDiTipo(std::int32_t tipo, const std::string& nomeApp) {
  const auto accanto = [&](const std::string& nome) {
    return GetDBParentDir(nomeApp, DirSopraDatabase) + nome + "\\";
  };
  switch (tipo) {
    case DirTesserini:
      return accanto("Tesserini");
    case DirStampe:
      return accanto("Stampe");
    case DirScan:
      return accanto("Scan");
    case DirAllegati:
      return accanto("Allegati" + NomeComputer());
    case DirTempProgramma:
      return DirProgramma + "\\Temp\\";
    case DirDatabaseNorvo:
      return GetDBParentDir(nomeApp, DirDatabase);
    case DirTempUtente:
      return platform::environmentVariable("Temp");
    default:
      return "";
  }
}

/// The trap of the two procedures that look an application's directories up.
template <class Ricerca>
std::string conTrappola(const char* procedura, Ricerca ricerca) {
  try {
    return ricerca();
  } catch (const runtime::Error& errore) {
    GestisciErrore(errore, procedura, false, "");
    return "";
  }
}

}  // namespace

std::string DirWindows() {
  return chiusa(platform::windowsFolder());
}

std::string DirSystem() {
  return chiusa(platform::systemFolder());
}

std::string NomeComputer() {
  return platform::computerName();
}

std::string TroncaAlNul(std::string_view testo) {
  return std::string(testo.substr(0, testo.find('\0')));
}

void AggiungiBarra(std::string& percorso) {
  const std::string_view senzaSpazi = runtime::trimmed(percorso);
  if (senzaSpazi.ends_with('/') || senzaSpazi.ends_with('\\')) return;
  percorso = std::string(runtime::rightTrimmed(percorso)) + "\\";
}

std::string GetDBParentDir(const std::string& nomeApp, std::int32_t livello) {
  return conTrappola("GetDBParentDir", [&] { return dirDatabase(nomeApp, livello); });
}

std::string VerificaDir(std::int32_t tipo, const std::string& nomeApp) {
  return conTrappola("VerificaDir", [&] { return dirDiTipo(tipo, nomeApp); });
}

}  // namespace common
