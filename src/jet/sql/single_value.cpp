// A sub-query that stands for one value and gives more rows is an error.
#include "jet/sql/function_support.h"
#include "jet/sql/syntax_error.h"

namespace jet::sql {

namespace {

/// jet_single(rows, value): the value of a sub-query that gives `rows` rows. Error 3354 for more than one.
void single(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (sqlite3_value_int64(arguments[0]) <= 1) return sqlite3_result_value(context, arguments[1]);
  returnError(context, {SubqueryRows, source::Database, "La sottoquery restituisce più di un record"});
}

}  // namespace

void registerSingleValue(sqlite3* connection) {
  sqlite3_create_function_v2(connection, "jet_single", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, single,
                             nullptr, nullptr, nullptr);
}

}  // namespace jet::sql
