#include "jet/sql/function_support.h"
#include "runtime/format.h"
#include "runtime/inspection.h"
#include "runtime/numbers.h"

namespace jet::sql {

namespace {

using runtime::Variant;

/// The value of two arguments: the number of its type, and it.
Variant typedValue(sqlite3_value** arguments) {
  const bool null = sqlite3_value_type(arguments[1]) == SQLITE_NULL;
  return readValue(arguments[1], null ? Type::Null : typeArgument(arguments[0]));
}

/// (type, value[, pattern[, first day[, first week]]])
void format(sqlite3_context* context, int count, sqlite3_value** arguments) {
  const auto optional = [&](int index) { return index < count ? sqlite3_value_int(arguments[index]) : 1; };
  const std::string_view pattern = count > 2 ? textOf(arguments[2]) : std::string_view();
  returnText(context, runtime::format(typedValue(arguments), pattern, optional(3), optional(4)));
}

template <bool (*test)(const Variant&)>
void is(sqlite3_context* context, int, sqlite3_value** arguments) {
  sqlite3_result_int(context, test(typedValue(arguments)) ? -1 : 0);
}

void typeOfValue(sqlite3_context* context, int, sqlite3_value** arguments) {
  returnText(context, runtime::typeName(typedValue(arguments)));
}

void varType(sqlite3_context* context, int, sqlite3_value** arguments) {
  sqlite3_result_int(context, runtime::varType(typedValue(arguments)));
}

/// The digits of 16 bits for what is no wider, otherwise of 32.
template <std::string (*narrow)(std::int16_t), std::string (*wide)(std::int32_t)>
void digits(sqlite3_context* context, int, sqlite3_value** arguments) {
  const Variant value = typedValue(arguments);
  const bool isNarrow = typeArgument(arguments[0]) <= Type::Integer && value.kind() != Variant::Kind::Double;
  returnText(context, isNarrow ? narrow(value.toInteger()) : wide(value.toLong()));
}

/// The value itself; what is said where a Null can't stand.
void notNull(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (sqlite3_value_type(arguments[0]) == SQLITE_NULL)
    throw runtime::languageError(runtime::InvalidUseOfNull);
  sqlite3_result_value(context, arguments[0]);
}

/// (index, value, ...): Null outside the values.
void choose(sqlite3_context* context, int count, sqlite3_value** arguments) {
  const std::int64_t index = sqlite3_value_int64(arguments[0]);
  if (index < 1 || index >= count) return sqlite3_result_null(context);
  sqlite3_result_value(context, arguments[index]);
}

constexpr SqliteFunction functions[] = {
    {"jet_format", -1, withErrors<format>},
    {"jet_is_date", 2, withErrors<is<runtime::isDate>>},
    {"jet_is_numeric", 2, withErrors<is<runtime::isNumeric>>},
    {"jet_type_name", 2, withErrors<typeOfValue>},
    {"jet_var_type", 2, withErrors<varType>},
    {"jet_hex", 2, nullIfAnyIsNull<digits<runtime::hex, runtime::hex>>},
    {"jet_oct", 2, nullIfAnyIsNull<digits<runtime::oct, runtime::oct>>},
    {"jet_not_null", 1, withErrors<notNull>},
    {"jet_choose", -1, withErrors<choose>},
};

}  // namespace

void registerValueFunctions(sqlite3* connection) {
  registerAll(connection, functions);
}

}  // namespace jet::sql
