// Makes all functions known to a connection.
#include "jet/sql/functions.h"

#include "jet/sql/function_support.h"

namespace jet::sql {

void registerFunctions(sqlite3* connection) {
  registerConversions(connection);
  registerArithmetic(connection);
  registerMathematics(connection);
  registerValueFunctions(connection);
  registerTextFunctions(connection);
  registerDateFunctions(connection);
  registerAggregates(connection);
  registerSingleValue(connection);
}

void returnError(sqlite3_context* context, const runtime::Error& error) {
  const std::string text = std::to_string(error.number()) + "|" + error.description();
  sqlite3_result_error(context, text.data(), static_cast<int>(text.size()));
}

std::string_view textOf(sqlite3_value* value) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
  return {text ? text : "", static_cast<std::size_t>(sqlite3_value_bytes(value))};
}

void returnText(sqlite3_context* context, std::string_view text) {
  sqlite3_result_text64(context, text.data() ? text.data() : "", text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
}

void returnLong(sqlite3_context* context, std::int64_t value) {
  if (value < INT32_MIN || value > INT32_MAX) throw runtime::languageError(runtime::Overflow);
  sqlite3_result_int64(context, value);
}

}  // namespace jet::sql
