// The spool of a change in two steps: each expression that a row brings along becomes a column of it once.
#include <algorithm>

#include "jet/sql/translation/translator.h"

namespace jet::sql {

std::string Translator::spooledAs(Spool& spool, std::string text) {
  auto found = std::ranges::find(spool.columns, text);
  if (found == spool.columns.end()) found = spool.columns.insert(found, std::move(text));
  return "u.v" + std::to_string(found - spool.columns.begin() + 1);
}

std::string Translator::spooled(const bound::Column& column) {
  if (column.source != spool_->target) {
    return spooledAs(*spool_, "a" + std::to_string(column.source) + "." + columnName(column));
  }
  spool_->readsTarget = true;
  return "t" + std::to_string(spool_->page) + "." + columnName(column);
}

Sql Translator::spooled(const std::function<Sql()>& subquery) {
  if (!spool_) return subquery();
  Spool* const spool = std::exchange(spool_, nullptr);
  Sql inner = subquery();
  spool_ = spool;
  return {spooledAs(*spool, std::move(inner.text))};
}

std::string Translator::spooledList(const std::vector<unsigned>& targets, const Spool& spool) const {
  std::string list;
  const auto add = [&](const std::string& text, char letter, std::size_t number) {
    list += (list.empty() ? "" : ", ") + text + " AS " + letter + std::to_string(number);
  };
  for (std::size_t i = 0; i < targets.size(); ++i) add(rowid(targets[i]), 'k', i + 1);
  for (std::size_t i = 0; i < spool.columns.size(); ++i) add(spool.columns[i], 'v', i + 1);
  if (list.empty()) add("1", 'v', 1);
  return list;
}

}  // namespace jet::sql
