#pragma once

#include <memory>
#include <vector>

#include "jet/file/index/index_tree.h"
#include "jet/file/page/map_pages.h"
#include "jet/file/write/row_encoder.h"

namespace jet::file {

/// Writes one table anew: its rows and long values, then its indexes, usage maps and definition. The steps
/// are called once each, in this order. Rows stream through; only index keys and page numbers stay in memory.
class TableWriter {
 public:
  /// `definition.page` is the first definition page and kept; all other places in it are made new, `rows` and
  /// the distinct-key counters too.
  TableWriter(TableDefinition definition, PageOutput& out, TakePage take);
  TableWriter(const TableWriter&) = delete;
  TableWriter& operator=(const TableWriter&) = delete;

  /// Errors 3022 and 3058 (indexes), 3047 (record too large), and those of `rows`.
  void writeRows(RowSource& rows);
  void writeIndexes();
  void writeMaps(MapPages& maps);
  void writeDefinitionPages();

 private:
  TableDefinition table_;
  PageOutput& out_;
  TakePage take_;
  RecordPages data_;
  std::vector<std::unique_ptr<LongValueWriter>> longValues_;  // by column position
  std::vector<std::unique_ptr<IndexEntries>> entries_;        // by real index, until it is written
  std::vector<std::vector<std::uint32_t>> indexPages_;
};

}  // namespace jet::file
