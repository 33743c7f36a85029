// What the phases would change.
#pragma once

#include <string>
#include <vector>

#include "schema/ambiente.h"

namespace schema {

/// What the phases do to a target.
struct Piano {
  std::vector<std::string> modifiche;  // in the words of the summary, one a change
  std::vector<std::string> errori;     // what a phase says of an error that it passes over
};

/// Lets all phases loose on the target and tells what changed; `ambiente.scrivi` isn't called. The changes
/// stay in `ambiente.destinazione`, which the caller doesn't save. A query counts if its text changes, a
/// table of contents if its rows do, whatever their order. Throws where the run would end: the last change
/// told is then the one that fails.
void prevedi(const Ambiente& ambiente, Piano& piano);

}  // namespace schema
