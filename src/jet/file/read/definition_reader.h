#pragma once

#include <cstdint>
#include <string>

#include "jet/file/definition.h"
#include "jet/file/page/page_file.h"

namespace jet::file {

/// Definition whose first page is `page`. `name` goes into it and into error messages. Error 3343 that names
/// page and table.
TableDefinition readDefinition(const PageFile& file, std::uint32_t page, std::string name);

}  // namespace jet::file
