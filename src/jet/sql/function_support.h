#pragma once

#include <sqlite3.h>

#include <string>
#include <string_view>

#include "jet/sql/type.h"
#include "jet/sql/value_codec.h"
#include "runtime/error.h"
#include "runtime/variant.h"

/// What the SQLite functions of this folder have in common.
namespace jet::sql {

/// The type that a statement tells a function of by its number.
inline Type typeArgument(sqlite3_value* value) {
  return static_cast<Type>(sqlite3_value_int(value));
}

/// UTF-8 of a value, valid as long as the value.
std::string_view textOf(sqlite3_value* value);
void returnText(sqlite3_context* context, std::string_view text);
/// A Long of SQLite's 64 bits; error 6 outside.
void returnLong(sqlite3_context* context, std::int64_t value);

/// Makes `error` the result; errorFromSqlite reads it again.
void returnError(sqlite3_context* context, const runtime::Error& error);

using FunctionBody = void (*)(sqlite3_context*, int count, sqlite3_value** arguments);

/// Runs `body`, whose runtime::Error becomes the function's.
template <FunctionBody body>
void withErrors(sqlite3_context* context, int count, sqlite3_value** arguments) {
  try {
    body(context, count, arguments);
  } catch (const runtime::Error& error) {
    returnError(context, error);
  } catch (const std::bad_alloc&) {
    sqlite3_result_error_nomem(context);
  }
}

/// The same; Null where an argument is Null.
template <FunctionBody body>
void nullIfAnyIsNull(sqlite3_context* context, int count, sqlite3_value** arguments) {
  for (int i = 0; i < count; ++i) {
    if (sqlite3_value_type(arguments[i]) == SQLITE_NULL) return sqlite3_result_null(context);
  }
  withErrors<body>(context, count, arguments);
}

/// Argument `index` as a whole number, or `otherwise` where it is not given.
template <typename Whole>
Whole optionalArgument(int count, sqlite3_value** arguments, int index, Whole otherwise) {
  return index < count ? static_cast<Whole>(sqlite3_value_int64(arguments[index])) : otherwise;
}

/// A function as data, for one registration loop. `arguments` is -1 for any number.
struct SqliteFunction {
  const char* name;
  int arguments;
  FunctionBody call;
};

/// Registers each of `functions`. All count as deterministic: a call whose arguments are constants is made
/// once for a statement, so that Now() and Rnd() are one value in it, as the engine has them.
template <std::size_t Count>
void registerAll(sqlite3* connection, const SqliteFunction (&functions)[Count]) {
  for (const SqliteFunction& function : functions) {
    sqlite3_create_function_v2(connection, function.name, function.arguments,
                               SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, function.call, nullptr, nullptr,
                               nullptr);
  }
}

void registerConversions(sqlite3* connection);
void registerArithmetic(sqlite3* connection);
void registerMathematics(sqlite3* connection);
void registerValueFunctions(sqlite3* connection);
void registerTextFunctions(sqlite3* connection);
void registerDateFunctions(sqlite3* connection);
void registerAggregates(sqlite3* connection);
void registerSingleValue(sqlite3* connection);

}  // namespace jet::sql
