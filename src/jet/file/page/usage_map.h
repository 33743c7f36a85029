#pragma once

#include <cstdint>
#include <vector>

#include "jet/file/definition.h"
#include "jet/file/page/page_file.h"

namespace jet::file {

/// What pages behind the end of the file are in a usage map: damage, or (global map) left out.
enum class PagesOutside { Damage, Ignored };

/// Page numbers of a usage map, ascending; none for a null pointer. Error 3343 if the map is damaged.
std::vector<std::uint32_t> readUsageMap(const PageFile& file, RowPointer map,
                                        PagesOutside outside = PagesOutside::Damage);

}  // namespace jet::file
