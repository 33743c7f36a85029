#pragma once

namespace controls {
class Form;
}

namespace common {

/// Puts a window into the middle of the screen.
void CentraForm(controls::Form& form);

}  // namespace common
