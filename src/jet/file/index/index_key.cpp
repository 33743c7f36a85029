// Keys of index entries from the fields of a row.
#include "jet/file/index/index_key.h"

#include <algorithm>
#include <array>
#include <string>

#include "jet/file/errors.h"
#include "jet/file/page/bytes.h"
#include "jet/file/text/text_key.h"

namespace jet::file {

namespace {

using Bytes = std::vector<std::byte>;
using Value = std::span<const std::byte>;

constexpr std::byte AscendingFlag{0x7F}, DescendingFlag{0x80}, AscendingNull{0x00}, DescendingNull{0xFF};
constexpr std::byte TopBit{0x80};
constexpr std::size_t KeyCharacters = 255;  // of a text; the rest doesn't count
constexpr std::size_t BlockSize = 8;        // of binary values
constexpr std::byte MoreBlocks{9};
constexpr unsigned GeneralOrderNumber = 1033;

void invert(Bytes& key, std::size_t from) {
  for (std::size_t i = from; i < key.size(); ++i) key[i] = ~key[i];
}

[[noreturn]] void damagedValue(const Column& column, std::size_t length) {
  throw damagedFile("colonna " + column.name + ": valore di " + std::to_string(length) + " byte");
}

void appendReversed(Value value, Bytes& key) {
  key.insert(key.end(), value.rbegin(), value.rend());
}

void appendInteger(Value value, bool ascending, Bytes& key) {
  const std::size_t from = key.size();
  appendReversed(value, key);
  key[from] ^= TopBit;
  if (!ascending) invert(key, from);
}

void appendFloating(Value value, bool ascending, Bytes& key) {
  const std::size_t from = key.size();
  appendReversed(value, key);
  if ((key[from] & TopBit) != std::byte{0})
    invert(key, from);
  else
    key[from] ^= TopBit;
  if (!ascending) invert(key, from);
}

// The sign byte keeps its sense in descending keys: an old fault that all files share.
void appendNumeric(Value value, bool ascending, Bytes& key) {
  const bool negative = value[0] != std::byte{0};
  key.push_back(negative ? std::byte{0x00} : std::byte{0xFF});
  const std::size_t from = key.size();
  for (std::size_t word = 1; word < value.size(); word += 4) appendReversed(value.subspan(word, 4), key);
  if (negative == ascending) invert(key, from);
}

/// Blocks of eight bytes, each with a count behind it: of its valid bytes, or that more blocks follow.
void appendBlocks(Value value, bool ascending, Bytes& key) {
  for (std::size_t at = 0; at < value.size(); at += BlockSize) {
    const std::size_t from = key.size();
    const Value block = value.subspan(at, std::min(BlockSize, value.size() - at));
    key.insert(key.end(), block.begin(), block.end());
    key.insert(key.end(), BlockSize - block.size(), std::byte{0});
    const bool last = at + BlockSize >= value.size();
    if (last) key.push_back(static_cast<std::byte>(block.size()));
    if (!ascending) invert(key, from);
    if (!last) key.push_back(MoreBlocks);
  }
}

void appendGuid(Value value, bool ascending, Bytes& key) {
  std::array<std::byte, 16> text;
  std::ranges::copy(value, text.begin());
  std::reverse(text.begin(), text.begin() + 4);
  std::reverse(text.begin() + 4, text.begin() + 6);
  std::reverse(text.begin() + 6, text.begin() + 8);
  appendBlocks(text, ascending, key);
}

/// Code units of a field, as many as a key takes: plain, or compressed with its two modes.
std::u16string_view codeUnits(const Column& column, Value field, std::u16string& units) {
  units.clear();
  const bool compressed = field.size() >= 2 && readU16(field.data()) == 0xFEFF;
  bool wide = !compressed;
  if (!compressed && field.size() % 2 != 0) damagedValue(column, field.size());
  for (std::size_t at = compressed ? 2 : 0; at < field.size() && units.size() < KeyCharacters;) {
    if (compressed && field[at] == std::byte{0}) {
      wide = !wide;
      ++at;
    } else if (wide) {
      if (at + 1 == field.size()) damagedValue(column, field.size());
      units.push_back(static_cast<char16_t>(readU16(&field[at])));
      at += 2;
    } else {
      units.push_back(std::to_integer<char16_t>(field[at++]));
    }
  }
  return units;
}

void appendTextColumn(const Column& column, Value field, bool ascending, Bytes& key) {
  if (column.sortOrder != GeneralOrderNumber || column.sortVersion != 0)
    throw jetError(InvalidArgument, "La colonna \"" + column.name +
                                        "\" ha un ordinamento del testo che non è gestito: " +
                                        std::to_string(column.sortOrder));
  thread_local std::u16string units;
  const std::size_t from = key.size();
  appendTextKey(codeUnits(column, field, units), KeyCharacters, key);
  if (ascending) return;
  invert(key, from);
  key.push_back(std::byte{0});
}

void appendValue(const Column& column, Value value, bool ascending, Bytes& key) {
  const std::size_t size = valueSize(column.type);
  if (size != 0 && value.size() != size) damagedValue(column, value.size());
  switch (column.type) {
    case ColumnType::Boolean:
      key.push_back((value[0] != std::byte{0}) == ascending ? std::byte{0x00} : std::byte{0xFF});
      break;
    case ColumnType::Byte:
      key.push_back(ascending ? value[0] : ~value[0]);
      break;
    case ColumnType::Integer:
    case ColumnType::Long:
    case ColumnType::Currency:
      appendInteger(value, ascending, key);
      break;
    case ColumnType::Single:
    case ColumnType::Double:
    case ColumnType::Date:
      appendFloating(value, ascending, key);
      break;
    case ColumnType::Numeric:
      appendNumeric(value, ascending, key);
      break;
    case ColumnType::Guid:
      appendGuid(value, ascending, key);
      break;
    case ColumnType::Binary:
    case ColumnType::Raw:
      appendBlocks(value, ascending, key);
      break;
    case ColumnType::Text:
    case ColumnType::Memo:
      appendTextColumn(column, value, ascending, key);
      break;
    case ColumnType::Ole:
      throw jetError(InvalidArgument, "La colonna \"" + column.name + "\" non si può indicizzare");
  }
}

}  // namespace

void appendKey(const Format&, const Column& column, const FieldBytes& field, bool ascending, Bytes& key) {
  if (field.null) {
    key.push_back(ascending ? AscendingNull : DescendingNull);
    return;
  }
  key.push_back(ascending ? AscendingFlag : DescendingFlag);
  appendValue(column, field.bytes, ascending, key);
}

IndexKeys::IndexKeys(const Format& format, const TableDefinition& table, const RealIndex& index)
    : format_(format), table_(table) {
  for (const IndexColumn& column : index.columns) {
    const auto position = table.findNumber(column.column);
    if (!position)
      throw damagedFile("tabella " + table.name + ": un indice nomina la colonna numero " +
                        std::to_string(column.column) + ", che non c'è");
    columns_.push_back({*position, column.ascending});
  }
}

std::size_t IndexKeys::append(const Row& row, Bytes& key) const {
  std::size_t nulls = 0;
  for (const Part& part : columns_) {
    const FieldBytes& field = row[part.position];
    nulls += field.null;
    appendKey(format_, table_.columns[part.position], field, part.ascending, key);
  }
  return nulls;
}

void indexKey(const Format& format, const TableDefinition& table, const RealIndex& index, const Row& row,
              Bytes& key, std::size_t& nulls) {
  nulls = IndexKeys(format, table, index).append(row, key);
}

}  // namespace jet::file
