// Rows of a table as the bytes of their records.
#include "jet/file/write/row_encoder.h"

#include <algorithm>

#include "jet/file/errors.h"
#include "jet/file/page/put_bytes.h"

namespace jet::file {

namespace {

constexpr std::size_t LargestRecord = 4060;
constexpr std::size_t LargestInline = 64;  // a longer value always stands elsewhere
constexpr std::size_t LargestValue = (std::size_t{1} << 30) - 1;
constexpr std::size_t HeadLength = 12;  // of a long value
constexpr std::size_t CountSize = 2;    // of the column count, the slot count and each offset

std::size_t presenceLength(const TableDefinition& table) {
  return (table.maxColumns + 7u) / 8u;
}

[[noreturn]] void tooLarge(const TableDefinition& table) {
  throw jetError(RecordTooLarge, "Il record è troppo grande (tabella \"" + table.name + "\")");
}

}  // namespace

RowEncoder::RowEncoder(const TableDefinition& table,
                       const std::vector<std::unique_ptr<LongValueWriter>>& longValues)
    : table_(table), longValues_(longValues), parts_(table.variableColumns) {
  for (std::size_t i = 0; i < table.columns.size(); ++i) {
    const Column& column = table.columns[i];
    const auto wrong = [&] {
      throw damagedFile("tabella " + table.name + ": posto errato di " + column.name);
    };
    if (column.number >= table.maxColumns) wrong();
    if (column.type == ColumnType::Boolean) continue;
    if (column.fixed()) {
      fixed_.push_back(i);
      fixedLength_ = std::max<std::size_t>(fixedLength_, std::size_t{column.fixedOffset} + column.length);
    } else {
      if (column.slot >= parts_.size() || parts_[column.slot].position != Part::None) wrong();
      parts_[column.slot] = {.position = i, .longValue = isLongValue(column.type)};
    }
  }
  const std::size_t offsets = parts_.empty() ? 0 : CountSize * (parts_.size() + 2);
  overhead_ = CountSize + fixedLength_ + offsets + presenceLength(table);
  if (overhead_ > LargestRecord) tooLarge(table);
}

std::size_t RowEncoder::plan(const Row& row) {
  std::size_t length = overhead_;
  for (Part& part : parts_) {
    part.length = 0;
    part.moved = false;
    if (part.position == Part::None || row[part.position].null) continue;
    const std::size_t size = row[part.position].bytes.size();
    if (part.longValue) {
      if (size > LargestValue) tooLarge(table_);
      part.moved = size > LargestInline;
      part.length = HeadLength + (part.moved ? 0 : size);
    } else {
      part.length = size;
    }
    length += part.length;
  }
  return length <= LargestRecord ? length : shrink(length);
}

/// Moves the longest of the long values out until the record fits.
std::size_t RowEncoder::shrink(std::size_t length) {
  const auto inlineLength = [](const Part& part) {
    return part.longValue && !part.moved && part.length > HeadLength ? part.length : 0;
  };
  while (length > LargestRecord) {
    Part* longest = nullptr;
    for (Part& part : parts_)
      if (inlineLength(part) > (longest == nullptr ? 0 : longest->length)) longest = &part;
    if (longest == nullptr) tooLarge(table_);
    length -= longest->length - HeadLength;
    longest->length = HeadLength;
    longest->moved = true;
  }
  return length;
}

void RowEncoder::encode(const Row& row, std::span<std::byte> record) {
  putU16(record.data(), table_.maxColumns);
  encodeFixed(row, record);
  std::size_t at = CountSize + fixedLength_;
  if (!parts_.empty()) at = encodeVariable(row, record);
  encodePresence(row, record.subspan(at));
}

void RowEncoder::encodeFixed(const Row& row, std::span<std::byte> record) const {
  for (const std::size_t position : fixed_) {
    const FieldBytes& field = row[position];
    if (field.null) continue;
    const Column& column = table_.columns[position];
    if (field.bytes.size() > column.length)
      throw jetError(InvalidArgument, "Il valore è più lungo del campo \"" + column.name + "\" (tabella \"" +
                                          table_.name + "\")");
    const std::span<std::byte> place = record.subspan(CountSize + column.fixedOffset, column.length);
    std::ranges::copy(field.bytes, place.begin());
    // A text of fixed length is filled with blanks.
    if (column.type == ColumnType::Text)
      for (std::size_t i = field.bytes.size(); i + 1 < place.size(); i += 2) putU16(&place[i], ' ');
  }
}

/// Values in the order of their slots, then where they start, the last one first. Returns what follows.
std::size_t RowEncoder::encodeVariable(const Row& row, std::span<std::byte> record) {
  std::size_t end = CountSize + fixedLength_;
  for (const Part& part : parts_) end += part.length;
  putU16(&record[end], end);
  std::size_t offsetAt = end + CountSize * parts_.size();
  const std::size_t countAt = offsetAt + CountSize;
  putU16(&record[countAt], parts_.size());

  std::size_t at = CountSize + fixedLength_;
  for (const Part& part : parts_) {
    putU16(&record[offsetAt], at);
    offsetAt -= CountSize;
    if (part.length == 0) continue;
    std::span<std::byte> place = record.subspan(at, part.length);
    at += part.length;
    const std::span<const std::byte> value = row[part.position].bytes;
    if (part.moved) {
      longValues_[part.position]->store(value, place);
      continue;
    }
    if (part.longValue) {
      LongValueWriter::fillInlineHead(value.size(), place);
      place = place.subspan(HeadLength);
    }
    std::ranges::copy(value, place.begin());
  }
  return countAt + CountSize;
}

void RowEncoder::encodePresence(const Row& row, std::span<std::byte> presence) const {
  for (std::size_t i = 0; i < table_.columns.size(); ++i) {
    const Column& column = table_.columns[i];
    const bool set = column.type == ColumnType::Boolean
                         ? !row[i].null && !row[i].bytes.empty() && row[i].bytes[0] != std::byte{0}
                         : !row[i].null;
    if (set) presence[column.number / 8u] |= static_cast<std::byte>(1 << column.number % 8);
  }
}

}  // namespace jet::file
