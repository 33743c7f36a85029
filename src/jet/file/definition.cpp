// Questions about a table's definition: columns by name or number, types, names compared.
#include "jet/file/definition.h"

#include <algorithm>
#include <numeric>

#include "jet/file/text/text.h"
#include "jet/file/text/text_key.h"

namespace jet::file {

std::size_t valueSize(ColumnType type) {
  switch (type) {
    case ColumnType::Boolean:
    case ColumnType::Byte:
      return 1;
    case ColumnType::Integer:
      return 2;
    case ColumnType::Long:
    case ColumnType::Single:
      return 4;
    case ColumnType::Currency:
    case ColumnType::Double:
    case ColumnType::Date:
      return 8;
    case ColumnType::Guid:
      return 16;
    case ColumnType::Numeric:
      return 17;
    default:
      return 0;
  }
}

std::optional<std::size_t> TableDefinition::find(std::string_view columnName) const {
  // The exact spelling is the usual case and costs no keys.
  for (std::size_t i = 0; i < columns.size(); ++i)
    if (columns[i].name == columnName) return i;
  for (std::size_t i = 0; i < columns.size(); ++i)
    if (sameName(columns[i].name, columnName)) return i;
  return std::nullopt;
}

std::optional<std::size_t> TableDefinition::findNumber(std::uint16_t number) const {
  for (std::size_t i = 0; i < columns.size(); ++i)
    if (columns[i].number == number) return i;
  return std::nullopt;
}

std::vector<std::size_t> TableDefinition::displayOrder() const {
  std::vector<std::size_t> order(columns.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  // Equal positions (all of them 0 in system tables) follow the numbers.
  std::ranges::sort(order, {},
                    [this](std::size_t i) { return std::pair(columns[i].position, columns[i].number); });
  return order;
}

std::uint16_t TableDefinition::fixedLength() const {
  std::uint16_t length = 0;
  for (const Column& column : columns)
    if (column.fixed() && column.type != ColumnType::Boolean)
      length =
          std::max<std::uint16_t>(length, static_cast<std::uint16_t>(column.fixedOffset + column.length));
  return length;
}

namespace {

/// -1 for a character that may not be compared by itself.
int plainLetter(char c) {
  if (c >= 'a' && c <= 'z') return c - 'a' + 'A';
  return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ? c : -1;
}

bool isPlain(std::string_view name) {
  return std::ranges::all_of(name, [](char c) { return plainLetter(c) >= 0; });
}

}  // namespace

bool sameName(std::string_view a, std::string_view b) {
  // Keys of letters and digits differ where these do, but for the case.
  if (isPlain(a) && isPlain(b)) return std::ranges::equal(a, b, {}, plainLetter, plainLetter);
  return compareText(a, b) == 0;
}

std::string nameKey(std::string_view name) {
  const std::u16string text = toUtf16(name);
  std::vector<std::byte> key;
  appendTextKey(text, text.size(), key);
  return {reinterpret_cast<const char*>(key.data()), key.size()};
}

}  // namespace jet::file
