// How the window comes up: the reference database, the applications found on this computer.
#include "common/files.h"
#include "common/text.h"
#include "common/windows.h"
#include "console/frmAggMain.h"
#include "console/patch_list.h"
#include "console/pending_error.h"
#include "controls/desktop.h"
#include "platform/files.h"
#include "platform/settings.h"

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

    const std::string patch = PercorsoProgramma + "\\PatchList.txt";
    if (common::EsisteFile(patch)) NomeProgrammaPatch = nomeProgramma(platform::readWholeFile(patch));
    elencaApplicazioni();
    if (lstDatabase.listCount() < 2) {
      txtAltroDB.setVisible(true);
      cmdSelezionaDB.setVisible(true);
    } else {
      lstDatabase.setEnabled(true);
    }
    RsNorvi->Close();
    RsNorvi = nullptr;
    setMousePointer(controls::MousePointer::Default);
  } catch (const runtime::Error& errore) {
    ErroreAvvio = errore;
    // The window stays up with what it had reached, and nothing of the reference database stays open.
    PendingError errori;
    if (RsNorvi) errori.attempt([this] { RsNorvi->Close(); });
    if (DbRiferimento) errori.attempt([this] { DbRiferimento->Close(); });
    RsNorvi = nullptr;
    DbRiferimento = nullptr;
  }
}

void frmAggMain::elencaApplicazioni() {
  for (; !RsNorvi->atEnd(); RsNorvi->MoveNext()) {
    const std::string norvo = RsNorvi->value("norvo").toText();
    const std::string percorso =
        common::PercorsoInterno(programma_.impostazioni.get(norvo, "DBSECTION", "dbpath"));
    if (percorso.empty()) continue;
    if (Check_Percorso(percorso).empty()) {
      NonTrovati.emplace_back(norvo, percorso);
      continue;
    }
    const std::string nome = common::Maiuscolo(norvo);
    lstDatabase.addItem(nome + (ModoDebug ? " (" + percorso + ")" : " "));
    if (nome == common::Maiuscolo(NomeProgrammaPatch)) lstDatabase.setListIndex(lstDatabase.listCount() - 1);
    ColNomi.push_back(norvo);
    ColPercorsi.push_back(percorso);
  }
}

std::string frmAggMain::Check_Percorso(const std::string& percorso) const {
  try {
    return platform::fileExists(percorso) ? percorso : std::string();
  } catch (const runtime::Error&) {
    return {};
  }
}

std::string frmAggMain::Check_Percorso1(const std::string& percorso) const {
  return Check_Percorso(percorso);
}

}  // namespace console
