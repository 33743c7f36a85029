// Expressions: dispatch to the noun, and conditions.
#include "jet/sql/binder/binder.h"

namespace jet::sql {

using bound::Expression;

Expression Binder::expression(const tree::Expression& tree) {
  context_.countNode(tree.place.position);
  const std::size_t ungroupedBefore = ungrouped_.size();
  Expression result = std::visit([&](const auto& node) { return bind(node, tree.place); }, tree.node);
  for (const Expression& key : groupKeys_) {
    if (key == result) ungrouped_.resize(std::min(ungroupedBefore, ungrouped_.size()));
  }
  return result;
}

Expression Binder::condition(const tree::Expression& tree) {
  Expression result = expression(tree);
  return isNumber(result.type) ? std::move(result) : convert(std::move(result), Type::Boolean);
}

std::optional<Expression> Binder::clause(const std::optional<tree::Expression>& tree) {
  if (!tree) return std::nullopt;
  inCondition_ = true;
  Expression result = condition(*tree);
  inCondition_ = false;
  return result;
}

Expression Binder::converted(const tree::Expression& tree, Type type) {
  return convert(expression(tree), type);
}

}  // namespace jet::sql
