// Comparisons in SQLite's SQL, with the order of the type on the left.
#include "jet/sql/translation/translator.h"

namespace jet::sql {

namespace {

const char* notIf(bool negated) {
  return negated ? " NOT" : "";
}

}  // namespace

Sql Translator::translate(const bound::Comparison& node, Type) {
  const bool equality = node.op == ComparisonOperator::Equal || node.op == ComparisonOperator::NotEqual;
  return {within(ordered(*node.left), Strength::Sum) + " " + symbol(node.op) + " " +
              within(value(*node.right), Strength::Sum),
          equality ? Strength::Equality : Strength::Relation};
}

Sql Translator::translate(const bound::Between& node, Type) {
  return {within(ordered(*node.value), Strength::Sum) + notIf(node.negated) + " BETWEEN " +
              within(value(*node.low), Strength::Sum) + " AND " + within(value(*node.high), Strength::Sum),
          Strength::Equality};
}

Sql Translator::translate(const bound::Like& node, Type) {
  return {std::string(node.negated ? "NOT " : "") + (node.ansi ? "jet_alike(" : "jet_like(") +
              value(*node.value).text + ", " + value(*node.pattern).text + ")",
          node.negated ? Strength::Not : Strength::Whole};
}

Sql Translator::translate(const bound::IsNull& node, Type) {
  return {within(value(*node.operand), Strength::Sum) + " IS" + notIf(node.negated) + " NULL",
          Strength::Equality};
}

Sql Translator::translate(const bound::InList& node, Type) {
  return {
      within(ordered(*node.value), Strength::Sum) + notIf(node.negated) + " IN (" + list(node.items) + ")",
      Strength::Equality};
}

}  // namespace jet::sql
