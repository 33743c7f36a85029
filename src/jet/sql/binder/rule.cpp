// Validation rules, bound against one row.
#include "jet/sql/binder/binder.h"
#include "jet/sql/syntax_error.h"

namespace jet::sql {

bound::Expression Binder::rule(const tree::Expression& tree, const file::TableDefinition& table) {
  VisibleSource row;
  row.name = table.name;
  row.source = context_.addSource(&table, row.name);
  row.table = &table;
  scope_.add(std::move(row));
  bound::Expression result = condition(tree);
  if (!context_.parameters().empty())
    throw SyntaxError(UnknownReference, context_.parameters().front().name, tree.place.position);
  // Other rows are none of its business.
  if (context_.tables().size() > 1 || context_.mayReadAnyTable())
    throw SyntaxError(UnknownReference, context_.tables().back().alias, tree.place.position);
  return result;
}

}  // namespace jet::sql
