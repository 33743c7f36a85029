#pragma once

#include "platform/files.h"

namespace jet::file {

/// Writes to `out` the empty Jet 4 database: header, four system tables, three containers.
void writeEmptyDatabase(platform::File& out);

}  // namespace jet::file
