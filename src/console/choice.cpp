// The choice of a database in the window.
#include "common/files.h"
#include "common/globale.h"
#include "common/text.h"
#include "console/frmAggMain.h"
#include "controls/desktop.h"

namespace console {

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

Scelta frmAggMain::LeggiDatabaseScelto() {
  Scelta scelta;
  scelta.aMano = !txtAltroDB.text().empty();
  const std::string altro = common::SenzaSpazi(txtAltroDB.text());
  const int riga = lstDatabase.listIndex();
  if (!altro.empty()) {
    scelta.database = common::PercorsoInterno(altro);
    scelta.applicazione = common::NomeApplicazione;  // that of the run before
  } else if (riga >= 1) {
    scelta.database = ColPercorsi.at(static_cast<std::size_t>(riga) - 1);
    scelta.applicazione = ColNomi.at(static_cast<std::size_t>(riga) - 1);
  }
  scelta.proposta = NomeProgrammaPatch;
  scelta.sorvegliata = !PathImpostato;
  PercorsoDatabase = scelta.database;
  return scelta;
}

}  // namespace console
