#pragma once

#include <vector>

#include "jet/file/definition.h"

namespace jet::file {

/// Puts the indexes of all user tables into the order of tables that never lost one: first the real indexes
/// that are the table's own, then those that only relations use; logical ones are numbered without gaps,
/// after their real index where they can be, on both sides of each relation. Other readers of the format take
/// the one number for the other.
void renumberIndexes(std::vector<TableDefinition>& tables);

}  // namespace jet::file
