// A field's bytes as a value of the language.
#include "jet/file/values.h"

#include "jet/file/errors.h"
#include "jet/file/page/bytes.h"
#include "jet/file/text/text.h"

namespace jet::file {

namespace {

constexpr std::size_t GuidSize = 16, NumericSize = 17;

runtime::Decimal readNumeric(const std::byte* at, std::uint8_t scale) {
  runtime::Decimal value;
  value.negative = (at[0] & std::byte{0x80}) != std::byte{0};
  value.scale = scale;
  // The most significant word comes first.
  for (std::size_t i = 0; i < 4; ++i) value.magnitude = value.magnitude << 32 | readU32(at + 1 + 4 * i);
  return value;
}

const std::byte* sized(const Column& column, const FieldBytes& field, std::size_t size) {
  if (field.bytes.size() != size) throw damagedFile("campo \"" + column.name + "\" di lunghezza errata");
  return field.bytes.data();
}

}  // namespace

runtime::Variant toVariant(const Format& format, std::uint16_t codePage, const Column& column,
                           const FieldBytes& field) {
  if (field.null) return runtime::Null{};
  const auto at = [&](std::size_t size) { return sized(column, field, size); };
  switch (column.type) {
    case ColumnType::Boolean:
      return *at(1) != std::byte{0};
    case ColumnType::Byte:
      return std::to_integer<std::uint8_t>(*at(1));
    case ColumnType::Integer:
      return static_cast<std::int16_t>(readU16(at(2)));
    case ColumnType::Long:
      return static_cast<std::int32_t>(readU32(at(4)));
    case ColumnType::Currency:
      return runtime::Currency{static_cast<std::int64_t>(readU64(at(8)))};
    case ColumnType::Single:
      return readSingle(at(4));
    case ColumnType::Double:
      return readDouble(at(8));
    case ColumnType::Date:
      return runtime::Date{readDouble(at(8))};
    case ColumnType::Numeric:
      return readNumeric(at(NumericSize), column.scale);
    case ColumnType::Guid:
      return guidText(std::span<const std::byte, GuidSize>(at(GuidSize), GuidSize));
    case ColumnType::Binary:
    case ColumnType::Ole:
    case ColumnType::Raw:
      return runtime::Bytes(field.bytes.begin(), field.bytes.end());
    case ColumnType::Text:
    case ColumnType::Memo:
      break;
  }
  std::string text;
  appendText(format, field.bytes, text, codePage);
  return text;
}

std::string guidText(std::span<const std::byte, GuidSize> guid) {
  // Where each byte of the text lies: the first three groups are little-endian numbers.
  constexpr int Order[GuidSize] = {3, 2, 1, 0, 5, 4, 7, 6, 8, 9, 10, 11, 12, 13, 14, 15};
  constexpr char Digits[] = "0123456789ABCDEF";
  std::string text = "{";
  for (std::size_t i = 0; i < GuidSize; ++i) {
    if (i == 4 || i == 6 || i == 8 || i == 10) text += '-';
    const auto byte = std::to_integer<unsigned>(guid[static_cast<std::size_t>(Order[i])]);
    text += Digits[byte >> 4];
    text += Digits[byte & 15];
  }
  return text + "}";
}

}  // namespace jet::file
