#include "jet/sql/binder/scope.h"

#include <algorithm>

#include "jet/sql/syntax_error.h"

namespace jet::sql {

namespace {

const VisibleColumn* findColumn(const VisibleSource& source, const std::string& name) {
  const auto found = std::ranges::find_if(
      source.columns, [&](const VisibleColumn& column) { return file::sameName(column.name, name); });
  return found == source.columns.end() ? nullptr : &*found;
}

}  // namespace

const VisibleSource* Scope::find(const std::string& sourceName) const {
  const auto found = std::ranges::find_if(
      sources_, [&](const VisibleSource& source) { return file::sameName(source.name, sourceName); });
  return found == sources_.end() ? nullptr : &*found;
}

std::optional<Scope::Found> Scope::find(const tree::Name& name, std::size_t position) const {
  Found found;
  for (const VisibleSource& source : sources_) {
    if (!name.table.empty() && !file::sameName(source.name, name.table)) continue;
    const VisibleColumn* column = findColumn(source, name.column);
    if (!column) continue;
    if (found.column) throw SyntaxError(AmbiguousColumn, name.column, position);
    found = {&source, column};
  }
  return found.column ? std::optional(found) : std::nullopt;
}

}  // namespace jet::sql
