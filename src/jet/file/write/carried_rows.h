#pragma once

#include <optional>
#include <vector>

#include "jet/file/read/table_reader.h"

namespace jet::file {

/// Rows of a table of the old file in the columns that it has in the new one, matched by number: columns that
/// are new are null (Boolean: false). Error 3001 if a column has changed its type.
class CarriedRows : public RowSource {
 public:
  /// Both definitions must outlive this.
  CarriedRows(const PageFile& source, const TableDefinition& before, const TableDefinition& after);
  bool next(Row& row) override;

 private:
  TableReader reader_;
  std::vector<std::optional<std::size_t>> from_;  // position in the old row for each new column
  Row empty_;                                     // what columns without such a position hold
  Row old_;
};

}  // namespace jet::file
