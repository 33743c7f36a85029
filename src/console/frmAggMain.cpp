// How the window is made, comes and goes.
#include "console/frmAggMain.h"

#include "common/text.h"
#include "controls/desktop.h"
#include "platform/settings.h"

namespace console {

frmAggMain::frmAggMain(Programma programma)
    : Form("frmAggMain", "Aggiornamento Database Norvo"), programma_(std::move(programma)) {
  definisciControlli();
  collegaEventi();
  Form_Initialize();
}

frmAggMain::~frmAggMain() = default;

void frmAggMain::definisciControlli() {
  controls::Control* const inOrder[] = {
      &cmdDlg,     &chkAltroDatabase,       &cmdSelezionaDB, &txtAltroDB,  &cmdEsci,
      &Timer1,     &chkAggiornaDescrizioni, &txtRiepilogo,   &cmdAggiorna, &lstDatabase,
      &lblDatabase};
  for (controls::Control* control : inOrder) add(*control);
  addMenu(mnuFile);
  for (controls::MenuItem* item : {&mnuFileAggiorna, &mnuFileSep1, &mnuFileEsci}) mnuFile.add(*item);

  // The label before its list, so that its letter leads there; the summary last.
  controls::Control* const byTab[] = {&lblDatabase,    &lstDatabase,      &txtAltroDB,
                                      &cmdSelezionaDB, &chkAltroDatabase, &chkAggiornaDescrizioni,
                                      &cmdAggiorna,    &cmdEsci,          &txtRiepilogo};
  int tab = 0;
  for (controls::Control* control : byTab) control->setTabIndex(tab++);

  txtAltroDB.setDropTarget(true);
  txtRiepilogo.setMultiLine(true);
  txtRiepilogo.setLocked(true);
  // Without a reference database loading stops early: what only a complete loading offers begins hidden or
  // disabled.
  abilitaAggiorna(false);
  lstDatabase.setEnabled(false);
  controls::Control* const hidden[] = {&chkAltroDatabase, &txtAltroDB, &cmdSelezionaDB,
                                       &chkAggiornaDescrizioni};
  for (controls::Control* control : hidden) control->setVisible(false);
}

void frmAggMain::collegaEventi() {
  loading.connect([this] { Form_Load(); });
  unloading.connect([this] { Form_Unload(); });
  chkAltroDatabase.click.connect([this] { chkAltroDatabase_Click(); });
  cmdSelezionaDB.click.connect([this] { cmdSelezionaDB_Click(); });
  txtAltroDB.oleDragDrop.connect([this](const controls::DropData& dati) { txtAltroDB_OLEDragDrop(dati); });
  cmdEsci.click.connect([this] { cmdEsci_Click(); });
  Timer1.timer.connect([this] { Timer1_Timer(); });
  cmdAggiorna.click.connect([this] { cmdAggiorna_Click(); });
  lstDatabase.click.connect([this] { lstDatabase_Click(); });
  lstDatabase.dblClick.connect([this] { lstDatabase_DblClick(); });
  mnuFileAggiorna.click.connect([this] { mnuFileAggiorna_Click(); });
  mnuFileEsci.click.connect([this] { mnuFileEsci_Click(); });
}

void frmAggMain::Form_Initialize() {
  ModoDebug = common::StessoTesto(impostazione("DEBUG"), "KEP");
  Ws = jet::dao::DBEngine::Workspaces(0);
  PercorsoProgramma = programma_.cartella;
  PercorsoRiferimento = PercorsoProgramma + "\\AggNorvo.mdb";
}

void frmAggMain::Form_Unload() {
  corsa_ = nullptr;  // only one that an unforeseen error has broken off is still there
  try {
    if (Ws) Ws->Close();
  } catch (const runtime::Error&) {
    // The window goes in any case, and an open transaction ends with the workspace.
  }
  Ws = nullptr;
  DbRiferimento = nullptr;
}

void frmAggMain::Path(const std::string& cartella) {
  PercorsoProgramma = cartella;
  PercorsoRiferimento = PercorsoProgramma + "\\AggNorvo.mdb";
  PathImpostato = true;
  mnuFile.setVisible(false);
}

void frmAggMain::cmdEsci_Click() {
  uscitaRichiesta_ = busy();
  if (!uscitaRichiesta_) congedo();
  unload();
}

void frmAggMain::congedo() {
  try {
    if (AggiornamentoEseguito) {
      programma_.mostraPatch(PercorsoProgramma);
    } else {
      controls::desktop().msgBox(
          "Non è stato eseguito nessun aggiornamento al database. Operazione annullata!",
          controls::vbExclamation);
    }
  } catch (const runtime::Error&) {
    // The way out stays open.
  }
}

void frmAggMain::mnuFileEsci_Click() {
  cmdEsci_Click();
}

void frmAggMain::Timer1_Timer() {
  // The window of another task can't be brought forward here, which is the error that ends the waiting.
  Timer1.setEnabled(false);
  unload();
}

std::string frmAggMain::impostazione(const std::string& chiave) const {
  return programma_.impostazioni.get(programma_.nome, "DU", chiave);
}

}  // namespace console
