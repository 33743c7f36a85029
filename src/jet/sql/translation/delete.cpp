#include "jet/sql/translation/translator.h"

namespace jet::sql {

std::string Translator::deletion(const bound::Delete& deletion) {
  const From source = from(deletion.from);
  if (source.tables.size() == 1) return "DELETE FROM " + source.text + where(deletion.where);
  return "DELETE FROM t" + std::to_string(deletion.page) + " WHERE rowid IN (SELECT " +
         rowid(deletion.target) + " FROM " + source.text + where(deletion.where) + ")";
}

}  // namespace jet::sql
