// Auto-numbers of new rows, given out by triggers of the image.
#include "jet/image/auto_numbers.h"

#include <algorithm>

#include "jet/image/row_codec.h"
#include "jet/image/triggers.h"

namespace jet::image {

AutoNumbers::AutoNumbers(Tables& tables) : tables_(tables) {
  const auto handle = tables.connection().handle();
  sqlite3_create_function_v2(handle, "jet_auto_number", 2, SQLITE_UTF8, this, &next, nullptr, nullptr,
                             nullptr);
  sqlite3_create_function_v2(handle, "jet_identity", 0, SQLITE_UTF8, this, &identity, nullptr, nullptr,
                             nullptr);
}

void AutoNumbers::addTriggers(const file::TableDefinition& design) {
  for (const auto& column : design.columns) {
    if (!column.autoNumber()) continue;
    const std::string page = std::to_string(design.page), name = columnName(column.number);
    const std::string number = "jet_auto_number(" + page + ", NEW." + name + ")";
    tables_.autoNumbers().emplace(design.page, design.autoNumber);
    const auto& connection = tables_.connection();
    connection.execute(afterTrigger(
        "a" + page + name, "INSERT", design.page, "NEW." + name + " IS NULL",
        "UPDATE " + tableName(design.page) + " SET " + name + " = " + number + " WHERE rowid = NEW.rowid"));
    connection.execute(afterTrigger("a" + page + name + "given", "INSERT", design.page,
                                    "NEW." + name + " IS NOT NULL", "SELECT " + number));
  }
}

void AutoNumbers::fill(const file::TableDefinition& design, const file::Column& column) {
  tables_.connection().execute("UPDATE " + tableName(design.page) + " SET " + columnName(column.number) +
                               " = jet_auto_number(" + std::to_string(design.page) + ", NULL)");
}

void AutoNumbers::next(sqlite3_context* context, int, sqlite3_value** values) {
  auto& self = *static_cast<AutoNumbers*>(sqlite3_user_data(context));
  auto& last = self.tables_.autoNumbers()[static_cast<std::uint32_t>(sqlite3_value_int64(values[0]))];
  if (sqlite3_value_type(values[1]) != SQLITE_NULL) {
    const auto given = sqlite3_value_int64(values[1]);
    last = std::max(last, static_cast<std::int32_t>(given));
    return sqlite3_result_int64(context, given);
  }
  if (last == INT32_MAX) return sqlite3_result_error(context, "6|Contatore esaurito", -1);
  self.identity_ = ++last;
  sqlite3_result_int64(context, last);
}

void AutoNumbers::identity(sqlite3_context* context, int, sqlite3_value**) {
  sqlite3_result_int64(context, static_cast<AutoNumbers*>(sqlite3_user_data(context))->identity_);
}

}  // namespace jet::image
