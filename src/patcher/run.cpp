// The run over the rows of the list.
#include <chrono>

#include "common/error_log.h"
#include "common/files.h"
#include "common/processes.h"
#include "common/text.h"
#include "controls/desktop.h"
#include "patcher/frmPatch.h"
#include "platform/disk.h"
#include "runtime/error.h"

namespace patcher {
namespace {

constexpr const char* aCapo = "\r\n";
constexpr std::int32_t finestraNormale = 1;

/// The row of a table whose name is `nome` without regard to case; nullptr if there is none.
template <typename Voce, std::size_t quante>
const Voce* cerca(const Voce (&tavola)[quante], const std::string& nome) {
  for (const Voce& voce : tavola)
    if (common::StessoTesto(voce.nome, nome)) return &voce;
  return nullptr;
}

/// Date and time of the last change, to the second. Errors 53, 75, 76.
std::chrono::seconds dataModifica(const std::string& percorso) {
  const auto info = platform::inspectFile(percorso);
  if (!info) throw platform::DiskError(platform::DiskFault::NotFound, percorso);
  return std::chrono::floor<std::chrono::seconds>(std::chrono::nanoseconds(info->modifiedUnixNanoseconds));
}

bool aggiornamentoDovuto(const std::string& sorgente, const std::string& destinazione) {
  const bool destinazioneEsiste = common::EsisteFile(destinazione);
  const bool sorgenteEsiste = common::EsisteFile(sorgente);
  return !destinazioneEsiste || !sorgenteEsiste || dataModifica(sorgente) >= dataModifica(destinazione);
}

}  // namespace

struct frmPatch::Alias {
  const char* nome;
  std::string frmPatch::*cartella;
};

struct frmPatch::Comando {
  const char* nome;
  void (frmPatch::*esegui)(const Passo&);
};

const std::string* frmPatch::cartellaDi(const std::string& alias) const {
  static constexpr Alias tavola[] = {
      {"NorvoDB", &frmPatch::DirNorvoDB},
      {"NorvoStampe", &frmPatch::DirNorvoStampe},
      {"NorvoEXE", &frmPatch::DirNorvoEXE},
      {"NorvoEXEDB", &frmPatch::DirNorvoEXEDB},
      {"TellaroFaxExe", &frmPatch::DirTellaroFaxExe},
      {"WinSys", &frmPatch::DirWinSys},
      {"Windows", &frmPatch::DirWindowsPatch},
  };
  const Alias* voce = cerca(tavola, alias);
  return voce ? &(this->*voce->cartella) : nullptr;
}

void frmPatch::cmd_Click() {
  // A window that is closed by its frame meanwhile goes when the run has ended.
  whileBusy([this] {
    try {
      controls::desktop().setMousePointer(controls::MousePointer::Hourglass);
      cmd.setEnabled(false);
      cmdEsci.setCaption("Annulla");
      txt.setText("");
      ArrestoRichiesto = false;
      StartCopy();
      cmd.setEnabled(true);
      cmdEsci.setCaption("ESCI");
      controls::desktop().setMousePointer(controls::MousePointer::Default);
    } catch (const runtime::Error& errore) {
      common::GestisciErrore(errore, "Start", false, "");
    }
  });
}

void frmPatch::StartCopy() {
  static constexpr Comando tavola[] = {
      {"AGG", &frmPatch::aggiorna}, {"SOST", &frmPatch::sostituisci}, {"RegS", &frmPatch::registra}};
  Passo passo;  // an unknown alias keeps the directory of the row before
  try {
    FileAggiornati = FileNonAggiornati = FileSostituiti = ErroriPatch = 0;
    std::int32_t i = 1;
    for (; i <= NumeroRighe && !ArrestoRichiesto; ++i) {
      const Riga& riga = RigaPatch[static_cast<std::size_t>(i)];
      const Comando* comando = cerca(tavola, riga.Comando);
      if (!comando) continue;
      passo.nome = riga.Valore;
      passo.sorgente = path_ + "\\" + riga.Valore;
      if (const std::string* cartella = cartellaDi(riga.Chiave)) passo.cartella = *cartella;
      passo.destinazione = passo.cartella + riga.Valore;
      (this->*comando->esegui)(passo);
      controls::desktop().doEvents();
    }
    scriviTotali(i);
  } catch (const runtime::Error& errore) {
    common::GestisciErrore(errore, "StartCopy", false, "Errore nella copia del file " + passo.sorgente);
  }
}

void frmPatch::aggiorna(const Passo& passo) {
  annuncia("Aggiorna '", passo);
  if (aggiornamentoDovuto(passo.sorgente, passo.destinazione)) {
    copia(passo, FileAggiornati);
  } else {
    ScriviTesto(std::string("non necessario.") + aCapo + aCapo);
    ++FileNonAggiornati;
  }
}

void frmPatch::sostituisci(const Passo& passo) {
  annuncia("Sostituisco '", passo);
  copia(passo, FileSostituiti);
}

void frmPatch::registra(const Passo& passo) {
  // The destination stands without quotes: one with blanks reaches the command as several words.
  const std::string comando = DirWinSys + "RegSvr32.exe " + passo.destinazione;
  common::EseguiEAttendi(comando + " /u /s", finestraNormale);
  sostituisci(passo);
  // After a failed copy too, so that the old file is registered again.
  common::EseguiEAttendi(comando + " /s", finestraNormale);
  common::FinestraInPrimoPiano(*this, true);
  common::FinestraInPrimoPiano(*this, false);
}

void frmPatch::copia(const Passo& passo, std::int32_t& riusciti) {
  bool riuscito = false;
  CopiaConAttesa(passo.sorgente, passo.destinazione, riuscito);
  ScriviTesto(std::string(riuscito ? "fatto." : "ERRORE!!!") + aCapo + aCapo);
  ++(riuscito ? riusciti : ErroriPatch);
}

void frmPatch::annuncia(const char* verbo, const Passo& passo) {
  ScriviTesto(verbo + passo.nome + "'" + aCapo + " in '" + passo.cartella + "'...");
  controls::desktop().doEvents();
}

void frmPatch::scriviTotali(std::int32_t riga) {
  const struct {
    const char* testo;
    std::int32_t conteggio;
    const char* fine;
  } totali[] = {{"File Aggiornati ", FileAggiornati, "\r\n"},
                {"File NON Aggiornati ", FileNonAggiornati, "\r\n"},
                {"File Sostituiti ", FileSostituiti, "\r\n"},
                {"ERRORI ", ErroriPatch, "\r\n\r\n"}};
  for (const auto& totale : totali)
    if (totale.conteggio > 0) ScriviTesto(totale.testo + std::to_string(totale.conteggio) + totale.fine);
  if (ArrestoRichiesto) {
    // One less than the rows that are left, and -1 for a stop during the last one: so the suite counts.
    ScriviTesto("File saltati " + std::to_string(NumeroRighe - riga) + aCapo);
    ScriviTesto(std::string("Esecuzione terminata dall'utente. ") + aCapo);
  } else {
    ScriviTesto("Aggiornamento terminato, puoi uscire.");
  }
}

}  // namespace patcher
