#pragma once

#include "runtime/variant.h"

namespace platform {

/// The wall clock. Tests put one of their own in its place.
class Clock {
 public:
  virtual ~Clock() = default;
  /// Local date and time, with seconds.
  virtual runtime::Date now();
  /// Seconds since local midnight, as the language's Timer gives them: single precision.
  virtual float timer();
  /// Lets `milliseconds` pass; waits that spin on the event pump call it between two rounds.
  virtual void rest(int milliseconds);
};

/// The clock in force.
Clock& clock();
/// Puts `replacement` in force (nullptr: the system's) and returns the one before.
Clock* setClock(Clock* replacement);

}  // namespace platform
