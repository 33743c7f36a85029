// How a file comes to its place.
#include "common/text.h"
#include "controls/desktop.h"
#include "patcher/frmPatch.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "runtime/error.h"
#include "runtime/format.h"

namespace patcher {

void frmPatch::CopiaConAttesa(const std::string& sorgente, const std::string& destinazione, bool& riuscito) {
  constexpr float attesa = 15.0f;  // seconds: a program that is closing lets go of its files
  const float inizio = platform::clock().timer();
  for (;;) {
    CopiaFile(sorgente, destinazione, riuscito);
    controls::desktop().doEvents();
    if (riuscito || platform::clock().timer() - inizio > attesa) return;
    platform::clock().rest(20);
  }
}

void frmPatch::CopiaFile(const std::string& sorgente, const std::string& destinazione, bool& riuscito) {
  riuscito = false;
  try {
    if (common::StessoTesto(common::SenzaSpazi(destinazione), PercorsoEseguibile))
      platform::renameFile(destinazione,
                           destinazione + "." + runtime::format(platform::clock().now(), "yyyymmdd_hhnnss"));
    platform::copyFile(sorgente, destinazione);
    riuscito = true;
  } catch (const runtime::Error&) {
    // The caller tells of it, once it has waited long enough.
  }
}

}  // namespace patcher
