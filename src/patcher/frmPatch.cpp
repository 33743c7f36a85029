// The window's controls and events, and what it does when it loads.
#include "patcher/frmPatch.h"

namespace patcher {

frmPatch::frmPatch() : Form("frmPatch", "Patch") {
  for (controls::Control* control : std::initializer_list<controls::Control*>{&txt, &cmd, &cmdEsci, &lblTop})
    add(*control);
  int tab = 0;
  for (controls::Control* control : std::initializer_list<controls::Control*>{&cmd, &cmdEsci, &txt, &lblTop})
    control->setTabIndex(tab++);
  txt.setMultiLine(true);
  txt.setLocked(true);
  loading.connect([this] { Form_Load(); });
  cmd.click.connect([this] { cmd_Click(); });
  cmdEsci.click.connect([this] { cmdEsci_Click(); });
}

frmPatch::~frmPatch() = default;

void frmPatch::Path(const std::string& cartella) {
  path_ = cartella;
}

void frmPatch::Form_Load() {
  GetKeys();
  GetPaths();
}

void frmPatch::cmdEsci_Click() {
  ArrestoRichiesto = true;
  if (cmd.enabled()) unload();
}

void frmPatch::ScriviTesto(const std::string& testo) {
  txt.setSelStart(txt.textLength());
  txt.setSelText(testo);
}

}  // namespace patcher
