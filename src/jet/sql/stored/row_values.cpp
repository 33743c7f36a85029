#include "jet/sql/stored/row_values.h"

#include "jet/sql/parser/token.h"
#include "jet/sql/syntax_error.h"

namespace jet::sql::stored {

namespace {

struct KindFlag {
  QueryKind kind;
  std::int16_t flag;
};
constexpr KindFlag KindFlags[] = {
    {QueryKind::Select, 1}, {QueryKind::MakeTable, 2},      {QueryKind::Append, 3},
    {QueryKind::Update, 4}, {QueryKind::Delete, 5},         {QueryKind::Crosstab, 6},
    {QueryKind::Union, 9},  {QueryKind::DataDefinition, 7}, {QueryKind::PassThrough, 8},
};

struct ParameterType {
  std::string_view name;  // in capitals
  std::int16_t type;
};
constexpr ParameterType ParameterTypes[] = {
    {"BIT", 1},        {"YESNO", 1},       {"BOOLEAN", 1},    {"LOGICAL", 1},   {"BYTE", 2},
    {"SHORT", 3},      {"SMALLINT", 3},    {"INTEGER2", 3},   {"INTEGER", 4},   {"LONG", 4},
    {"INT", 4},        {"INTEGER4", 4},    {"CURRENCY", 5},   {"MONEY", 5},     {"SINGLE", 6},
    {"REAL", 6},       {"IEEESINGLE", 6},  {"DOUBLE", 7},     {"FLOAT", 7},     {"NUMBER", 7},
    {"IEEEDOUBLE", 7}, {"DATETIME", 8},    {"DATE", 8},       {"TIME", 8},      {"TIMESTAMP", 8},
    {"BINARY", 9},     {"VARBINARY", 9},   {"TEXT", 10},      {"STRING", 10},   {"CHAR", 10},
    {"VARCHAR", 10},   {"LONGBINARY", 11}, {"OLEOBJECT", 11}, {"LONGTEXT", 12}, {"MEMO", 12},
    {"GUID", 15},      {"DECIMAL", 16},    {"NUMERIC", 16},   {"VALUE", 0},
};

struct ParameterTypeName {
  std::int16_t type;
  std::string_view name;
};
constexpr ParameterTypeName ParameterTypeNames[] = {
    {1, "Bit"},         {2, "Byte"},       {3, "Short"},    {4, "Long"},     {5, "Currency"},
    {6, "IEEESingle"},  {7, "IEEEDouble"}, {8, "DateTime"}, {9, "Binary"},   {10, "Text"},
    {11, "LongBinary"}, {12, "LongText"},  {15, "Guid"},    {16, "Decimal"},
};

}  // namespace

std::int16_t kindFlag(QueryKind kind) {
  for (const auto& known : KindFlags)
    if (known.kind == kind) return known.flag;
  throw SyntaxError(InvalidStatement, "tipo di query sconosciuto", 0);
}

std::int16_t parameterType(std::string_view name) {
  for (const auto& known : ParameterTypes)
    if (sameWord(name, known.name)) return known.type;
  return 0;
}

std::string_view parameterTypeName(std::int16_t type) {
  for (const auto& known : ParameterTypeNames)
    if (known.type == type) return known.name;
  return "Value";
}

}  // namespace jet::sql::stored
