#pragma once

#include <cstdint>
#include <memory>

#include "jet/file/page/page_file.h"
#include "jet/file/page/usage_map.h"
#include "jet/file/row.h"

namespace jet::file {

/// The live rows of a table in the order of pages and row numbers, overflow records followed, each page read
/// once. The definition must outlive the reader. Damage is error 3343 that names page and table.
class TableReader : public RowSource {
 public:
  /// `longValues` false leaves Memo and OLE fields as their 12-byte heads and the data behind them.
  TableReader(const PageFile& file, const TableDefinition& definition, bool longValues = true);
  /// Fills only the columns at the given positions; the others stay null and cost nothing.
  TableReader(const PageFile& file, const TableDefinition& definition, const std::vector<std::size_t>& wanted,
              bool longValues = true);
  ~TableReader() override;
  bool next(Row& row) override;
  /// Where the last row given lies (its stub, if it has moved).
  RowPointer pointer() const;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace jet::file
