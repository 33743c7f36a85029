// Names with the time in them, and the copy that waits for a free one.
#include "console/copies.h"

#include "controls/desktop.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "runtime/format.h"

namespace console {

std::string EstraiCartella(const runtime::Variant& percorso) {
  if (!percorso.isText()) return {};
  const std::string testo = percorso.toText();
  const std::size_t ultimo = testo.rfind('\\');
  return ultimo == std::string::npos ? std::string() : testo.substr(0, ultimo + 1);
}

std::string EstraiNomeFile(const runtime::Variant& percorso) {
  if (!percorso.isText()) return {};
  const std::string testo = percorso.toText();
  return testo.substr(testo.rfind('\\') + 1);
}

std::string oraPerNomi() {
  return runtime::format(platform::clock().now(), "yyyymmddhhnnss");
}

std::string copiaConOra(const std::string& percorso, const std::string& nome, std::string ora) {
  for (;;) {
    const std::string copia = EstraiCartella(percorso) + nome + ora + ".mdb";
    try {
      platform::copyToNewFile(percorso, copia);
      return copia;
    } catch (const platform::DiskError& errore) {
      // Another run in this folder has begun in the same second.
      if (errore.fault() != platform::DiskFault::Exists) throw;
    }
    for (const std::string presa = ora; ora == presa; ora = oraPerNomi()) {
      controls::desktop().doEvents();
      platform::clock().rest(20);
    }
  }
}

}  // namespace console
