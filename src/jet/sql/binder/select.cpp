// SELECT: the list, grouping, and what may stand outside of an aggregate.
#include <algorithm>

#include "jet/sql/binder/binder.h"
#include "jet/sql/syntax_error.h"

namespace jet::sql {

using bound::Select;

Select Binder::select(const tree::Select& tree) {
  Select result;
  result.distinct = tree.distinct;
  result.top = tree.top;
  if (!tree.in.empty()) throw SyntaxError(ExternalDatabase, tree.in, tree.from.front().place.position);
  result.from = from(tree.from);
  result.where = clause(tree.where);
  groupBy(tree, result);
  for (const tree::SelectItem& item : tree.items) {
    if (item.alias.empty()) continue;
    aliases_.push_back({item.alias, &std::get<tree::Expression>(item.value), false});
  }
  aggregatesAllowed_ = true;
  items(tree, result);
  if (tree.distinctRow && !aggregateSeen_ && tree.groupBy.empty()) result.distinctRows = distinctRows();
  result.having = clause(tree.having);
  result.grouped = aggregateSeen_ || !tree.groupBy.empty() || tree.having;
  aggregatesAllowed_ = result.grouped;
  if (result.grouped && !ungrouped_.empty()) {
    throw SyntaxError(NotAggregated, ungrouped_.front().name, ungrouped_.front().position);
  }
  return result;
}

void Binder::groupBy(const tree::Select& tree, Select& result) {
  for (const tree::Expression& key : tree.groupBy) {
    result.groupBy.push_back(expression(key));
    context_.noteCompared(result.groupBy.back());
  }
  groupKeys_ = result.groupBy;  // only now: a key is no part of another one
  ungrouped_.clear();
}

/// The tables whose columns the list has read, if there are others as well and all are tables.
std::vector<unsigned> Binder::distinctRows() const {
  std::vector<unsigned> tables;
  for (const VisibleSource& source : scope_.sources()) {
    if (!source.table) return {};
    if (std::ranges::find(ungrouped_, source.source, &UngroupedColumn::source) != ungrouped_.end()) {
      tables.push_back(source.source);
    }
  }
  return tables.size() < scope_.sources().size() ? tables : std::vector<unsigned>();
}

void Binder::items(const tree::Select& tree, Select& result) {
  for (const tree::SelectItem& treeItem : tree.items) {
    if (const auto* all = std::get_if<tree::Star>(&treeItem.value)) {
      star(*all, treeItem.place.position, result);
    } else {
      item(treeItem, result);
    }
  }
  nameItems(tree, result);
}

void Binder::star(const tree::Star& star, std::size_t position, Select& result) {
  if (scope_.sources().empty()) throw SyntaxError(SelectSyntax, "*", position);
  if (!star.table.empty() && !scope_.find(star.table)) throw SyntaxError(UnknownTable, star.table, position);
  for (const VisibleSource& source : scope_.sources()) {
    if (!star.table.empty() && &source != scope_.find(star.table)) continue;
    for (VisibleColumn& column : source.columns()) {
      context_.countNode(position);
      if (std::ranges::find(groupKeys_, column.value) == groupKeys_.end())
        ungrouped_.push_back({column.name, position, source.source});
      result.items.push_back({std::move(column.value), std::move(column.name), std::move(column.sourceTable),
                              std::move(column.sourceColumn), source.source});
    }
  }
}

void Binder::item(const tree::SelectItem& tree, Select& result) {
  const auto& value = std::get<tree::Expression>(tree.value);
  for (Alias& alias : aliases_) alias.open = alias.value == &value;
  bound::Item item{expression(value), tree.alias, "", "", {}};
  for (Alias& alias : aliases_) alias.open = false;
  const auto* name = std::get_if<tree::Name>(&value.node);
  auto found = name ? scope_.find(*name, value.place.position) : std::nullopt;
  if (found) {
    if (item.name.empty()) item.name = found->column.name;
    item.sourceTable = std::move(found->column.sourceTable);
    item.sourceColumn = std::move(found->column.sourceColumn);
    item.source = found->source->source;
  }
  result.items.push_back(std::move(item));
}

/// What has no name is called by its position; columns of one name are told apart by their tables' names.
void Binder::nameItems(const tree::Select& tree, Select& result) {
  constexpr std::size_t firstNumber = 1000;
  const bool mayClash = tree.items.size() > 1 || scope_.sources().size() > 1;
  std::vector<std::string> names;
  for (std::size_t i = 0; i < result.items.size(); ++i) {
    const bound::Item& item = result.items[i];
    std::string name = item.name.empty() ? "Expr" + std::to_string(firstNumber + i) : item.name;
    const auto same = [&](const bound::Item& other) {
      return &other != &item && file::sameName(other.name, name);
    };
    const bool aliased =
        std::ranges::any_of(tree.items, [&](const auto& treeItem) { return treeItem.alias == name; });
    if (mayClash && item.source && !aliased && std::ranges::any_of(result.items, same)) {
      for (const VisibleSource& source : scope_.sources()) {
        if (source.source == *item.source) name = source.name + "." + name;
      }
    }
    names.push_back(std::move(name));
  }
  for (std::size_t i = 0; i < names.size(); ++i) result.items[i].name = std::move(names[i]);
}

}  // namespace jet::sql
