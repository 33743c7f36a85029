#include "jet/sql/translation/translator.h"

namespace jet::sql {

std::string Translator::insert(const bound::Insert& insert) {
  std::string columns, values;
  for (const bound::Assignment& assignment : insert.assignments) {
    columns += (columns.empty() ? "c" : ", c") + std::to_string(assignment.column);
    values += (values.empty() ? "" : ", ") + value(assignment.value).text;
  }
  std::string text = "INSERT INTO t" + std::to_string(insert.page) + " (" + columns + ") SELECT " + values;
  if (insert.rows) {
    text += " FROM (" + query(*insert.rows->query, Shape{true, true, false}) + ") AS a" +
            std::to_string(insert.rows->source);
  }
  return text;
}

}  // namespace jet::sql
