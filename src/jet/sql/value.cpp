#include <cmath>
#include <cstring>
#include <limits>

#include "jet/file/values.h"
#include "jet/image/decimal.h"
#include "jet/sql/decimal.h"
#include "jet/sql/function_support.h"
#include "runtime/numbers.h"

namespace jet::sql {

namespace {

using runtime::Variant;

constexpr std::size_t guidSize = 16;

std::span<const std::byte> bytesOf(sqlite3_value* value) {
  const auto* data = static_cast<const std::byte*>(sqlite3_value_blob(value));
  return {data, static_cast<std::size_t>(sqlite3_value_bytes(value))};
}

Variant readBytes(sqlite3_value* value) {
  const auto bytes = bytesOf(value);
  return runtime::Bytes(bytes.begin(), bytes.end());
}

Variant readGuid(sqlite3_value* value) {
  const auto bytes = bytesOf(value);
  if (bytes.size() != guidSize) throw runtime::languageError(runtime::TypeMismatch);
  return file::guidText(bytes.first<guidSize>());
}

Variant readWhole(std::int64_t value) {
  if (value < INT32_MIN || value > INT32_MAX) return static_cast<double>(value);
  return static_cast<std::int32_t>(value);
}

/// What only its storage tells.
Variant readVariant(sqlite3_value* value) {
  switch (sqlite3_value_type(value)) {
    case SQLITE_INTEGER:
      return readWhole(sqlite3_value_int64(value));
    case SQLITE_FLOAT:
      return sqlite3_value_double(value);
    case SQLITE_BLOB:
      return readBytes(value);
    default:
      return textOf(value);
  }
}

std::string asText(const Variant& value) {
  if (value.kind() == Variant::Kind::Boolean) return value.toBoolean() ? "-1" : "0";
  return value.toText();
}

int hexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  throw runtime::languageError(runtime::TypeMismatch);
}

/// The 16 bytes of "{00112233-4455-6677-8899-AABBCCDDEEFF}" in the order of the file.
runtime::Bytes guidBytes(std::string_view text) {
  static constexpr std::size_t places[guidSize] = {7,  5,  3,  1,  12, 10, 17, 15,
                                                   20, 22, 25, 27, 29, 31, 33, 35};
  constexpr std::size_t length = 38;
  if (text.size() != length) throw runtime::languageError(runtime::TypeMismatch);
  runtime::Bytes bytes;
  for (const std::size_t place : places) {
    bytes.push_back(static_cast<std::byte>(hexDigit(text[place]) * 16 + hexDigit(text[place + 1])));
  }
  return bytes;
}

void returnBytes(sqlite3_context* context, const Variant& value, Type type) {
  const auto* held = std::get_if<runtime::Bytes>(&value.value());
  if (!held && type != Type::Guid) throw runtime::languageError(runtime::TypeMismatch);
  const runtime::Bytes bytes = held ? *held : guidBytes(value.toText());
  if (type == Type::Guid && bytes.size() != guidSize) throw runtime::languageError(runtime::TypeMismatch);
  if (bytes.empty()) return sqlite3_result_zeroblob(context, 0);
  sqlite3_result_blob64(context, bytes.data(), bytes.size(), SQLITE_TRANSIENT);
}

}  // namespace

Variant readValue(sqlite3_value* value, Type type) {
  switch (type) {
    case Type::Boolean:
      return sqlite3_value_int64(value) != 0;
    case Type::Byte:
    case Type::Integer:
    case Type::Long:
      if (sqlite3_value_type(value) == SQLITE_FLOAT) return sqlite3_value_double(value);
      return readWhole(sqlite3_value_int64(value));
    case Type::Currency:
      return runtime::Currency{sqlite3_value_int64(value)};
    case Type::Single:
      return static_cast<float>(sqlite3_value_double(value));
    case Type::Double:
      return sqlite3_value_double(value);
    case Type::Date:
      return runtime::Date{sqlite3_value_double(value)};
    case Type::Decimal:
      return parseDecimal(textOf(value));
    case Type::Text:
    case Type::Memo:
      return textOf(value);
    case Type::Guid:
      return readGuid(value);
    case Type::Binary:
    case Type::Ole:
      return readBytes(value);
    case Type::Null:
      return runtime::Null{};
    case Type::Variant:
      break;
  }
  return readVariant(value);
}

void returnValue(sqlite3_context* context, const Variant& value, Type type) {
  switch (type) {
    case Type::Boolean:
      return sqlite3_result_int(context, value.toBoolean() ? -1 : 0);
    case Type::Byte:
      return sqlite3_result_int(context, value.toByte());
    case Type::Integer:
      return sqlite3_result_int(context, value.toInteger());
    case Type::Long:
      return sqlite3_result_int(context, value.toLong());
    case Type::Currency:
      return sqlite3_result_int64(context, value.toCurrency().tenThousandths);
    case Type::Single:
      return sqlite3_result_double(context, static_cast<double>(runtime::toSingle(value.toDouble())));
    case Type::Date:
      return sqlite3_result_double(context, value.toDate().days);
    case Type::Decimal:
      return returnText(context, image::decimalText(toDecimal(value)));
    case Type::Text:
    case Type::Memo:
      return returnText(context, asText(value));
    case Type::Guid:
    case Type::Binary:
    case Type::Ole:
      return returnBytes(context, value, type);
    case Type::Null:
      return sqlite3_result_null(context);
    case Type::Double:
    case Type::Variant:
      break;
  }
  sqlite3_result_double(context, value.toDouble());
}

}  // namespace jet::sql
