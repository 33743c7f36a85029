#pragma once

#include <cstdint>
#include <vector>

#include "jet/file/index/index_entries.h"
#include "jet/file/page/page_output.h"

namespace jet::file {

/// Where an index lies in the file.
struct IndexTree {
  std::uint32_t root = 0;
  std::vector<std::uint32_t> pages;
};

/// Writes the tree of sorted entries: full leaves from left to right and the nodes above them. `owner` is the
/// definition page of the index's table.
IndexTree writeIndexTree(const IndexEntries& entries, std::uint32_t owner, PageOutput& out,
                         const TakePage& take);

}  // namespace jet::file
