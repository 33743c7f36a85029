// Values of properties between the file's form and the language's.
#include "jet/image/property_values.h"

#include <cstring>

#include "jet/file/errors.h"
#include "jet/file/text/text.h"
#include "runtime/error.h"
#include "runtime/numbers.h"

namespace jet::image {

namespace {

using file::ColumnType;
using runtime::Variant;
using Bytes = std::vector<std::byte>;

template <typename Number>
Bytes raw(Number number) {
  Bytes bytes(sizeof number);
  std::memcpy(bytes.data(), &number, sizeof number);
  return bytes;
}

template <typename Number>
Number number(const Bytes& bytes) {
  Number value;
  std::memcpy(&value, bytes.data(), sizeof value);
  return value;
}

Bytes textBytes(std::string_view text) {
  Bytes bytes;
  for (const char16_t unit : file::toUtf16(text)) {
    bytes.push_back(static_cast<std::byte>(unit & 0xFF));
    bytes.push_back(static_cast<std::byte>(unit >> 8));
  }
  return bytes;
}

Bytes encoded(ColumnType type, const Variant& value) {
  switch (type) {
    case ColumnType::Boolean:
      return {value.toBoolean() ? std::byte{1} : std::byte{0}};
    case ColumnType::Byte:
      return raw(value.toByte());
    case ColumnType::Integer:
      return raw(value.toInteger());
    case ColumnType::Long:
      return raw(value.toLong());
    case ColumnType::Currency:
      return raw(value.toCurrency().tenThousandths);
    case ColumnType::Single:
      return raw(runtime::toSingle(value.toDouble()));
    case ColumnType::Double:
      return raw(value.toDouble());
    case ColumnType::Date:
      return raw(value.toDate().days);
    case ColumnType::Text:
    case ColumnType::Memo:
      return textBytes(value.toText());
    case ColumnType::Binary:
    case ColumnType::Ole:
    case ColumnType::Guid:
      if (const auto* bytes = std::get_if<runtime::Bytes>(&value.value())) return *bytes;
      throw runtime::languageError(runtime::TypeMismatch);
    default:
      throw runtime::Error(InvalidDataType, source::Property, "Tipo di dati non valido per una proprietà");
  }
}

/// A whole number, as wide as it was stored: an Integer often takes the four bytes of a Long.
Variant wholeNumber(const Bytes& bytes, ColumnType type) {
  if (bytes.size() == 1) return Variant(number<std::uint8_t>(bytes));
  if (bytes.size() == 2) return Variant(number<std::int16_t>(bytes));
  const auto value = number<std::int32_t>(bytes);
  if (type == ColumnType::Integer && value >= INT16_MIN && value <= INT16_MAX)
    return Variant(static_cast<std::int16_t>(value));
  return Variant(value);
}

std::string text(const Bytes& bytes) {
  return file::nameText(file::Jet4, bytes);
}

}  // namespace

file::PropertyItem propertyItem(std::string name, ColumnType type, const Variant& value) {
  file::PropertyItem item;
  item.type = type;
  try {
    item.data = encoded(type, value);
  } catch (const runtime::Error& error) {
    if (error.number() == InvalidDataType) throw;
    throw errorOf(ConversionFailed, source::Property, name);
  }
  item.name = std::move(name);
  return item;
}

Variant propertyValue(const file::PropertyItem& item) {
  const auto holds = [&](std::size_t size) { return item.data.size() == size; };
  switch (item.type) {
    case ColumnType::Boolean:
      if (item.data.empty()) break;
      return Variant(item.data[0] != std::byte{0});
    case ColumnType::Byte:
    case ColumnType::Integer:
    case ColumnType::Long:
      if (!holds(1) && !holds(2) && !holds(4)) break;
      return wholeNumber(item.data, item.type);
    case ColumnType::Currency:
      if (!holds(8)) break;
      return Variant(runtime::Currency{number<std::int64_t>(item.data)});
    case ColumnType::Single:
      if (!holds(4)) break;
      return Variant(number<float>(item.data));
    case ColumnType::Double:
      if (!holds(8)) break;
      return Variant(number<double>(item.data));
    case ColumnType::Date:
      if (!holds(8)) break;
      return Variant(runtime::Date{number<double>(item.data)});
    case ColumnType::Text:
    case ColumnType::Memo:
      if (item.data.size() % 2 != 0) break;
      return Variant(text(item.data));
    default:
      return Variant(runtime::Bytes(item.data));
  }
  return Variant(runtime::Null{});
}

std::string textProperty(const file::PropertyBlock& block, std::string_view column, std::string_view name) {
  const auto* item = block.find(column, name);
  if (!item || (item->type != ColumnType::Text && item->type != ColumnType::Memo)) return {};
  const auto value = propertyValue(*item);
  return value.isNull() ? std::string() : value.toText();
}

bool booleanProperty(const file::PropertyBlock& block, std::string_view column, std::string_view name,
                     bool absent) {
  const auto* item = block.find(column, name);
  return item && !item->data.empty() ? item->data[0] != std::byte{0} : absent;
}

}  // namespace jet::image
