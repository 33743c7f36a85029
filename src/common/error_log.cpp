// Records of error.log, their box, and the unattended log.
#include "common/error_log.h"

#include "common/globale.h"
#include "common/text.h"
#include "controls/desktop.h"
#include "platform/clock.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "runtime/format.h"
#include "runtime/text.h"

namespace common {
namespace {

constexpr char ACapo[] = "\r\n";

/// The lines that both the file and the box have.
std::string righeErrore(const runtime::Error& errore) {
  return "Errore N° " + std::to_string(errore.number()) + ACapo + "Sorgente: " + errore.source() + ACapo +
         "Descrizione: " + errore.description();
}

std::string testo(const runtime::Variant& valore) {
  return valore.isNull() ? std::string() : SenzaSpazi(valore.toText());
}

}  // namespace

void GestisciErrore(const runtime::Error& errore, const std::string& procedura, bool fatale,
                    const std::string& messaggio) {
  if (errore.number() == 0) return;
  const runtime::Date ora = platform::clock().now();
  const std::string righe = righeErrore(errore);
  const std::string voce = "Procedura: " + procedura + ACapo + "Data: " + runtime::format(ora, "Short Date") +
                           ACapo + "Ora: " + runtime::format(ora, "Long Time") + ACapo + righe + ACapo +
                           ACapo;
  try {
    platform::appendToFile(DirProgramma + "\\error.log", platform::toCodePage1252(voce));
  } catch (runtime::Error& guasto) {
    guasto.addPlace(procedura + ": " + (messaggio.empty() ? "" : messaggio + ": ") + "errore " +
                    std::to_string(errore.number()) + ": " + errore.description());
    throw;
  }

  auto& desktop = controls::desktop();
  desktop.msgBox(procedura + ACapo + (messaggio.empty() ? "" : messaggio + ACapo) + righe,
                 controls::vbExclamation);
  if (fatale) {
    desktop.msgBox(std::string("Errore irreversibile.") + ACapo + "Il programma verrà terminato.",
                   controls::vbCritical);
    desktop.endProgram();
    throw controls::ProgramEnded{};
  }
  desktop.setMousePointer(controls::MousePointer::Default);
}

void ScriviLogAggiornamenti(const std::string& messaggio, std::int32_t stile) {
  if (!ModoAutomatico) {
    controls::desktop().msgBox(messaggio, stile);
    return;
  }
  const auto db = runtime::inStr(1, runtime::lowerCase(PercorsoLog), "\\db");
  if (db == 0) return;
  const std::string cartella(runtime::left(PercorsoLog, db - 1));
  const std::string voce =
      runtime::format(platform::clock().now(), "dd/mm/yy hh:nn") + " - " + messaggio + ACapo;
  try {
    platform::appendToFile(cartella + "\\AggiornamentiAutomaticiLog.txt",
                           platform::toCodePage1252(voce + ACapo));
  } catch (const runtime::Error&) {
    // Nobody is there to be told.
  }
  LogAutomatico += voce + ACapo;
}

std::string DescriviVariazione(const std::string& etichetta, const runtime::Variant& vecchio,
                               const runtime::Variant& nuovo, const runtime::Variant& sempreRiga,
                               bool aCapo) {
  const std::string prima = testo(vecchio), dopo = testo(nuovo);
  std::string riga;
  if (prima != dopo)
    riga = etichetta + ": sostituito [" + prima + "] con [" + dopo + "]";
  else if (!sempreRiga.isNull() && sempreRiga.toBoolean())
    riga = etichetta + ": invariato [" + dopo + "]";
  else
    return {};
  return aCapo ? riga + ACapo : riga;
}

}  // namespace common
