// How the window comes up: the reference database, the applications found on this computer.
#include "common/text.h"
#include "common/windows.h"
#include "console/applications.h"
#include "console/frmAggMain.h"
#include "console/pending_error.h"
#include "controls/desktop.h"

namespace console {

void frmAggMain::Form_Load() {
  try {
    common::CentraForm(*this);
    if (Check_Percorso1(PercorsoRiferimento).empty()) {
      controls::desktop().msgBox("Database mancante");
      return;
    }
    lstDatabase.setEnabled(false);
    abilitaAggiorna(false);
    DbRiferimento = Ws->OpenDatabase(PercorsoRiferimento, false, true);
    RsNorvi = DbRiferimento->OpenRecordset("Norvi", jet::dao::dbOpenTable, jet::dao::dbReadOnly);
    lstDatabase.addItem("Specificare l'applicazione:");

    chkAltroDatabase.setVisible(common::StessoTesto(impostazione("OTHERDB"), "KEP"));
    txtAltroDB.setVisible(false);
    cmdSelezionaDB.setVisible(false);
    txtAltroDB.setText("");
    PercorsoAnalisiDB = impostazione("ANALISIDB");
    chkAggiornaDescrizioni.setVisible(!Check_Percorso(PercorsoAnalisiDB).empty());
    chkAggiornaDescrizioni.setValue(controls::Unchecked);

    NomeProgrammaPatch = applicazioneDellaPatch(PercorsoProgramma);
    elencaApplicazioni(*RsNorvi, programma_.impostazioni,
                       [this](const Applicazione& trovata) { aggiungiApplicazione(trovata); });
    if (lstDatabase.listCount() < 2) {
      txtAltroDB.setVisible(true);
      cmdSelezionaDB.setVisible(true);
    } else {
      lstDatabase.setEnabled(true);
    }
    RsNorvi->Close();
    RsNorvi = nullptr;
    setMousePointer(controls::MousePointer::Default);
  } catch (const runtime::Error&) {
    // The window stays up with what it had reached, and nothing of the reference database stays open.
    PendingError errori;
    if (RsNorvi) errori.attempt([this] { RsNorvi->Close(); });
    if (DbRiferimento) errori.attempt([this] { DbRiferimento->Close(); });
    RsNorvi = nullptr;
    DbRiferimento = nullptr;
  }
}

void frmAggMain::aggiungiApplicazione(const Applicazione& trovata) {
  if (!trovata.presente) return;
  const std::string nome = common::Maiuscolo(trovata.nome);
  lstDatabase.addItem(nome + (ModoDebug ? " (" + trovata.percorso + ")" : " "));
  if (nome == common::Maiuscolo(NomeProgrammaPatch)) lstDatabase.setListIndex(lstDatabase.listCount() - 1);
  ColNomi.push_back(trovata.nome);
  ColPercorsi.push_back(trovata.percorso);
}

std::string frmAggMain::Check_Percorso(const std::string& percorso) const {
  return console::Check_Percorso(percorso);
}

std::string frmAggMain::Check_Percorso1(const std::string& percorso) const {
  return console::Check_Percorso(percorso);
}

}  // namespace console
