#include "jet/dao/values.h"

#include <array>

#include "jet/dao/constants.h"
#include "jet/file/errors.h"
#include "jet/file/text/text.h"
#include "jet/file/values.h"
#include "jet/image/decimal.h"
#include "jet/image/row_codec.h"
#include "jet/sql/decimal.h"
#include "runtime/error.h"
#include "runtime/numbers.h"

namespace jet::dao {

namespace {

using file::ColumnType;
using runtime::Variant;
using sql::Type;

std::string_view text(const image::Statement& row, int column) {
  const auto* data = reinterpret_cast<const char*>(sqlite3_column_text(row.handle(), column));
  return {data ? data : "", static_cast<std::size_t>(sqlite3_column_bytes(row.handle(), column))};
}

std::span<const std::byte> bytes(const image::Statement& row, int column) {
  const auto* data = static_cast<const std::byte*>(sqlite3_column_blob(row.handle(), column));
  return {data, static_cast<std::size_t>(sqlite3_column_bytes(row.handle(), column))};
}

/// A value whose type only the row tells.
Variant dynamicValue(const image::Statement& row, int column) {
  switch (sqlite3_column_type(row.handle(), column)) {
    case SQLITE_INTEGER: {
      const auto value = row.integer(column);
      if (value >= INT32_MIN && value <= INT32_MAX) return Variant(static_cast<std::int32_t>(value));
      return Variant(static_cast<double>(value));
    }
    case SQLITE_FLOAT:
      return Variant(sqlite3_column_double(row.handle(), column));
    case SQLITE_TEXT:
      return Variant(text(row, column));
    case SQLITE_BLOB: {
      const auto value = bytes(row, column);
      return Variant(runtime::Bytes(value.begin(), value.end()));
    }
    default:
      return Variant(runtime::Null{});
  }
}

void bindBlob(image::Statement& statement, int parameter, const runtime::Bytes& value) {
  if (value.empty())
    sqlite3_bind_zeroblob(statement.handle(), parameter, 0);
  else
    image::requireBound(statement.handle(), sqlite3_bind_blob64(statement.handle(), parameter, value.data(),
                                                                value.size(), SQLITE_TRANSIENT));
}

void bindDynamic(image::Statement& statement, int parameter, const Variant& value) {
  using Kind = Variant::Kind;
  switch (value.kind()) {
    case Kind::Empty:
    case Kind::Null:
      return statement.bindNull(parameter);
    case Kind::Boolean:
      return statement.bind(parameter, std::int64_t{value.toBoolean() ? -1 : 0});
    case Kind::Byte:
    case Kind::Integer:
    case Kind::Long:
      return statement.bind(parameter, std::int64_t{value.toLong()});
    case Kind::Text:
      return statement.bind(parameter, std::string_view(std::get<std::string>(value.value())));
    case Kind::Bytes:
      return bindBlob(statement, parameter, std::get<runtime::Bytes>(value.value()));
    default:
      sqlite3_bind_double(statement.handle(), parameter, value.toDouble());
  }
}

runtime::Bytes guidBytes(const Variant& value) {
  if (value.kind() == Variant::Kind::Bytes) return std::get<runtime::Bytes>(value.value());
  // Places of the digits of "{00112233-4455-6677-8899-AABBCCDDEEFF}", in the order of the 16 bytes.
  constexpr std::array Places = {7, 5, 3, 1, 12, 10, 17, 15, 20, 22, 25, 27, 29, 31, 33, 35};
  const std::string digits = value.toText();
  const auto nibble = [&](std::size_t at) {
    const char c = digits[at];
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    throw errorOf(ConversionFailed, source::Field, digits);
  };
  if (digits.size() != 38) throw errorOf(ConversionFailed, source::Field, digits);
  runtime::Bytes result;
  for (const int place : Places)
    result.push_back(static_cast<std::byte>(nibble(static_cast<std::size_t>(place)) << 4 |
                                            nibble(static_cast<std::size_t>(place) + 1)));
  return result;
}

/// Digits of any number, rounded to `scale`.
std::string decimalDigits(const Variant& value, std::uint8_t scale) {
  return image::decimalText(image::parseDecimal(image::decimalText(sql::toDecimal(value)), scale));
}

void bindTyped(image::Statement& statement, int parameter, const Variant& value, Type type,
               std::uint8_t scale) {
  switch (type) {
    case Type::Boolean:
      return statement.bind(parameter, std::int64_t{value.toBoolean() ? -1 : 0});
    case Type::Byte:
      return statement.bind(parameter, std::int64_t{value.toByte()});
    case Type::Integer:
      return statement.bind(parameter, std::int64_t{value.toInteger()});
    case Type::Long:
      return statement.bind(parameter, std::int64_t{value.toLong()});
    case Type::Currency:
      return statement.bind(parameter, value.toCurrency().tenThousandths);
    case Type::Single:
      sqlite3_bind_double(statement.handle(), parameter, runtime::toSingle(value.toDouble()));
      return;
    case Type::Double:
      sqlite3_bind_double(statement.handle(), parameter, value.toDouble());
      return;
    case Type::Date:
      sqlite3_bind_double(statement.handle(), parameter, value.toDate().days);
      return;
    case Type::Decimal:
      return statement.bind(parameter, std::string_view(decimalDigits(value, scale)));
    case Type::Text:
    case Type::Memo:
      return statement.bind(parameter, std::string_view(value.toText()));
    case Type::Guid:
      return bindBlob(statement, parameter, guidBytes(value));
    case Type::Binary:
    case Type::Ole:
      if (value.kind() == Variant::Kind::Bytes)
        return bindBlob(statement, parameter, std::get<runtime::Bytes>(value.value()));
      throw runtime::languageError(runtime::TypeMismatch);
    case Type::Null:
    case Type::Variant:
      bindDynamic(statement, parameter, value);
  }
}

void bindConverted(image::Statement& statement, int parameter, const Variant& value, Type type,
                   std::uint8_t scale, const std::string& name) {
  if (value.isNull() || value.isEmpty()) {
    // A Boolean is never null.
    if (type == Type::Boolean) return statement.bind(parameter, std::int64_t{0});
    return statement.bindNull(parameter);
  }
  try {
    bindTyped(statement, parameter, value, type, scale);
  } catch (const runtime::Error& error) {
    if (error.number() != runtime::TypeMismatch) throw;
    throw errorOf(ConversionFailed, source::Field, name);
  }
}

}  // namespace

Variant fromImage(const image::Statement& row, int column, Type type) {
  if (row.null(column)) return Variant(runtime::Null{});
  switch (type) {
    case Type::Boolean:
      return Variant(row.integer(column) != 0);
    case Type::Byte:
      return Variant(static_cast<std::uint8_t>(row.integer(column)));
    case Type::Integer:
      return Variant(static_cast<std::int16_t>(row.integer(column)));
    case Type::Long:
      return dynamicValue(row, column);  // what is reckoned of Longs can be a Double
    case Type::Currency:
      return Variant(runtime::Currency{row.integer(column)});
    case Type::Single:
      return Variant(static_cast<float>(image::realValue(row.handle(), column)));
    case Type::Double:
      return Variant(image::realValue(row.handle(), column));
    case Type::Date:
      return Variant(runtime::Date{image::realValue(row.handle(), column)});
    case Type::Decimal: {
      const auto digits = text(row, column);
      const auto point = digits.find('.');
      const auto scale = point == std::string_view::npos ? 0 : digits.size() - point - 1;
      return Variant(
          image::parseDecimal(digits, static_cast<std::uint8_t>(scale), image::DecimalFieldDigits));
    }
    case Type::Guid: {
      const auto value = bytes(row, column);
      if (value.size() == 16) return Variant(file::guidText(value.first<16>()));
      return dynamicValue(row, column);
    }
    case Type::Text:
    case Type::Memo:
      return Variant(text(row, column));
    default:
      return dynamicValue(row, column);
  }
}

void bindValue(image::Statement& statement, int parameter, const Variant& value, Type type) {
  bindConverted(statement, parameter, value, type, 4, sql::typeName(type));
}

void bindField(image::Statement& statement, int parameter, const Variant& value, const file::Column& column,
               const std::string& table) {
  const std::string name = table + "." + column.name;
  if (column.type == ColumnType::Text && !value.isNull() &&
      2 * file::utf16Length(value.toText()) > column.length)
    throw runtime::Error(FieldTooSmall, source::Field, "Il testo è troppo lungo per il campo " + name);
  bindConverted(statement, parameter, value, sql::typeOf(column.type), column.scale, name);
}

int dataType(ColumnType type) {
  return type == ColumnType::Numeric ? static_cast<int>(dbDecimal) : static_cast<int>(type);
}

int dataType(Type type) {
  switch (type) {
    case Type::Boolean:
      return dbBoolean;
    case Type::Byte:
      return dbByte;
    case Type::Integer:
      return dbInteger;
    case Type::Long:
      return dbLong;
    case Type::Currency:
      return dbCurrency;
    case Type::Single:
      return dbSingle;
    case Type::Double:
      return dbDouble;
    case Type::Date:
      return dbDate;
    case Type::Decimal:
      return dbDecimal;
    case Type::Memo:
      return dbMemo;
    case Type::Guid:
      return dbGUID;
    case Type::Binary:
      return dbBinary;
    case Type::Ole:
      return dbLongBinary;
    default:
      return dbText;
  }
}

int fieldSize(const file::Column& column) {
  const bool twoBytes = column.codePage == 0;  // a code page of its own stands in Jet 3 alone
  return column.type == ColumnType::Text && twoBytes ? column.length / 2 : column.length;
}

int fieldAttributes(const file::Column& column) {
  return (column.fixed() ? dbFixedField : dbVariableField) | dbUpdatableField |
         (column.autoNumber() ? dbAutoIncrField : 0) |
         (column.flags & file::Column::Hyperlink ? dbHyperlinkField : 0);
}

}  // namespace jet::dao
