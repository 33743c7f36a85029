// What a patch wants: the rows of its list, the directories that they name.
#include "common/directories.h"
#include "common/error_log.h"
#include "common/lines.h"
#include "common/registry.h"
#include "common/text.h"
#include "patcher/frmPatch.h"
#include "platform/files.h"
#include "runtime/text.h"

namespace patcher {
namespace {

/// The directory of an installed program: its path without as many characters as its name has, whatever they
/// are. Nothing if it isn't installed; error 5 for a path shorter than the name.
std::optional<std::string> cartellaDelProgramma(const std::string& nomeExe) {
  const std::string percorso = common::LeggiAppPath(nomeExe);
  if (percorso.empty()) return std::nullopt;
  const auto lunghezza = [](const std::string& testo) {
    return static_cast<std::int64_t>(runtime::length(testo));
  };
  return std::string(runtime::left(percorso, lunghezza(percorso) - lunghezza(nomeExe)));
}

}  // namespace

void frmPatch::GetKeys() {
  try {
    ElencoLetto = false;
    NumeroRighe = 0;
    for (const std::string& testo : common::Righe(platform::readWholeFile(path_ + "\\PatchList.txt"))) {
      std::optional<Riga> riga = leggiRiga(testo);
      if (!riga) continue;
      if (NumeroRighe == MaxRighe) throw runtime::languageError(runtime::SubscriptOutOfRange);
      RigaPatch[static_cast<std::size_t>(++NumeroRighe)] = std::move(*riga);
    }
    ElencoLetto = true;
  } catch (const runtime::Error& errore) {
    common::GestisciErrore(errore, "GetKeys", true, "PatchList.txt non è compilato correttamente");
  }
}

void frmPatch::GetPaths() {
  try {
    DirWinSys = common::DirSystem();
    DirWindowsPatch = common::DirWindows();
    for (std::int32_t i = 1; i <= NumeroRighe; ++i) {
      const Riga& riga = RigaPatch[static_cast<std::size_t>(i)];
      const auto scrive = [&riga](const char* chiave, const char* comando) {
        return common::StessoTesto(riga.Comando, comando) && common::StessoTesto(riga.Chiave, chiave);
      };
      if (scrive("Norvo", "PRG")) trovaCartelle(riga.Valore);
      if (scrive("Caption", "LBL")) setCaption(riga.Valore);
      if (scrive("Top", "LBL")) lblTop.setCaption(riga.Valore);
    }
  } catch (const runtime::Error& errore) {
    common::GestisciErrore(errore, "GetPaths", false, "Errore nel setting dei percorsi");
  }
}

void frmPatch::trovaCartelle(const std::string& applicazione) {
  DirNorvoDB = common::VerificaDir(common::DirDatabaseNorvo, applicazione);
  DirNorvoStampe = common::VerificaDir(common::DirStampe, applicazione);
  // A program that isn't installed leaves what an earlier row has found.
  if (const auto cartella = cartellaDelProgramma(applicazione + ".exe")) {
    DirNorvoEXE = *cartella;
    DirNorvoEXEDB = DirNorvoEXE + "db\\";
  }
  if (const auto cartella = cartellaDelProgramma("TellaroService.exe")) DirTellaroFaxExe = *cartella;
}

}  // namespace patcher
