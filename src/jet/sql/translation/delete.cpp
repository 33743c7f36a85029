// DELETE in SQLite's SQL.
#include "jet/sql/translation/translator.h"

namespace jet::sql {

Translator::Change Translator::deletion(const bound::Delete& deletion) {
  const From source = from(deletion.from);
  const std::string table = "DELETE FROM t" + std::to_string(deletion.page), key = rowid(deletion.target);
  Change change;
  change.steps.apply.push_back(table + " WHERE rowid IN (SELECT u.k1 FROM temp.jet_rows AS u)");
  if (source.tables.size() == 1) {
    const std::string rest = " FROM " + source.text + where(deletion.where);
    change.sql = "DELETE" + rest;
    change.steps.spool = "SELECT " + key + " AS k1" + rest;
    return change;
  }
  // An outer join may find no row of the table.
  const std::string found = key + " IS NOT NULL";
  const std::string rest =
      " FROM " + source.text + " WHERE " +
      (deletion.where ? within(condition(*deletion.where), Strength::And) + " AND " + found : found);
  change.sql = table + " WHERE rowid IN (SELECT " + key + rest + ")";
  change.steps.spool = "SELECT DISTINCT " + key + " AS k1" + rest;
  return change;
}

}  // namespace jet::sql
