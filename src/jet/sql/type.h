#pragma once

#include <cstdint>

#include "jet/file/definition.h"

namespace jet::sql {

/// Static type of a column or an expression. In the image a value of the type is kept as:
///   Boolean            INTEGER -1 or 0            Currency  INTEGER, ten-thousandths
///   Byte Integer Long  INTEGER                    Single Double Date  REAL
///   Text Memo          TEXT, UTF-8                Decimal   TEXT in decimal digits ("-12.50")
///   Binary Ole Raw     BLOB                       Guid      BLOB, 16 bytes as in the file
/// Null has no value; Variant is a parameter or value whose type is known only when it runs: INTEGER, REAL,
/// TEXT or BLOB as above, money and decimals as REAL.
enum class Type : std::uint8_t {
  Variant,
  Null,
  Boolean,
  Byte,
  Integer,
  Long,
  Currency,
  Single,
  Double,
  Date,
  Decimal,
  Text,
  Memo,
  Guid,
  Binary,
  Ole
};
constexpr unsigned TypeCount = 16;

Type typeOf(file::ColumnType column);
/// The type of a column whose values are kept as those of `type`; Text where there is none of its own.
file::ColumnType columnTypeOf(Type type);
/// "Long", "Text" and so on, for messages.
const char* typeName(Type type);

constexpr bool isText(Type type) {
  return type == Type::Text || type == Type::Memo;
}
/// True where the image orders the values by a collation: of texts, of decimal digits.
constexpr bool isCollated(Type type) {
  return isText(type) || type == Type::Decimal;
}
constexpr bool isWholeNumber(Type type) {
  return type >= Type::Boolean && type <= Type::Long;
}
/// Boolean to Decimal, Date among them.
constexpr bool isNumber(Type type) {
  return type >= Type::Boolean && type <= Type::Decimal;
}
/// Numbers whose form in the image is their value: all but Currency and Decimal.
constexpr bool isPlainNumber(Type type) {
  return isNumber(type) && type != Type::Currency && type != Type::Decimal;
}

}  // namespace jet::sql
