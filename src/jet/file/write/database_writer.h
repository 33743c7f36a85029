#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "jet/file/page/page_file.h"
#include "jet/file/page/page_space.h"
#include "jet/file/row.h"

namespace jet::file {

/// A table that the new file holds otherwise than the old one.
struct TableChange {
  /// As it must become. Usage maps, roots, distinct-key counters and the row count are the writer's business;
  /// autoNumber is the caller's.
  TableDefinition definition;
  /// Its rows, written anew with all indexes and long values; the definition's columns give the order of the
  /// fields. Empty: rows and indexes stay where they are and only the definition is written; but where an
  /// index has been added or changed, the rows are taken from the old file (new columns null) and written
  /// anew.
  std::unique_ptr<RowSource> rows;
};

/// What differs between an open file and the one to write.
struct Changes {
  std::vector<TableChange> tables;
  std::vector<std::uint32_t> dropped;  // definition pages of tables that go
};

/// Writes to `out` the whole file that `source` (Jet 4) becomes with `changes`: pages of untouched tables are
/// carried over as they are, every definition's first page keeps its number. A unique or required index that
/// the rows violate is error 3022 or 3058, a row that doesn't fit 3047; space 3026, I/O 3043.
void writeChanged(const PageFile& source, Changes changes, platform::File& out);

/// Pages that new definitions may take: lowest first, neither used in the file nor given out before.
class FreePages {
 public:
  explicit FreePages(const PageFile& source);
  std::uint32_t take();

 private:
  PageSpace space_;
};

}  // namespace jet::file
