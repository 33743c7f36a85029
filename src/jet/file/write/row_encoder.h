#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <vector>

#include "jet/file/row.h"
#include "jet/file/write/long_value_writer.h"

namespace jet::file {

/// Turns the rows of one table into the bytes of their records. For each row: plan(), then encode().
class RowEncoder {
 public:
  /// `longValues` has a writer at the position of each Memo and OLE column; all must outlive this. Error 3343
  /// for columns that don't fit the table's own counts.
  RowEncoder(const TableDefinition& table, const std::vector<std::unique_ptr<LongValueWriter>>& longValues);

  /// Length of the row's record, long values moved out of it until it fits. Error 3047 if it never does.
  std::size_t plan(const Row& row);
  /// Fills `record`, which is zero and as long as plan() said, and writes the long values moved out.
  void encode(const Row& row, std::span<std::byte> record);

 private:
  struct Part {  // a variable column, or a slot that none has
    static constexpr std::size_t None = static_cast<std::size_t>(-1);
    std::size_t position = None;
    bool longValue = false;
    bool moved = false;      // long value that stands elsewhere
    std::size_t length = 0;  // in the record
  };

  std::size_t shrink(std::size_t length);
  void encodeFixed(const Row& row, std::span<std::byte> record) const;
  std::size_t encodeVariable(const Row& row, std::span<std::byte> record);
  void encodePresence(const Row& row, std::span<std::byte> presence) const;

  const TableDefinition& table_;
  const std::vector<std::unique_ptr<LongValueWriter>>& longValues_;
  std::vector<std::size_t> fixed_;  // positions of the columns in the fixed part
  std::vector<Part> parts_;         // by slot
  std::size_t fixedLength_ = 0;
  std::size_t overhead_ = 0;  // of a record without variable values
};

}  // namespace jet::file
