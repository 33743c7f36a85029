// How a file comes to its place.
#include "common/text.h"
#include "controls/desktop.h"
#include "patcher/frmPatch.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "runtime/error.h"
#include "runtime/format.h"

namespace patcher {
namespace {

/// The file that a path names through all its links, whether or not it is there.
std::string percorsoReale(const std::string& percorso) {
  return platform::realPath(platform::followLinks(percorso));
}

}  // namespace

void frmPatch::CopiaConAttesa(const std::string& sorgente, const std::string& destinazione, bool& riuscito) {
  constexpr float attesa = 15.0f;  // seconds: a program that is closing lets go of its files
  constexpr float giorno = 86400.0f;
  const float inizio = platform::clock().timer();
  const auto passati = [&] {
    const float ora = platform::clock().timer();
    return ora - inizio + (SenzaOperatore && ora < inizio ? giorno : 0);
  };
  for (;;) {
    CopiaFile(sorgente, destinazione, riuscito);
    controls::desktop().doEvents();
    if (riuscito || passati() > attesa) return;
    platform::clock().rest(20);
  }
}

void frmPatch::CopiaFile(const std::string& sorgente, const std::string& destinazione, bool& riuscito) {
  riuscito = false;
  try {
    std::string posto = destinazione;
    const std::string reale = percorsoReale(common::SenzaSpazi(destinazione));
    if (common::StessoTesto(reale, percorsoReale(PercorsoEseguibile))) {
      posto = reale;
      platform::renameFile(posto, posto + "." + runtime::format(platform::clock().now(), "yyyymmdd_hhnnss"));
    }
    platform::copyFile(sorgente, posto);
    riuscito = true;
  } catch (const runtime::Error&) {
    // The caller tells of it, once it has waited long enough.
  }
}

}  // namespace patcher
