#pragma once

#include <cstdint>
#include <vector>

#include "jet/file/definition.h"

namespace jet::file {

/// One of the four tables that every database has, as the engine makes it.
struct FirstTable {
  TableDefinition definition;
  std::vector<std::uint32_t> contentPages;  // in an empty database: of its rows, then of its indexes
};

/// Catalogue, permissions, queries, relationships.
std::vector<FirstTable> firstTables();

}  // namespace jet::file
