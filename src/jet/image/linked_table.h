#pragma once

#include <cstdint>
#include <string>

#include "jet/file/definition.h"
#include "jet/file/errors.h"
#include "jet/file/page/page_file.h"

namespace jet::image {

/// What the catalogue tells of a table that lies in another file.
struct Link {
  std::string path;         // of the other file
  std::string sourceTable;  // the table's name there
  std::string connect;      // kind of source; empty: a Jet file
};

/// A table of another file, as it was found when last looked at.
struct LinkedTable {
  std::string path;
  std::uint64_t size = 0;  // of the file, with the next: to see that it is still the same
  std::int64_t modified = 0;
  file::TableDefinition source;  // as the other file has it
};

/// Opens the file that a link leads to, read-only and shared, only as long as it is read.
file::PageFile openLinked(const std::string& path);
/// Looks a table up in another file. Errors as PageFile, 3011 if there is no such table.
LinkedTable findLinked(const std::string& path, const std::string& table);
/// True while the file is as it was when `known` was found.
bool unchanged(const LinkedTable& known);

}  // namespace jet::image
