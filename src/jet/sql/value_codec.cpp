// Values between the language and the image: what each type is there, and what a column keeps.
#include "jet/sql/value_codec.h"

#include <algorithm>
#include <array>
#include <concepts>
#include <limits>

#include "jet/file/errors.h"
#include "jet/file/text/text.h"
#include "jet/file/values.h"
#include "jet/image/decimal.h"
#include "jet/sql/decimal.h"
#include "runtime/error.h"
#include "runtime/numbers.h"

namespace jet::sql {

namespace {

using image::Storage;
using runtime::Variant;

constexpr std::size_t GuidSize = 16;

runtime::Bytes copied(std::span<const std::byte> bytes) {
  return {bytes.begin(), bytes.end()};
}

template <typename Whole>
bool holds(std::int64_t value) {
  return value >= std::numeric_limits<Whole>::min() && value <= std::numeric_limits<Whole>::max();
}

Variant wholeNumber(std::int64_t value) {
  if (!holds<std::int32_t>(value)) return static_cast<double>(value);
  return static_cast<std::int32_t>(value);
}

template <typename Source>
Variant decodeStorage(const Source& source) {
  switch (source.storage()) {
    case Storage::Null:
      return runtime::Null{};
    case Storage::Integer:
      return wholeNumber(source.integer());
    case Storage::Real:
      return source.real();
    case Storage::Text:
      return source.text();
    case Storage::Bytes:
      return copied(source.bytes());
  }
  return runtime::Null{};
}

/// What is computed of whole numbers can go beyond their type, or be a Double.
template <typename Whole, typename Source>
Variant decodeWhole(const Source& source) {
  if (source.storage() != Storage::Integer || !holds<Whole>(source.integer())) return decodeStorage(source);
  return static_cast<Whole>(source.integer());
}

/// A number, or the bytes of what is none.
template <typename Source>
double decodeReal(const Source& source) {
  return source.storage() == Storage::Bytes ? std::numeric_limits<double>::quiet_NaN() : source.real();
}

runtime::Decimal decodeDigits(std::string_view digits) {
  const auto point = digits.find('.');
  const auto scale = point == std::string_view::npos ? 0 : digits.size() - point - 1;
  return image::parseDecimal(digits, static_cast<std::uint8_t>(scale), image::DecimalFieldDigits);
}

/// Error 13 for what is no hexadecimal digit.
int hexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  throw runtime::languageError(runtime::TypeMismatch);
}

/// The 16 bytes of "{00112233-4455-6677-8899-AABBCCDDEEFF}" in the order of the file.
runtime::Bytes guidBytes(std::string_view text) {
  constexpr std::array<std::size_t, GuidSize> Places = {7,  5,  3,  1,  12, 10, 17, 15,
                                                        20, 22, 25, 27, 29, 31, 33, 35};
  constexpr std::size_t Length = 38;
  if (text.size() != Length) throw runtime::languageError(runtime::TypeMismatch);
  runtime::Bytes bytes;
  for (const std::size_t place : Places)
    bytes.push_back(static_cast<std::byte>(hexDigit(text[place]) * 16 + hexDigit(text[place + 1])));
  return bytes;
}

runtime::Bytes bytesOf(const Variant& value, Type type) {
  const auto* held = std::get_if<runtime::Bytes>(&value.value());
  if (!held && type != Type::Guid) throw runtime::languageError(runtime::TypeMismatch);
  runtime::Bytes bytes = held ? *held : guidBytes(value.toText());
  if (type == Type::Guid && bytes.size() != GuidSize) throw runtime::languageError(runtime::TypeMismatch);
  return bytes;
}

/// A Boolean is the number that it is stored as, not the language's word for it.
std::string storedText(const Variant& value) {
  if (value.kind() == Variant::Kind::Boolean) return value.toBoolean() ? "-1" : "0";
  return value.toText();
}

template <typename Target>
void encodeDynamic(Target& target, const Variant& value) {
  using Kind = Variant::Kind;
  switch (value.kind()) {
    case Kind::Boolean:
    case Kind::Byte:
    case Kind::Integer:
    case Kind::Long:
      return target.integer(value.toLong());
    case Kind::Text:
      return target.text(std::get<std::string>(value.value()));
    case Kind::Bytes:
      return target.bytes(std::get<runtime::Bytes>(value.value()));
    default:
      return target.real(value.toDouble());
  }
}

void requireFits(const Variant& value, const ColumnRule& rule) {
  if (rule.size == 0) return;
  const auto* bytes = std::get_if<runtime::Bytes>(&value.value());
  std::size_t size = bytes ? bytes->size() : 0;
  if (isText(rule.type)) size = file::utf16Length(storedText(value));
  if (size > rule.size)
    throw runtime::Error(FieldTooSmall, source::Field,
                         "Il campo è troppo piccolo per i dati: " + std::to_string(size) + " invece di " +
                             std::to_string(rule.size));
}

/// Rounded to the column's scale; error 6 where its digits do not hold the number.
std::string roundedDigits(const Variant& value, const ColumnRule& rule) {
  const std::string digits = image::decimalText(toDecimal(value));
  const std::string text =
      image::decimalText(image::parseDecimal(digits, static_cast<std::uint8_t>(rule.scale)));
  const auto count = std::ranges::count_if(text, [](char c) { return c >= '0' && c <= '9'; });
  if (count - (text.starts_with("0.") || text.starts_with("-0.")) > rule.precision)
    throw runtime::languageError(runtime::Overflow);
  return text;
}

}  // namespace

ColumnRule ruleOf(const file::Column& column) {
  const Type type = typeOf(column.type);
  // A code page of its own stands in the older format alone: a byte a character.
  const std::size_t unit = type == Type::Text && column.codePage == 0 ? 2 : 1;
  const bool sized = type == Type::Text || type == Type::Binary;
  return {type, sized ? column.length / unit : 0, column.precision, column.scale};
}

template <typename Source>
Variant decodeValue(const Source& source, Type type) {
  if (source.storage() == Storage::Null) return runtime::Null{};
  switch (type) {
    case Type::Boolean:
      return source.integer() != 0;
    case Type::Byte:
      return decodeWhole<std::uint8_t>(source);
    case Type::Integer:
      return decodeWhole<std::int16_t>(source);
    case Type::Currency:
      return runtime::Currency{source.integer()};
    case Type::Single:
      return static_cast<float>(decodeReal(source));
    case Type::Double:
      return decodeReal(source);
    case Type::Date:
      return runtime::Date{decodeReal(source)};
    case Type::Decimal:
      return decodeDigits(source.text());
    case Type::Text:
    case Type::Memo:
      return source.text();
    case Type::Guid:
      if (const auto bytes = source.bytes(); bytes.size() == GuidSize)
        return file::guidText(bytes.template first<GuidSize>());
      return decodeStorage(source);
    case Type::Binary:
    case Type::Ole:
      return copied(source.bytes());
    case Type::Long:
    case Type::Null:
    case Type::Variant:
      break;
  }
  return decodeStorage(source);
}

template <typename Target>
void encodeValue(Target&& target, const Variant& value, Type type) {
  if (value.isNull() || value.isEmpty()) return target.null();
  switch (type) {
    case Type::Boolean:
      return target.integer(value.toBoolean() ? -1 : 0);
    case Type::Byte:
      return target.integer(value.toByte());
    case Type::Integer:
      return target.integer(value.toInteger());
    case Type::Long:
      return target.integer(value.toLong());
    case Type::Currency:
      return target.integer(value.toCurrency().tenThousandths);
    case Type::Single:
      return target.real(static_cast<double>(runtime::toSingle(value.toDouble())));
    case Type::Double:
      return target.real(value.toDouble());
    case Type::Date:
      return target.real(value.toDate().days);
    case Type::Decimal:
      return target.text(image::decimalText(toDecimal(value)));
    case Type::Text:
    case Type::Memo:
      return target.text(storedText(value));
    case Type::Guid:
    case Type::Binary:
    case Type::Ole:
      return target.bytes(bytesOf(value, type));
    case Type::Null:
    case Type::Variant:
      encodeDynamic(target, value);
  }
}

template <typename Target>
void encodeAssigned(Target&& target, const Variant& value, const ColumnRule& rule) {
  const bool null = value.isNull() || value.isEmpty();
  if (null && rule.type == Type::Boolean) return target.integer(0);
  if (null || rule.type != Type::Decimal) {
    if (!null) requireFits(value, rule);
    return encodeValue(target, value, rule.type);
  }
  target.text(roundedDigits(value, rule));
}

template Variant decodeValue(const image::RowColumn&, Type);
template Variant decodeValue(const image::Argument&, Type);
template Variant decodeValue(const image::StoredValue&, Type);
template void encodeValue(image::Parameter&&, const Variant&, Type);
template void encodeValue(image::Result&&, const Variant&, Type);
template void encodeValue(image::StoredValue&, const Variant&, Type);
template void encodeAssigned(image::Parameter&&, const Variant&, const ColumnRule&);
template void encodeAssigned(image::Result&&, const Variant&, const ColumnRule&);
template void encodeAssigned(image::StoredValue&, const Variant&, const ColumnRule&);

}  // namespace jet::sql
