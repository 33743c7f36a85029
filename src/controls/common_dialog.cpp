// The file dialog shown, and the name that it gave.
#include "controls/common_dialog.h"

#include "controls/desktop.h"

namespace controls {

bool CommonDialog::showOpen() {
  return desktop().showOpen(*this);
}

}  // namespace controls
