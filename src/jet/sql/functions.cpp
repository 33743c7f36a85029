#include "jet/sql/functions.h"

#include <array>
#include <charconv>

#include "jet/sql/function_support.h"
#include "jet/sql/syntax_error.h"

namespace jet::sql {

namespace {

constexpr char source[] = "DAO.Database";

/// SQLite's words for what goes beyond a limit or a number's range.
struct Translation {
  std::string_view words;
  int number;
  const char* description;
};

constexpr Translation translations[] = {
    {"parser stack overflow", TooComplex, "Espressione troppo complessa"},
    {"Expression tree is too large", TooComplex, "Espressione troppo complessa"},
    {"too many", TooComplex, "Espressione troppo complessa"},
    {"at most 64 tables", TooComplex, "Espressione troppo complessa"},
    {"integer overflow", runtime::Overflow, "Overflow"},
};

}  // namespace

void registerFunctions(sqlite3* connection) {
  registerConversions(connection);
  registerArithmetic(connection);
  registerTextFunctions(connection);
  registerDateFunctions(connection);
  registerAggregates(connection);
}

void returnError(sqlite3_context* context, const runtime::Error& error) {
  const std::string text = std::to_string(error.number()) + "|" + error.description();
  sqlite3_result_error(context, text.data(), static_cast<int>(text.size()));
}

runtime::Error errorFromSqlite(sqlite3* connection) {
  constexpr int reservedError = 3000;
  const std::string text = sqlite3_errmsg(connection);
  int number = 0;
  const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (failure == std::errc{} && end < text.data() + text.size() && *end == '|')
    return {number, source, end + 1};
  for (const Translation& translation : translations) {
    if (text.find(translation.words) != std::string::npos) {
      return {translation.number, source, translation.description};
    }
  }
  return {reservedError, source, "Errore del motore: " + text};
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
