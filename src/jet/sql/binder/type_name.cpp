// The names that SQL has for types.
#include "jet/sql/binder/type_name.h"

#include <algorithm>

#include "jet/sql/parser/token.h"
#include "jet/sql/syntax_error.h"

namespace jet::sql {

namespace {

using file::ColumnType;

constexpr NamedType NamedTypes[] = {
    {"BIT", ColumnType::Boolean},
    {"BOOLEAN", ColumnType::Boolean},
    {"LOGICAL", ColumnType::Boolean},
    {"LOGICAL1", ColumnType::Boolean},
    {"YESNO", ColumnType::Boolean},
    {"BYTE", ColumnType::Byte},
    {"TINYINT", ColumnType::Byte},
    {"INTEGER1", ColumnType::Byte},
    {"SHORT", ColumnType::Integer},
    {"SMALLINT", ColumnType::Integer},
    {"INTEGER2", ColumnType::Integer},
    {"LONG", ColumnType::Long},
    {"INT", ColumnType::Long},
    {"INTEGER", ColumnType::Long},
    {"INTEGER4", ColumnType::Long},
    {"COUNTER", ColumnType::Long, true},
    {"AUTOINCREMENT", ColumnType::Long, true},
    {"IDENTITY", ColumnType::Long, true},
    {"CURRENCY", ColumnType::Currency},
    {"MONEY", ColumnType::Currency},
    {"SINGLE", ColumnType::Single},
    {"REAL", ColumnType::Single},
    {"FLOAT4", ColumnType::Single},
    {"IEEESINGLE", ColumnType::Single},
    {"DOUBLE", ColumnType::Double},
    {"FLOAT", ColumnType::Double},
    {"FLOAT8", ColumnType::Double},
    {"NUMBER", ColumnType::Double},
    {"IEEEDOUBLE", ColumnType::Double},
    {"DOUBLE PRECISION", ColumnType::Double},
    {"DATETIME", ColumnType::Date},
    {"DATE", ColumnType::Date},
    {"TIME", ColumnType::Date},
    {"TIMESTAMP", ColumnType::Date},
    {"TEXT", ColumnType::Text},
    {"CHAR", ColumnType::Text},
    {"CHARACTER", ColumnType::Text},
    {"VARCHAR", ColumnType::Text},
    {"STRING", ColumnType::Text},
    {"NCHAR", ColumnType::Text},
    {"NVARCHAR", ColumnType::Text},
    {"ALPHANUMERIC", ColumnType::Text},
    {"CHAR VARYING", ColumnType::Text},
    {"NCHAR VARYING", ColumnType::Text},
    {"CHARACTER VARYING", ColumnType::Text},
    {"NATIONAL CHAR", ColumnType::Text},
    {"NATIONAL CHARACTER", ColumnType::Text},
    {"NATIONAL CHAR VARYING", ColumnType::Text},
    {"NATIONAL CHARACTER VARYING", ColumnType::Text},
    {"MEMO", ColumnType::Memo},
    {"LONGTEXT", ColumnType::Memo},
    {"LONGCHAR", ColumnType::Memo},
    {"NOTE", ColumnType::Memo},
    {"NTEXT", ColumnType::Memo},
    {"LONGBINARY", ColumnType::Ole},
    {"OLEOBJECT", ColumnType::Ole},
    {"GENERAL", ColumnType::Ole},
    {"IMAGE", ColumnType::Ole},
    {"BINARY", ColumnType::Binary},
    {"VARBINARY", ColumnType::Binary},
    {"BINARY VARYING", ColumnType::Binary},
    {"BIT VARYING", ColumnType::Binary},
    {"GUID", ColumnType::Guid},
    {"UNIQUEIDENTIFIER", ColumnType::Guid},
    {"DECIMAL", ColumnType::Numeric},
    {"NUMERIC", ColumnType::Numeric},
    {"DEC", ColumnType::Numeric},
};

}  // namespace

const NamedType* findType(const std::string& name) {
  const auto* found = std::ranges::find_if(
      NamedTypes, [&](const NamedType& candidate) { return sameWord(name, candidate.name); });
  return found == std::end(NamedTypes) ? nullptr : found;
}

Type parameterType(const tree::TypeName& type) {
  if (sameWord(type.name, "VALUE")) return Type::Variant;
  const NamedType* found = findType(type.name);
  if (!found) throw SyntaxError(ParametersSyntax, "tipo '" + type.name + "'", type.place.position);
  return typeOf(found->type);
}

}  // namespace jet::sql
