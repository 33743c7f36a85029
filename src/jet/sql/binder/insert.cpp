// INSERT: which column gets which value.
#include "jet/sql/binder/binder.h"
#include "jet/sql/syntax_error.h"

namespace jet::sql {

namespace {

using Columns = std::vector<const file::Column*>;

const file::Column& findColumn(const file::TableDefinition& table, const std::string& name,
                               std::size_t position) {
  const auto index = table.find(name);
  if (!index) throw SyntaxError(UnknownInsertColumn, name, position);
  return table.columns[*index];
}

/// The columns of the list, or without one those that the query's columns are called; nothing told: all.
Columns targetColumns(const file::TableDefinition& table, const tree::Insert& tree,
                      const bound::Query* query) {
  Columns columns;
  for (const tree::PlacedName& name : tree.columns) {
    columns.push_back(&findColumn(table, name.text, name.place.position));
  }
  if (!columns.empty()) return columns;
  if (query) {
    for (const bound::Item& item : query->parts.front().items) {
      columns.push_back(&findColumn(table, item.name, tree.table.place.position));
    }
    return columns;
  }
  for (const std::size_t index : table.displayOrder()) columns.push_back(&table.columns[index]);
  return columns;
}

}  // namespace

bound::Insert Binder::insert(const tree::Insert& tree) {
  const std::size_t position = tree.table.place.position;
  if (!tree.in.empty()) throw SyntaxError(ExternalDatabase, tree.in, position);
  const file::TableDefinition* table = context_.schema().findTable(tree.table.text);
  if (!table) throw SyntaxError(UnknownTable, tree.table.text, position);
  context_.noteChanged(context_.addSource(table, tree.table.text), TouchedTable::Change::Insert);
  bound::Insert insert;
  insert.page = table->page;
  std::vector<bound::Expression> values;
  Columns columns;
  if (const auto* query = std::get_if<tree::Query>(&tree.rows)) {
    bound::Query rows = bindQuery(context_, nullptr, *query);
    columns = targetColumns(*table, tree, &rows);
    insert.rows = std::move(std::get<bound::QuerySource>(declareQuery(std::move(rows), "").node));
    for (VisibleColumn& column : scope_.sources().front().columns()) {
      values.push_back(std::move(column.value));
    }
  } else {
    columns = targetColumns(*table, tree, nullptr);
    for (const tree::Expression& value : std::get<std::vector<tree::Expression>>(tree.rows)) {
      values.push_back(expression(value));
    }
  }
  if (columns.size() != values.size()) throw SyntaxError(InsertCountDiffers, "", position);
  for (std::size_t i = 0; i < columns.size(); ++i) {
    insert.assignments.push_back({columns[i]->number, store(std::move(values[i]), *columns[i])});
  }
  insert.defaults = defaults(*table, insert.assignments, position);
  return insert;
}

}  // namespace jet::sql
