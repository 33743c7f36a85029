#include "jet/sql/binder/binder.h"
#include "jet/sql/syntax_error.h"

namespace jet::sql {

bound::Update Binder::update(const tree::Update& tree) {
  constexpr int tooFewParameters = 3061;  // what an unknown name is to the engine, here too
  bound::Update update;
  update.from = from(tree.from);
  const VisibleSource* target = nullptr;
  for (const tree::Assignment& assignment : tree.assignments) {
    const std::size_t position = assignment.place.position;
    const auto found = scope_.find(assignment.column, position);
    if (!found) {
      throw SyntaxError(tooFewParameters, "Parametri insufficienti: " + assignment.column.column, position);
    }
    if (!found->source->table || (target && target != found->source)) {
      throw SyntaxError(UpdateImpossible, assignment.column.column, position);
    }
    target = found->source;
    const file::Column& column = target->table->columns[*target->table->find(found->column->name)];
    update.assignments.push_back({column.number, store(expression(assignment.value), column)});
  }
  update.target = target->source;
  update.page = target->table->page;
  context_.noteChanged(update.target, TouchedTable::Change::Update);
  update.where = clause(tree.where);
  return update;
}

}  // namespace jet::sql
