// UPDATE in SQLite's SQL, in one step and in two.
#include "jet/sql/translation/translator.h"
#include "runtime/join.h"

namespace jet::sql {

std::string Translator::assignments(const bound::Target& target) {
  return runtime::join(target.assignments, ", ", [&](const bound::Assignment& assignment) {
    return "c" + std::to_string(assignment.column) + " = " + value(assignment.value).text;
  });
}

/// The statements that change the row of a target, known by the spooled column k<key>.
void Translator::applyUpdate(const bound::Target& target, std::size_t key, Change& change) {
  const std::string table = "t" + std::to_string(target.page), name = "u.k" + std::to_string(key);
  spool_->target = target.source, spool_->page = target.page;
  change.steps.apply.push_back("UPDATE " + table + " SET " + assignments(target) +
                               " FROM temp.jet_rows AS u WHERE " + table + ".rowid = " + name);
  if (!target.optional) return;
  spool_->target.reset();
  change.steps.apply.push_back(insertInto(target.page, target.assignments, target.defaults) +
                               " FROM temp.jet_rows AS u WHERE " + name + " IS NULL");
}

Translator::Change Translator::update(const bound::Update& update) {
  const From source = from(update.from);
  Change change;
  Spool spool;
  spool_ = &spool;
  std::vector<unsigned> targets;
  bool stepsOnly = update.targets.size() > 1;
  for (const bound::Target& target : update.targets) {
    targets.push_back(target.source);
    applyUpdate(target, targets.size(), change);
    stepsOnly |= target.optional;
  }
  spool_ = nullptr;
  change.steps.spool = "SELECT " + spooledList(targets, spool) + " FROM " + source.text + where(update.where);
  // A row that the join finds several times gets the last of its values: the last as the rows lie, whatever
  // the plan.
  if (source.tables.size() > 1)
    for (const unsigned table : source.tables)
      change.steps.spool += (table == source.tables.front() ? " ORDER BY " : ", ") + rowid(table);
  if (source.tables.size() == 1) {
    change.sql =
        "UPDATE " + source.text + " SET " + assignments(update.targets.front()) + where(update.where);
  } else if (!stepsOnly && !spool.readsTarget) {
    // In one step as row by row. Without a limit SQLite forgets the order of a query in FROM.
    const std::string name = "temp.jet_rows";
    change.sql = change.steps.apply.front();
    change.sql.replace(change.sql.rfind(name), name.size(), "(" + change.steps.spool + " LIMIT -1)");
  }
  return change;
}

}  // namespace jet::sql
