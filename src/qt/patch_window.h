#pragma once

#include "qt/form_window.h"

namespace qt {

/// The window of the file patch: what the list says of itself above, the running report, the commands below.
/// Looks its controls up in the form by name; error 5 if one is missing.
class PatchWindow : public FormWindow {
 public:
  explicit PatchWindow(controls::Form& form);
};

}  // namespace qt
