// The bytes of a row split into the values of its columns.
#include "jet/file/read/record.h"

#include <algorithm>

#include "jet/file/page/bytes.h"

namespace jet::file {

namespace {

// A row written while its table had no variable column has no offset table. It is told by its column count:
// it knows none of the variable columns. Where the column of slot 0 is gone, every row is taken to have the
// table.
std::size_t firstVariableColumn(const TableDefinition& table) {
  std::size_t first = SIZE_MAX;
  bool firstSlotSeen = false;
  for (const Column& column : table.columns) {
    if (column.fixed() || column.type == ColumnType::Boolean) continue;
    first = std::min<std::size_t>(first, column.number);
    firstSlotSeen = firstSlotSeen || column.slot == 0;
  }
  return table.variableColumns == 0 || firstSlotSeen ? first : 0;
}

}  // namespace

Record::Record(const Format& format, const TableDefinition& table)
    : format_(format),
      maxColumns_(table.maxColumns),
      variableColumns_(table.variableColumns),
      firstVariable_(firstVariableColumn(table)) {}

const char* Record::set(std::span<const std::byte> bytes) {
  bytes_ = bytes;
  if (bytes.size() < format_.columnCountSize + 1) return "record troppo corto";
  columns_ = format_.columnCountSize == 1 ? std::to_integer<std::size_t>(bytes[0]) : readU16(bytes.data());
  if (columns_ > maxColumns_) return "record con troppe colonne";
  const std::size_t presenceLength = (columns_ + 7) / 8;
  if (format_.columnCountSize + presenceLength > bytes.size()) return "record troppo corto";
  const std::size_t presenceAt = bytes.size() - presenceLength;
  presence_ = bytes.subspan(presenceAt);
  offsets_.clear();
  fixedEnd_ = presenceAt;
  if (!hasVariablePart()) return nullptr;
  const bool read = format_.offsetJumps ? readOffsetsWithJumps(presenceAt) : readOffsets(presenceAt);
  if (!read) return "tabella delle posizioni errata";
  fixedEnd_ = offsets_.front();
  return nullptr;
}

bool Record::readOffsets(std::size_t presenceAt) {
  const std::size_t least = format_.columnCountSize;
  if (presenceAt < least + 4) return false;
  const std::size_t countAt = presenceAt - 2;
  const std::size_t count = readU16(&bytes_[countAt]);
  if (count > variableColumns_ || 2 * (count + 1) > countAt - least) return false;
  const std::size_t tableAt = countAt - 2 * (count + 1);
  offsets_.resize(count + 1);
  for (std::size_t i = 0; i <= count; ++i) offsets_[i] = readU16(&bytes_[countAt - 2 * (i + 1)]);
  return checkOffsets(tableAt);
}

bool Record::readOffsetsWithJumps(std::size_t presenceAt) {
  const std::size_t jumpBytes = (bytes_.size() - 1) / 256;
  const std::size_t least = format_.columnCountSize;
  if (presenceAt < least + 2 + jumpBytes) return false;
  const std::size_t countAt = presenceAt - 1;
  const std::size_t count = std::to_integer<std::size_t>(bytes_[countAt]);
  const std::size_t tableEnd = countAt - jumpBytes;
  if (count > variableColumns_ || count + 1 > tableEnd - least) return false;
  // The last jump is a dummy where the offset table itself doesn't reach past the next 256.
  const std::size_t jumps = (tableEnd - count) / 256 < jumpBytes ? jumpBytes - 1 : jumpBytes;
  offsets_.resize(count + 1);
  std::size_t passed = 0;
  for (std::size_t i = 0; i <= count; ++i) {
    while (passed < jumps && i == std::to_integer<std::size_t>(bytes_[countAt - 1 - passed])) ++passed;
    offsets_[i] =
        static_cast<std::uint16_t>(std::to_integer<std::size_t>(bytes_[tableEnd - 1 - i]) + 256 * passed);
  }
  return checkOffsets(tableEnd - count - 1);
}

bool Record::checkOffsets(std::size_t tableAt) const {
  return offsets_.front() >= format_.columnCountSize && offsets_.back() <= tableAt &&
         std::ranges::is_sorted(offsets_);
}

bool Record::value(const Column& column, std::span<const std::byte>& out) const {
  if (column.fixed()) {
    const std::size_t start = format_.columnCountSize + column.fixedOffset;
    if (start + column.length > fixedEnd_) return false;
    out = bytes_.subspan(start, column.length);
    return true;
  }
  if (column.slot + std::size_t{1} >= offsets_.size()) return false;
  const std::size_t start = offsets_[column.slot];
  out = bytes_.subspan(start, offsets_[column.slot + std::size_t{1}] - start);
  return true;
}

}  // namespace jet::file
