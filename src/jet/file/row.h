#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "jet/file/definition.h"

/// Rows on their way between file, image and writer.
namespace jet::file {

/// One field of a row, in file form: numbers little endian; a Boolean one byte 0 or 1, never null; Text and
/// Memo as stored (UTF-16LE, or compressed behind FF FE; Jet 3: code page bytes); OLE, Binary and Raw their
/// bytes; Guid 16 and Numeric 17 bytes as the format has them. Points into a buffer of whoever made the row.
struct FieldBytes {
  bool null = true;
  std::span<const std::byte> bytes;
};

/// Fields in the order of TableDefinition::columns.
using Row = std::vector<FieldBytes>;

/// A sequence of rows, read once from first to last.
class RowSource {
 public:
  virtual ~RowSource() = default;
  /// Fills `row` with the next row, long values whole; false behind the last. The fields stay valid until the
  /// next call.
  virtual bool next(Row& row) = 0;
};

}  // namespace jet::file
