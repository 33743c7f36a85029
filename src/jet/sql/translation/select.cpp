// SELECT in SQLite's SQL.
#include <algorithm>

#include "jet/sql/translation/translator.h"

namespace jet::sql {

/// SELECT to HAVING; `moreColumns` stand behind the items and their row keys, each after a comma.
std::string Translator::select(const bound::Select& select, const From& from, Shape shape,
                               const std::string& moreColumns) {
  const std::string outerKey =
      std::exchange(firstKey_, from.tables.empty() ? "0" : rowid(from.tables.front()));
  std::string text = select.distinct ? "SELECT DISTINCT " : "SELECT ";
  for (std::size_t i = 0; i < select.items.size(); ++i) {
    const bound::Expression& item = select.items[i].value;
    const bool compared = select.distinct || shape.ordered;
    std::string column = (compared ? ordered(item) : value(item)).text;
    // SQLite takes HAVING without GROUP BY only where an aggregate stands in the list.
    if (i == 0 && select.having && select.groupBy.empty()) column = "iif(count(*) < 0, NULL, " + column + ")";
    text += (i ? ", " : "") + column;
    if (shape.named) text += " AS x" + std::to_string(i + 1);
  }
  const auto& distinctRows = select.distinctRows;
  const auto isKept = [&](unsigned table) {
    return distinctRows.empty() || std::ranges::find(distinctRows, table) != distinctRows.end();
  };
  if (shape.withRowKeys) {
    for (const unsigned table : from.tables) {
      text += ", " + (isKept(table) ? rowid(table) : "NULL") +
              (shape.named ? " AS k" + std::to_string(table) : "");
    }
  }
  text += moreColumns;
  if (!from.text.empty()) text += " FROM " + from.text;
  text += where(select.where);
  for (std::size_t i = 0; i < select.groupBy.size(); ++i) {
    text += (i ? ", " : " GROUP BY ") + ordered(select.groupBy[i]).text;
  }
  for (std::size_t i = 0; i < distinctRows.size(); ++i) {
    text += (i ? ", " : " GROUP BY ") + rowid(distinctRows[i]);
  }
  if (select.having) text += " HAVING " + condition(*select.having).text;
  firstKey_ = outerKey;
  return text;
}

}  // namespace jet::sql
