// What a click does to a button and to a check box.
#include "controls/button.h"

#include "controls/property_error.h"

namespace controls {

bool Button::press() {
  if (!reachable()) return false;
  click.raise();
  return true;
}

void CheckBox::setValue(int value) {
  if (value < Unchecked || value > Grayed) throw invalidProperty(name(), "Value");
  if (assign(value_, value)) click.raise();
}

bool CheckBox::toggle() {
  if (!reachable()) return false;
  setValue(value_ == Unchecked ? Checked : Unchecked);
  return true;
}

}  // namespace controls
