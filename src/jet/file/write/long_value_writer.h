#pragma once

#include <cstddef>
#include <span>

#include "jet/file/write/record_pages.h"

namespace jet::file {

/// Writes the Memo or OLE values of one column that don't stand in their rows.
class LongValueWriter {
 public:
  LongValueWriter(PageOutput& out, TakePage take);

  /// Writes `value` (1 to 2^30 - 1 bytes) and fills `head`, the bytes in the row that stand for it.
  void store(std::span<const std::byte> value, std::span<std::byte> head);
  void finish() { records_.finish(); }
  const RecordPages& pages() const { return records_; }

  /// Fills the head of a value that stands in the row behind it.
  static void fillInlineHead(std::size_t length, std::span<std::byte> head);

 private:
  RowPointer storeChain(std::span<const std::byte> value);

  RecordPages records_;
  std::vector<std::byte> scratch_;
};

}  // namespace jet::file
