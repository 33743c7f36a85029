#pragma once

#include <cstdint>
#include <vector>

#include "jet/file/page/page_file.h"
#include "jet/file/page/page_space.h"
#include "jet/file/read/table_reader.h"

namespace jet::file {

/// Pages that belong to one table.
struct TablePages {
  std::vector<RowPointer> maps;        // its usage maps; their pages may be shared with other tables
  std::vector<std::uint32_t> content;  // rows, long values, indexes, and bits of usage maps
};
TablePages findPages(const PageFile& file, const TableDefinition& table);

/// Definitions of all tables in the file: the four first ones and those of the catalogue, by page.
std::vector<TableDefinition> readTables(const PageFile& file);

/// Error 3041 for a file of a version that is only read.
void requireWritableFormat(const PageFile& file);

/// Pages that the file's global usage map calls used.
PageSpace readGlobalMap(const PageFile& file);

/// Pages with the bits of a usage map by reference, none for any other map.
std::vector<std::uint32_t> mapBitPages(const PageFile& file, RowPointer map);

constexpr RowPointer GlobalMap{1, 0}, SecondGlobalMap{1, 1};

}  // namespace jet::file
