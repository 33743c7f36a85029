#pragma once

#include "jet/file/page/page_file.h"

namespace jet::file {

/// Writes to `out` a compact copy of `source` (Jet 4): every table anew, nothing unused left, dropped
/// columns' places neither, definitions on their pages.
void writeCompacted(const PageFile& source, platform::File& out);

}  // namespace jet::file
