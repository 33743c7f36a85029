// The types of columns, and their names.
#include "jet/sql/type.h"

#include <cstddef>

namespace jet::sql {

Type typeOf(file::ColumnType column) {
  using file::ColumnType;
  switch (column) {
    case ColumnType::Boolean:
      return Type::Boolean;
    case ColumnType::Byte:
      return Type::Byte;
    case ColumnType::Integer:
      return Type::Integer;
    case ColumnType::Long:
      return Type::Long;
    case ColumnType::Currency:
      return Type::Currency;
    case ColumnType::Single:
      return Type::Single;
    case ColumnType::Double:
      return Type::Double;
    case ColumnType::Date:
      return Type::Date;
    case ColumnType::Text:
      return Type::Text;
    case ColumnType::Memo:
      return Type::Memo;
    case ColumnType::Guid:
      return Type::Guid;
    case ColumnType::Numeric:
      return Type::Decimal;
    case ColumnType::Ole:
      return Type::Ole;
    case ColumnType::Binary:
    case ColumnType::Raw:
      return Type::Binary;
  }
  return Type::Binary;
}

file::ColumnType columnTypeOf(Type type) {
  using file::ColumnType;
  constexpr ColumnType columns[TypeCount] = {
      ColumnType::Text,    ColumnType::Text, ColumnType::Boolean,  ColumnType::Byte,
      ColumnType::Integer, ColumnType::Long, ColumnType::Currency, ColumnType::Single,
      ColumnType::Double,  ColumnType::Date, ColumnType::Numeric,  ColumnType::Text,
      ColumnType::Memo,    ColumnType::Guid, ColumnType::Binary,   ColumnType::Ole};
  return columns[static_cast<std::size_t>(type)];
}

const char* typeName(Type type) {
  static constexpr const char* names[TypeCount] = {"Variant",  "Null",   "Boolean", "Byte", "Integer", "Long",
                                                   "Currency", "Single", "Double",  "Date", "Decimal", "Text",
                                                   "Memo",     "Guid",   "Binary",  "Ole"};
  return names[static_cast<std::size_t>(type)];
}

}  // namespace jet::sql
