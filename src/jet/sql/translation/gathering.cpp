#include <algorithm>

#include "jet/sql/translation/translator.h"

namespace jet::sql {

std::string Translator::gatheredAs(Gathering& gathering, std::string text) {
  auto found = std::ranges::find(gathering.columns, text);
  if (found == gathering.columns.end()) found = gathering.columns.insert(found, std::move(text));
  return "u.v" + std::to_string(found - gathering.columns.begin() + 1);
}

std::string Translator::gathered(const bound::Column& column) {
  if (column.source != gathering_->target) {
    return gatheredAs(*gathering_, "a" + std::to_string(column.source) + "." + columnName(column));
  }
  gathering_->readsTarget = true;
  return "t" + std::to_string(gathering_->page) + "." + columnName(column);
}

Sql Translator::gathered(const std::function<Sql()>& subquery) {
  if (!gathering_) return subquery();
  Gathering* const gathering = std::exchange(gathering_, nullptr);
  Sql inner = subquery();
  gathering_ = gathering;
  return {gatheredAs(*gathering, std::move(inner.text))};
}

std::string Translator::gatheredList(const std::vector<unsigned>& targets, const Gathering& gathering) const {
  std::string list;
  const auto add = [&](const std::string& text, char letter, std::size_t number) {
    list += (list.empty() ? "" : ", ") + text + " AS " + letter + std::to_string(number);
  };
  for (std::size_t i = 0; i < targets.size(); ++i) add(rowid(targets[i]), 'k', i + 1);
  for (std::size_t i = 0; i < gathering.columns.size(); ++i) add(gathering.columns[i], 'v', i + 1);
  if (list.empty()) add("1", 'v', 1);
  return list;
}

}  // namespace jet::sql
