// The choice of a database, and the questions before a run.
#include <cmath>

#include "common/files.h"
#include "common/globale.h"
#include "common/text.h"
#include "console/frmAggMain.h"
#include "console/pending_error.h"
#include "controls/desktop.h"
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

void frmAggMain::abilitaAggiorna(bool abilita) {
  mnuFileAggiorna.setEnabled(abilita);
  cmdAggiorna.setEnabled(abilita);
}

void frmAggMain::lstDatabase_Click() {
  abilitaAggiorna(lstDatabase.listIndex() >= 1);
}

void frmAggMain::lstDatabase_DblClick() {
  EseguiAggiornamento();
}

void frmAggMain::cmdAggiorna_Click() {
  EseguiAggiornamento();
}

void frmAggMain::mnuFileAggiorna_Click() {
  EseguiAggiornamento();
}

void frmAggMain::chkAltroDatabase_Click() {
  const bool altro = chkAltroDatabase.value() == controls::Checked;
  const auto mostra = [&] {
    lblDatabase.setVisible(!altro);
    lstDatabase.setVisible(!altro);
    txtAltroDB.setVisible(altro);
    cmdSelezionaDB.setVisible(altro);
  };
  if (altro) {
    mostra();
    controls::desktop().doEvents();
    abilitaAggiorna(!Check_Percorso(txtAltroDB.text()).empty());
  } else {
    controls::desktop().doEvents();
    mostra();
    lstDatabase_Click();
  }
}

void frmAggMain::cmdSelezionaDB_Click() {
  if (busy()) return;  // the dialog would hold the run inside its transaction
  cmdDlg.setFilter("Database Access (*.mdb)|*.mdb");
  cmdDlg.setFlags(controls::CommonDialog::FileMustExist | controls::CommonDialog::HideReadOnly);
  cmdDlg.setDialogTitle("Seleziona database");
  if (!cmdDlg.showOpen() || Check_Percorso(cmdDlg.fileName()).empty()) return;
  scegliDatabase(cmdDlg.fileName());
  abilitaAggiorna(true);
}

void frmAggMain::txtAltroDB_OLEDragDrop(const controls::DropData& dati) {
  if (!dati.getFormat(controls::DropData::FileList)) return;
  const std::string primo = dati.files.empty() ? std::string() : dati.files.front();
  const bool database = primo.size() >= 3 && common::StessoTesto(primo.substr(primo.size() - 3), "mdb");
  scegliDatabase(database ? primo : std::string());
  cmdAggiorna.setEnabled(database);
}

void frmAggMain::scegliDatabase(const std::string& percorso) {
  txtAltroDB.setText(percorso);
  // A run keeps the database that it began with; the next one reads the box again.
  if (!busy()) PercorsoDatabase = percorso;
}

void frmAggMain::LeggiDatabaseScelto() {
  const std::string altro = common::SenzaSpazi(txtAltroDB.text());
  if (!altro.empty()) {
    PercorsoDatabase = common::PercorsoInterno(altro);
    return;
  }
  const int riga = lstDatabase.listIndex();
  const bool scelta = riga >= 1;
  PercorsoDatabase = scelta ? ColPercorsi.at(static_cast<std::size_t>(riga) - 1) : std::string();
  common::NomeApplicazione = scelta ? ColNomi.at(static_cast<std::size_t>(riga) - 1) : std::string();
}

void frmAggMain::ChiediApplicazione(std::string& nome) {
  nome.clear();
  try {
    common::NomeApplicazione = NomeProgrammaPatch;
    if (common::NomeApplicazione.empty()) common::NomeApplicazione = nomeInDatabase(PercorsoDatabase);
    common::NomeApplicazione =
        controls::desktop().inputBox("Inserire il nome della applicazione a cui si riferisce il database",
                                     "Nome applicazione", common::NomeApplicazione);
    nome = common::NomeApplicazione;
  } catch (const runtime::Error&) {
    nome.clear();
  }
}

void frmAggMain::VerificaDatabaseChiuso(bool& annulla) {
  annulla = false;
  for (;;) {
    try {
      jet::dao::DBEngine::Workspaces(0)->OpenDatabase(PercorsoDatabase, true)->Close();
      return;
    } catch (const runtime::Error& errore) {
      // Any other error is met again, and reported, where the run opens the database.
      if (!apertoAltrove(errore.number())) return;
    }
    const auto risposta = controls::desktop().msgBox(
        "Il database è aperto da un altro programma. Si desidera riprovare con l'aggiornamento ?",
        controls::vbYesNoCancel | controls::vbInformation, "Attenzione database aperto!");
    controls::desktop().doEvents();
    if (risposta != controls::vbYes) {
      annulla = true;
      return;
    }
    WaitFor(5);
  }
}

void frmAggMain::WaitFor(int secondi) {
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
