// Names of FROM and of their columns.
#include "jet/sql/binder/scope.h"

#include <algorithm>

#include "jet/sql/syntax_error.h"

namespace jet::sql {

VisibleColumn VisibleSource::columnOf(const file::Column& column) const {
  const Type type = typeOf(column.type);
  return {column.name,
          {type, bound::Column{source, column.number, false, isCollated(type)}},
          table->name,
          column.name};
}

std::optional<VisibleColumn> VisibleSource::find(const std::string& columnName) const {
  if (table) {
    const auto index = table->find(columnName);
    return index ? std::optional(columnOf(table->columns[*index])) : std::nullopt;
  }
  for (const VisibleColumn& column : queryColumns) {
    if (file::sameName(column.name, columnName)) return column;
  }
  return std::nullopt;
}

std::vector<VisibleColumn> VisibleSource::columns() const {
  std::vector<VisibleColumn> all;
  if (table) {
    for (const std::size_t index : table->displayOrder()) all.push_back(columnOf(table->columns[index]));
  }
  all.insert(all.end(), queryColumns.begin(), queryColumns.end());
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
