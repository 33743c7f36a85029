// A window's place on the screen and before others.
#include "common/windows.h"

#include "controls/desktop.h"
#include "controls/form.h"

namespace common {

void CentraForm(controls::Form& form) {
  form.setLeft((controls::desktop().screenWidth() - form.width()) / 2);
  form.setTop((controls::desktop().screenHeight() - form.height()) / 2);
}

}  // namespace common
