// An entry's properties and its click.
#include "controls/menu_item.h"

namespace controls {

bool MenuItem::choose() {
  if (!reachable() || separator()) return false;
  click.raise();
  return true;
}

}  // namespace controls
