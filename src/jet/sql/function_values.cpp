// Functions that look at a value: formats, kinds, digits, choices.
#include "jet/sql/function_support.h"
#include "runtime/format.h"
#include "runtime/inspection.h"
#include "runtime/numbers.h"

namespace jet::sql {

namespace {

using runtime::Variant;

/// The value of two arguments: the number of its type, and it.
Variant typedValue(sqlite3_value** arguments) {
  return decodeValue(image::Argument{arguments[1]}, typeArgument(arguments[0]));
}

/// (type, value[, pattern[, first day[, first week]]])
void format(sqlite3_context* context, int count, sqlite3_value** arguments) {
  const auto optional = [&](int index) { return index < count ? sqlite3_value_int(arguments[index]) : 1; };
  const std::string_view pattern = count > 2 ? textOf(arguments[2]) : std::string_view();
  returnText(context, runtime::format(typedValue(arguments), pattern, optional(3), optional(4)));
}

/// (type, value[, decimals[, leading zero[, parentheses[, grouping]]]]); where an option is not told, or is
/// `untold`, two decimals, a leading zero, a minus sign and groups of thousands.
template <const char* before, const char* behind>
void formatAmount(sqlite3_context* context, int count, sqlite3_value** arguments) {
  constexpr int untold = -2, mostDecimals = 99;
  const auto option = [&](int index) { return index < count ? sqlite3_value_int(arguments[index]) : untold; };
  const int wanted = option(2) < 0 ? 2 : option(2);
  if (wanted > mostDecimals) throw runtime::languageError(runtime::InvalidCall);
  std::string number = option(5) == 0 ? "" : "#,##";
  number += option(3) == 0 ? "#" : "0";
  if (wanted > 0) number += "." + std::string(static_cast<std::size_t>(wanted), '0');
  number = before + number + behind;
  const bool parentheses = option(4) == -1;
  const std::string pattern = number + ";" + (parentheses ? "(" + number + ")" : "-" + number);
  returnText(context, runtime::format(typedValue(arguments), pattern));
}

/// (type, value[, which])
void formatDateTime(sqlite3_context* context, int count, sqlite3_value** arguments) {
  static constexpr const char* names[] = {"General Date", "Long Date", "Short Date", "Long Time",
                                          "Short Time"};
  const std::int64_t which = count > 2 ? sqlite3_value_int64(arguments[2]) : 0;
  if (which < 0 || which >= std::ssize(names)) throw runtime::languageError(runtime::InvalidCall);
  returnText(context, runtime::format(typedValue(arguments), names[which]));
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

constexpr char Nothing[] = "", Euro[] = "€ ", Percent[] = "%";

constexpr SqliteFunction ValuesFunctions[] = {
    {"jet_format", -1, withErrors<format>},
    {"jet_format_number", -1, withErrors<formatAmount<Nothing, Nothing>>},
    {"jet_format_currency", -1, withErrors<formatAmount<Euro, Nothing>>},
    {"jet_format_percent", -1, withErrors<formatAmount<Nothing, Percent>>},
    {"jet_format_date_time", -1, withErrors<formatDateTime>},
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
  registerAll(connection, ValuesFunctions);
}

}  // namespace jet::sql
