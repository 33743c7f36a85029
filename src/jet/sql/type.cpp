// The types of expressions beside those of columns.
#include "jet/sql/type.h"

#include <algorithm>
#include <array>

namespace jet::sql {

namespace {

struct TypeRow {
  Type type;
  const char* name;
  file::ColumnType column;
};

/// In the order of Type; from Boolean on each has a column type of its own.
constexpr std::array<TypeRow, TypeCount> Types = {{
    {Type::Variant, "Variant", file::ColumnType::Text},
    {Type::Null, "Null", file::ColumnType::Text},
    {Type::Boolean, "Boolean", file::ColumnType::Boolean},
    {Type::Byte, "Byte", file::ColumnType::Byte},
    {Type::Integer, "Integer", file::ColumnType::Integer},
    {Type::Long, "Long", file::ColumnType::Long},
    {Type::Currency, "Currency", file::ColumnType::Currency},
    {Type::Single, "Single", file::ColumnType::Single},
    {Type::Double, "Double", file::ColumnType::Double},
    {Type::Date, "Date", file::ColumnType::Date},
    {Type::Decimal, "Decimal", file::ColumnType::Numeric},
    {Type::Text, "Text", file::ColumnType::Text},
    {Type::Memo, "Memo", file::ColumnType::Memo},
    {Type::Guid, "Guid", file::ColumnType::Guid},
    {Type::Binary, "Binary", file::ColumnType::Binary},
    {Type::Ole, "Ole", file::ColumnType::Ole},
}};

constexpr bool isInOrder() {
  for (unsigned i = 0; i < TypeCount; ++i)
    if (Types[i].type != static_cast<Type>(i)) return false;
  return true;
}
static_assert(isInOrder());

}  // namespace

Type typeOf(file::ColumnType column) {
  const auto* own = std::find_if(Types.begin() + static_cast<int>(Type::Boolean), Types.end(),
                                 [column](const TypeRow& row) { return row.column == column; });
  return own != Types.end() ? own->type : Type::Binary;  // the engine's own block of bytes
}

file::ColumnType columnTypeOf(Type type) {
  return Types[static_cast<std::size_t>(type)].column;
}

const char* typeName(Type type) {
  return Types[static_cast<std::size_t>(type)].name;
}

}  // namespace jet::sql
