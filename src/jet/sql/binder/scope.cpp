#include "jet/sql/binder/scope.h"

#include <algorithm>

#include "jet/sql/syntax_error.h"

namespace jet::sql {

namespace {

/// A second reference to the same column.
VisibleColumn copyOf(const VisibleColumn& column) {
  const bound::Expression& value = column.value;
  return {column.name,
          {value.type, std::get<bound::Column>(value.node)},
          column.sourceTable,
          column.sourceColumn};
}

}  // namespace

VisibleColumn VisibleSource::columnOf(const file::Column& column) const {
  bound::Column value{source, "c" + std::to_string(column.number), isCollated(typeOf(column.type))};
  return {column.name, {typeOf(column.type), std::move(value)}, table->name, column.name};
}

std::optional<VisibleColumn> VisibleSource::find(const std::string& columnName) const {
  if (table) {
    const auto index = table->find(columnName);
    return index ? std::optional(columnOf(table->columns[*index])) : std::nullopt;
  }
  for (const VisibleColumn& column : queryColumns) {
    if (file::sameName(column.name, columnName)) return copyOf(column);
  }
  return std::nullopt;
}

std::vector<VisibleColumn> VisibleSource::columns() const {
  std::vector<VisibleColumn> all;
  if (table) {
    for (const std::size_t index : table->displayOrder()) all.push_back(columnOf(table->columns[index]));
  }
  for (const VisibleColumn& column : queryColumns) all.push_back(copyOf(column));
  return all;
}

const VisibleSource* Scope::find(const std::string& sourceName) const {
  const auto found = std::ranges::find_if(
      sources_, [&](const VisibleSource& source) { return file::sameName(source.name, sourceName); });
  return found == sources_.end() ? nullptr : &*found;
}

std::optional<Scope::Found> Scope::find(const tree::Name& name, std::size_t position) const {
  Found found;
  for (const VisibleSource& source : sources_) {
    if (!name.table.empty() && !file::sameName(source.name, name.table)) continue;
    auto column = source.find(name.column);
    if (!column) continue;
    if (found.source) throw SyntaxError(AmbiguousColumn, name.column, position);
    found = {&source, std::move(*column)};
  }
  return found.source ? std::optional(std::move(found)) : std::nullopt;
}

}  // namespace jet::sql
