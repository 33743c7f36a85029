// The clean-up of the list of municipalities before a run.
#pragma once

#include "schema/ambiente.h"

namespace console {

/// Removes rows of the target's italia_comuni that agree in ISTAT, Comune and PROVINCIA, the earliest
/// DataFine first. False after an error, which is told and held back: the run goes on from it.
bool EliminaComuniDuplicati(const schema::Ambiente& ambiente);

}  // namespace console
