#pragma once

#include <cstddef>
#include <span>

#include "jet/file/page/page_output.h"
#include "jet/file/page/page_space.h"

namespace jet::file {

/// Length of an empty usage map in the shortest form.
constexpr std::size_t EmptyMapLength = 69;
constexpr std::size_t LongestSecondMap = 2000;

/// Writes page 1, the map of all pages that are free. For a large file it takes pages of `space` first, so
/// this comes last. `second` is the page's other map, carried over or all zero, at most LongestSecondMap.
void writeGlobalMap(PageSpace& space, std::span<const std::byte> second, PageOutput& out);

}  // namespace jet::file
