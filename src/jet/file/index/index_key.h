#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "jet/file/page/format.h"
#include "jet/file/row.h"

namespace jet::file {

/// Appends the key of one index column (flag byte and value) for a field in file form of Jet 4. Error 3001
/// for a type that has no order (OLE) or a text column whose sort order isn't General.
void appendKey(const Format& format, const Column& column, const FieldBytes& field, bool ascending,
               std::vector<std::byte>& key);

/// Makes the keys of one index of a table; both must outlive it.
class IndexKeys {
 public:
  /// Error 3343 if the index names a column that the table doesn't have.
  IndexKeys(const Format& format, const TableDefinition& table, const RealIndex& index);
  /// Appends the whole key of `row`; returns how many of the index's columns are null.
  std::size_t append(const Row& row, std::vector<std::byte>& key) const;
  std::size_t columnCount() const { return columns_.size(); }

 private:
  struct Part {
    std::size_t position;  // in TableDefinition::columns
    bool ascending;
  };
  const Format& format_;
  const TableDefinition& table_;
  std::vector<Part> columns_;
};

/// Whole key of `row` for an index; `nulls` tells how many of its columns are null.
void indexKey(const Format& format, const TableDefinition& table, const RealIndex& index, const Row& row,
              std::vector<std::byte>& key, std::size_t& nulls);

}  // namespace jet::file
