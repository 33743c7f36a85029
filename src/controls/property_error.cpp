// The error of a value that a property can't have.
#include "controls/property_error.h"

namespace controls {

runtime::Error invalidProperty(const std::string& control, const std::string& property) {
  return {380, control, "Valore non valido per la proprietà " + property + " di " + control};
}

}  // namespace controls
