// The summary's box, and its file.
#include "console/summary.h"

#include "controls/desktop.h"
#include "platform/clock.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "runtime/error.h"
#include "runtime/format.h"

namespace console {

void ScriviRiepilogo(controls::TextBox& casella, std::string& testo, const bool& aCapo) {
  casella.setSelStart(casella.textLength());
  if (aCapo) testo.insert(0, "\r\n");
  casella.setSelText(testo);
  controls::desktop().doEvents();
}

bool SalvaRiepilogo(const controls::TextBox& casella, const std::string& cartella,
                    const std::string& programma) {
  try {
    const std::string ora = runtime::format(platform::clock().now(), "yymmddhhnnss ");
    platform::writeWholeFile(cartella + "\\" + programma + ora + ".log",
                             platform::toCodePage1252(casella.text() + "\r\n"));
    return true;
  } catch (const runtime::Error&) {
    controls::desktop().msgBox("Non è possibile salvare il file log", controls::vbOKOnly,
                               "Salvataggio riepilogo");
    return false;
  }
}

}  // namespace console
