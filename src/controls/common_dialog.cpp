// The file dialog shown, and the name that it gave.
#include "controls/common_dialog.h"

#include "controls/desktop.h"
#include "runtime/error.h"

namespace controls {

bool CommonDialog::showOpen() {
  if (desktop().showOpen(*this)) return true;
  if (cancelError_) throw runtime::Error(Cancelled, name(), "Scelta del file annullata");
  return false;
}

}  // namespace controls
