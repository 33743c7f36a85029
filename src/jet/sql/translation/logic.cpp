// AND, OR and their kin in SQLite's SQL.
#include "jet/sql/translation/translator.h"

namespace jet::sql {

Sql Translator::translate(const bound::Logic& node, Type) {
  Sql left = condition(*node.left), right = condition(*node.right);
  const auto denied = [](Sql sql) { return "(NOT " + within(std::move(sql), Strength::Not) + ")"; };
  switch (node.op) {
    case LogicOperator::And:
      return {within(std::move(left), Strength::And) + " AND " + within(std::move(right), Strength::Not),
              Strength::And};
    case LogicOperator::Or:
      return {within(std::move(left), Strength::Or) + " OR " + within(std::move(right), Strength::And),
              Strength::Or};
    // NOT makes any number 1 or 0, so that the two can be compared.
    case LogicOperator::Xor:
      return {denied(std::move(left)) + " <> " + denied(std::move(right)), Strength::Equality};
    case LogicOperator::Eqv:
      return {denied(std::move(left)) + " = " + denied(std::move(right)), Strength::Equality};
    case LogicOperator::Imp:
      break;
  }
  return {denied(std::move(left)) + " OR " + within(std::move(right), Strength::And), Strength::Or};
}

Sql Translator::translate(const bound::Not& node, Type) {
  return {"NOT " + within(condition(*node.operand), Strength::Equality), Strength::Not};
}

}  // namespace jet::sql
