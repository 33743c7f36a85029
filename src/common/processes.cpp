// Child processes waited for with the window alive.
#include "common/processes.h"

#include <optional>

#include "controls/desktop.h"
#include "controls/form.h"
#include "platform/clock.h"
#include "platform/process.h"
#include "runtime/error.h"

namespace common {
namespace {

/// Lets events run until the timer has reached what is waited for.
template <class Passato>
void attendi(Passato passato) {
  while (!passato(platform::clock().timer())) {
    controls::desktop().doEvents();
    platform::clock().rest(20);
  }
}

std::optional<platform::Process> avvia(const std::string& comando, std::int32_t stile) {
  try {
    return std::optional<platform::Process>(std::in_place, comando, stile);
  } catch (const runtime::Error&) {
    return std::nullopt;
  }
}

}  // namespace

void Pausa(std::int32_t secondi) {
  const float inizio = platform::clock().timer();
  attendi([&](float ora) { return inizio + static_cast<float>(secondi) < ora; });
}

void EseguiEAttendi(const std::string& comando, std::int32_t stile) {
  std::optional<platform::Process> figlio = avvia(comando, stile);
  if (!figlio) return;
  controls::desktop().doEvents();
  do {
    // As Pausa(1), but a midnight in between must not hide the child's end until the next one.
    const float inizio = platform::clock().timer();
    attendi([&](float ora) { return inizio + 1 < ora || ora < inizio; });
  } while (figlio->running());
  controls::desktop().setMousePointer(controls::MousePointer::Default);
}

void FinestraInPrimoPiano(std::int32_t finestra, bool attivo) {
  if (controls::Form* form = controls::Form::withHandle(finestra))
    controls::desktop().keepOnTop(*form, attivo);
}

void FinestraInPrimoPiano(const controls::Form& finestra, bool attivo) {
  FinestraInPrimoPiano(finestra.hwnd(), attivo);
}

}  // namespace common
