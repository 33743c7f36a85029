// Queries: their parts, the types that a UNION's columns have in common, and the order.
#include <algorithm>
#include <charconv>

#include "jet/sql/binder/binder.h"
#include "jet/sql/syntax_error.h"

namespace jet::sql {

namespace {

/// A key that names a result column by its position from 1 or by its name; nothing for another expression.
std::optional<std::size_t> columnOf(const tree::OrderItem& item, const std::vector<bound::Item>& items) {
  if (const auto* literal = std::get_if<tree::Literal>(&item.value.node)) {
    if (literal->kind != tree::Literal::Kind::Number) return std::nullopt;
    std::size_t position = 0;
    std::from_chars(literal->text.data(), literal->text.data() + literal->text.size(), position);
    if (position >= 1 && position <= items.size()) return position - 1;
    throw SyntaxError(OrderBySyntax, literal->text, item.value.place.position);
  }
  const auto* name = std::get_if<tree::Name>(&item.value.node);
  if (!name || !name->table.empty()) return std::nullopt;
  const auto found = std::ranges::find_if(
      items, [&](const auto& column) { return file::sameName(column.name, name->column); });
  return found == items.end() ? std::nullopt : std::optional<std::size_t>(found - items.begin());
}

std::vector<bound::OrderKey> orderUnion(const std::vector<tree::OrderItem>& items,
                                        const bound::Select& first) {
  std::vector<bound::OrderKey> keys;
  for (const tree::OrderItem& item : items) {
    const auto position = columnOf(item, first.items);
    if (!position) throw SyntaxError(OrderBySyntax, "", item.value.place.position);
    keys.push_back({*position, item.descending});
  }
  return keys;
}

/// Gives the columns of all parts the types that they have in common.
void joinTypes(bound::Query& query) {
  for (std::size_t column = 0; column < query.parts.front().items.size(); ++column) {
    Type type = query.parts.front().items[column].value.type;
    for (const bound::Select& part : query.parts) type = commonType(type, part.items[column].value.type);
    for (bound::Select& part : query.parts) {
      part.items[column].value = convert(std::move(part.items[column].value), type);
    }
  }
}

}  // namespace

std::vector<bound::OrderKey> Binder::orderBy(const std::vector<tree::OrderItem>& items,
                                             const bound::Select& select) {
  std::vector<bound::OrderKey> keys;
  for (const tree::OrderItem& item : items) keys.push_back(orderKey(item, select));
  if (select.grouped && !ungrouped_.empty()) {
    throw SyntaxError(NotAggregated, ungrouped_.front().name, ungrouped_.front().position);
  }
  return keys;
}

bound::OrderKey Binder::orderKey(const tree::OrderItem& item, const bound::Select& select) {
  if (const auto position = columnOf(item, select.items)) {
    context_.noteCompared(select.items[*position].value);
    return {*position, item.descending};
  }
  bound::Expression value = expression(item.value);
  context_.noteCompared(value);
  for (std::size_t i = 0; i < select.items.size(); ++i) {
    if (select.items[i].value == value) return {i, item.descending};
  }
  if (select.distinct) throw SyntaxError(OrderConflictsWithDistinct, "", item.value.place.position);
  return {std::move(value), item.descending};
}

bound::Query bindQuery(Context& context, const Scope* outer, const tree::Query& tree) {
  bound::Query query;
  query.all = tree.all;
  for (const tree::Select& part : tree.parts) {
    Binder binder(context, outer);
    query.parts.push_back(binder.select(part));
    if (query.parts.back().items.size() != query.parts.front().items.size()) {
      throw SyntaxError(UnionColumnsDiffer, "", part.items.front().place.position);
    }
    if (tree.parts.size() == 1) query.orderBy = binder.orderBy(tree.orderBy, query.parts.front());
  }
  if (query.parts.size() > 1) {
    joinTypes(query);
    query.orderBy = orderUnion(tree.orderBy, query.parts.front());
  }
  return query;
}

}  // namespace jet::sql
