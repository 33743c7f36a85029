// The running summary and its file.
#include "console/frmAggMain.h"
#include "console/pending_error.h"
#include "controls/desktop.h"
#include "platform/clock.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "runtime/format.h"

namespace console {

void frmAggMain::ScriviRiepilogo(std::string& testo, const bool& aCapo) {
  txtRiepilogo.setSelStart(txtRiepilogo.textLength());
  if (aCapo) testo.insert(0, "\r\n");
  txtRiepilogo.setSelText(testo);
  controls::desktop().doEvents();
}

void frmAggMain::SalvaRiepilogo(const controls::TextBox& casella, bool& esito) {
  esito = false;
  PendingError errori;
  errori.attempt([&] {
    const std::string ora = runtime::format(platform::clock().now(), "yymmddhhnnss ");
    platform::writeWholeFile(programma_.cartella + "\\" + programma_.nome + ora + ".log",
                             platform::toCodePage1252(casella.text() + "\r\n"));
  });
  esito = !errori.pending();
  if (!esito)
    controls::desktop().msgBox("Non è possibile salvare il file log", controls::vbOKOnly,
                               "Salvataggio riepilogo");
}

std::string frmAggMain::EstraiCartella(const runtime::Variant& percorso) {
  if (!percorso.isText()) return {};
  const std::string testo = percorso.toText();
  const std::size_t ultimo = testo.rfind('\\');
  return ultimo == std::string::npos ? std::string() : testo.substr(0, ultimo + 1);
}

std::string frmAggMain::EstraiNomeFile(const runtime::Variant& percorso) {
  if (!percorso.isText()) return {};
  const std::string testo = percorso.toText();
  return testo.substr(testo.rfind('\\') + 1);
}

}  // namespace console
