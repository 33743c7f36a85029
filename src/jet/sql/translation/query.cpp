// Queries in SQLite's SQL: UNION, the engine's order, TOP.
#include "jet/sql/translation/translator.h"

namespace jet::sql {

namespace {

/// True if each row of the result stands for one row of each table.
bool keepsRows(const bound::Query& query) {
  const bound::Select& first = query.parts.front();
  return query.parts.size() == 1 && !first.grouped && !first.distinct;
}

bool isOneTable(const std::vector<bound::Source>& from) {
  return from.size() == 1 && std::holds_alternative<bound::TableSource>(from.front().node);
}

std::string direction(const bound::OrderKey& key) {
  return key.descending ? " DESC" : "";
}

}  // namespace

std::string Translator::query(const bound::Query& tree, bool withRowKeys) {
  return query(tree, Shape{false, true, withRowKeys && keepsRows(tree)});
}

std::string Translator::query(const bound::Query& tree, Shape shape) {
  if (tree.parts.size() == 1) return single(tree, shape);
  std::string text;
  for (std::size_t i = 0; i < tree.parts.size(); ++i) {
    const bound::Select& part = tree.parts[i];
    if (i > 0) text += tree.all[i - 1] ? " UNION ALL " : " UNION ";
    // The first part's text order is that by which UNION finds equal rows.
    std::string piece = select(part, from(part.from), Shape{shape.named || part.top, true, false}, "");
    if (part.top) piece = "SELECT * FROM (" + piece + " LIMIT " + std::to_string(part.top->count) + ")";
    text += piece;
  }
  for (std::size_t i = 0; i < tree.orderBy.size(); ++i) {
    const bound::OrderKey& key = tree.orderBy[i];
    text += (i ? ", " : " ORDER BY ") + orderKey(key, tree.parts.front().items);
  }
  return text;
}

std::string Translator::single(const bound::Query& tree, Shape shape) {
  const bound::Select& part = tree.parts.front();
  if (part.top && (part.top->percent || !tree.orderBy.empty())) return ranked(tree, shape);
  const From source = from(part.from);
  if (shape.withRowKeys) rowKeys_ = source.tables.size();
  std::string text = select(part, source, {shape.named, false, shape.withRowKeys}, "") +
                     orderBy(tree, source, shape.ordered || part.top);
  if (part.top) text += " LIMIT " + std::to_string(part.top->count);
  return text;
}

/// The engine's order: the keys, and what they leave open by the rows' place in the file; without keys,
/// groups and distinct rows by their values.
std::string Translator::orderBy(const bound::Query& tree, const From& from, bool ordered) {
  const bound::Select& part = tree.parts.front();
  std::string text;
  const auto add = [&](const std::string& key) { text += (text.empty() ? " ORDER BY " : ", ") + key; };
  for (const bound::OrderKey& key : tree.orderBy) add(orderKey(key, part.items));
  const bool sorted = !tree.orderBy.empty();
  if (!sorted && !ordered) return "";
  if (part.distinct) {
    for (std::size_t i = 0; i < part.items.size() && !sorted; ++i) add(orderKey({i, false}, part.items));
  } else if (part.grouped) {
    for (std::size_t i = 0; i < part.groupBy.size() && !sorted; ++i) add(this->ordered(part.groupBy[i]).text);
  } else if (sorted || part.top || isOneTable(part.from)) {
    for (const unsigned table : from.tables) add(rowid(table));
  }
  return text;
}

std::string Translator::orderKey(const bound::OrderKey& key, const std::vector<bound::Item>& items) {
  const auto* position = std::get_if<std::size_t>(&key.value);
  if (!position) return ordered(std::get<bound::Expression>(key.value)).text + direction(key);
  const bound::Expression& item = items[*position].value;
  const auto* column = std::get_if<bound::Column>(&item.node);
  Sql text{std::to_string(*position + 1)};
  return (column && column->collated ? text : withCollation(text, item.type)).text + direction(key);
}

/// TOP of sorted rows takes along those that equal the last one, and TOP PERCENT must know how many there
/// are: the rows are ranked by their keys o1, o2, ... first.
std::string Translator::ranked(const bound::Query& tree, Shape shape) {
  const bound::Select& part = tree.parts.front();
  const From source = from(part.from);
  std::string keyColumns, order, columns;
  for (std::size_t i = 0; i < tree.orderBy.size(); ++i) {
    const bound::OrderKey& key = tree.orderBy[i];
    const auto* position = std::get_if<std::size_t>(&key.value);
    const auto* expression = std::get_if<bound::Expression>(&key.value);
    const Type type = position ? part.items[*position].value.type : expression->type;
    const std::string name = position ? "x" + std::to_string(*position + 1) : "o" + std::to_string(i + 1);
    if (expression) keyColumns += ", " + value(*expression).text + " AS " + name;
    order += (i ? ", " : "") + withCollation({name}, type).text + direction(key);
  }
  for (std::size_t i = 1; i <= part.items.size(); ++i) columns += (i > 1 ? ", x" : "x") + std::to_string(i);
  const std::string rank = order.empty() ? "row_number() OVER ()" : "rank() OVER (ORDER BY " + order + ")";
  const std::string count = std::to_string(part.top->count);
  const std::string last = part.top->percent ? "(n * " + count + " + 99) / 100" : count;
  std::string ties;
  const Shape inner{true, false, keepsRows(tree)};
  if (inner.withRowKeys) {
    for (const unsigned table : source.tables) ties += ", k" + std::to_string(table);
  }
  if (shape.withRowKeys) {
    rowKeys_ = source.tables.size();
    columns += ties;
  }
  const std::string rows =
      select(part, source, inner, keyColumns) + (order.empty() ? orderBy(tree, source, true) : std::string());
  return "SELECT " + columns + " FROM (SELECT *, " + rank + " AS r, count(*) OVER () AS n FROM (" + rows +
         ")) WHERE r <= " + last + " ORDER BY r" + ties;
}

}  // namespace jet::sql
