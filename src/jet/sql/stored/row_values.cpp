// The numbers and names in the rows of stored queries.
#include "jet/sql/stored/row_values.h"

#include "jet/sql/binder/type_name.h"
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

/// The rows number the types as columns do.
std::int16_t parameterType(const std::string& name) {
  const NamedType* known = findType(name);
  return known ? static_cast<std::int16_t>(known->type) : std::int16_t{0};
}

std::string_view parameterTypeName(std::int16_t type) {
  for (const auto& known : ParameterTypeNames)
    if (known.type == type) return known.name;
  return "Value";
}

}  // namespace jet::sql::stored
