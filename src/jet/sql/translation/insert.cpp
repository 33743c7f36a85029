// INSERT in SQLite's SQL.
#include "jet/sql/translation/translator.h"

namespace jet::sql {

std::string Translator::insertInto(std::uint32_t page, const std::vector<bound::Assignment>& assignments,
                                   const std::vector<bound::Assignment>& defaults) {
  std::string columns, values;
  for (const auto* list : {&assignments, &defaults}) {
    for (const bound::Assignment& assignment : *list) {
      columns += (columns.empty() ? "c" : ", c") + std::to_string(assignment.column);
      values += (values.empty() ? "" : ", ") + value(assignment.value).text;
    }
  }
  return "INSERT INTO t" + std::to_string(page) + " (" + columns + ") SELECT " + values;
}

Translator::Change Translator::insert(const bound::Insert& insert) {
  std::string rows;
  if (insert.rows) {
    rows = " FROM (" + query(*insert.rows->query, Shape{true, true, false}) + ") AS a" +
           std::to_string(insert.rows->source);
  }
  Change change{insertInto(insert.page, insert.assignments, insert.defaults) + rows, {}};
  Spool spool;
  spool_ = &spool;
  change.steps.apply.push_back(insertInto(insert.page, insert.assignments, insert.defaults) +
                               " FROM temp.jet_rows AS u");
  spool_ = nullptr;
  change.steps.spool = "SELECT " + spooledList({}, spool) + rows;
  return change;
}

}  // namespace jet::sql
