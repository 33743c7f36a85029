// Errors that no procedure traps, in a box.
#include "qt/guard.h"

#include "controls/desktop.h"
#include "runtime/error.h"

namespace qt {

void guarded(const std::function<void()>& action) {
  std::string text;
  try {
    action();
    return;
  } catch (const controls::ProgramEnded&) {
    return;  // the event loop ends next
  } catch (const runtime::Error& error) {
    text = "Errore di esecuzione " + std::to_string(error.number()) + ":\r\n" + error.description();
  } catch (const std::exception& error) {
    text = std::string("Errore imprevisto:\r\n") + error.what();
  }
  controls::desktop().msgBox(text, controls::vbCritical);
}

}  // namespace qt
