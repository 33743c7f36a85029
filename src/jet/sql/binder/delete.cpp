// DELETE: the table that it empties among those of FROM.
#include "jet/sql/binder/binder.h"
#include "jet/sql/syntax_error.h"

namespace jet::sql {

bound::Delete Binder::deletion(const tree::Delete& tree) {
  bound::Delete deletion;
  deletion.from = changedFrom(tree.from);
  const std::size_t position = tree.from.front().place.position;
  const bool named = tree.target && !tree.target->table.empty();
  if (!named && scope_.sources().size() != 1) throw SyntaxError(DeleteSyntax, "", position);
  const VisibleSource* target = named ? scope_.find(tree.target->table) : &scope_.sources().front();
  if (!target) throw SyntaxError(UnknownTable, tree.target->table, position);
  if (!target->table) throw SyntaxError(UpdateImpossible, target->name, position);
  deletion.target = target->source;
  deletion.page = target->table->page;
  context_.noteChanged(deletion.target, TouchedTable::Change::Delete);
  deletion.where = changedRows(tree.where);
  return deletion;
}

}  // namespace jet::sql
