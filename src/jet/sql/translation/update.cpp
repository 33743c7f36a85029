#include "jet/sql/translation/translator.h"

namespace jet::sql {

/// Over joins the new values are gathered first, so that no row is found by what another one has become.
std::string Translator::update(const bound::Update& update) {
  const From source = from(update.from);
  const bool joined = source.tables.size() != 1;
  const std::string table = "t" + std::to_string(update.page);
  std::string assignments, values;
  for (std::size_t i = 0; i < update.assignments.size(); ++i) {
    const std::string text = value(update.assignments[i].value).text, name = "v" + std::to_string(i + 1);
    values += ", " + text + " AS " + name;
    assignments += (i ? ", c" : "c") + std::to_string(update.assignments[i].column) + " = " +
                   (joined ? "u." + name : text);
  }
  if (!joined) return "UPDATE " + source.text + " SET " + assignments + where(update.where);
  return "UPDATE " + table + " SET " + assignments + " FROM (SELECT " + rowid(update.target) + " AS k" +
         values + " FROM " + source.text + where(update.where) + ") AS u WHERE " + table + ".rowid = u.k";
}

}  // namespace jet::sql
