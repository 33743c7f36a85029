// UPDATE: which table each assignment changes.
#include <algorithm>

#include "jet/sql/binder/binder.h"
#include "jet/sql/syntax_error.h"

namespace jet::sql {

namespace {

bound::Target& targetOf(bound::Update& update, const VisibleSource& source) {
  const auto found = std::ranges::find(update.targets, source.source, &bound::Target::source);
  if (found != update.targets.end()) return *found;
  update.targets.push_back({source.source, source.table->page, {}, false, {}});
  return update.targets.back();
}

/// Notes the targets of which a row of the joins may hold no row.
void findOptional(const bound::Source& source, bool optional, std::vector<bound::Target>& targets) {
  if (const auto* table = std::get_if<bound::TableSource>(&source.node)) {
    const auto target = std::ranges::find(targets, table->source, &bound::Target::source);
    if (target != targets.end()) target->optional = optional;
  } else if (const auto* join = std::get_if<bound::Join>(&source.node)) {
    findOptional(*join->left, optional || join->kind == bound::JoinKind::Right, targets);
    findOptional(*join->right, optional || join->kind == bound::JoinKind::Left, targets);
  }
}

}  // namespace

bound::Update Binder::update(const tree::Update& tree) {
  constexpr int tooFewParameters = TooFewParameters;  // what an unknown name is to the engine, here too
  bound::Update update;
  update.from = changedFrom(tree.from);
  for (const tree::Assignment& assignment : tree.assignments) {
    const std::size_t position = assignment.place.position;
    const auto found = scope_.find(assignment.column, position);
    if (!found) {
      throw SyntaxError(tooFewParameters, "Parametri insufficienti: " + assignment.column.column, position);
    }
    const VisibleSource& source = *found->source;
    if (!source.table) throw SyntaxError(UpdateImpossible, assignment.column.column, position);
    const file::Column& column = source.table->columns[*source.table->find(found->column.name)];
    targetOf(update, source)
        .assignments.push_back({column.number, store(expression(assignment.value), column)});
    context_.noteChanged(source.source, TouchedTable::Change::Update);
    context_.noteAssigned(source.source, column.number);
  }
  for (const bound::Source& source : update.from) findOptional(source, false, update.targets);
  for (bound::Target& target : update.targets) {
    if (!target.optional) continue;
    const auto source = std::ranges::find(scope_.sources(), target.source, &VisibleSource::source);
    target.defaults = defaults(*source->table, target.assignments, tree.from.front().place.position);
  }
  update.where = changedRows(tree.where);
  return update;
}

}  // namespace jet::sql
