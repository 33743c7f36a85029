#include "jet/sql/binder/crosstab.h"

#include "jet/sql/parser/parser.h"
#include "jet/sql/syntax_error.h"
#include "jet/sql/tree/print.h"
#include "runtime/overloaded.h"

namespace jet::sql {

namespace {

using namespace tree;

/// A tree belongs to one place: another one of the same text.
Expression copyOf(const Expression& expression) {
  return parseExpression(print(expression));
}

bool isAggregate(const std::string& name) {
  for (const char* known :
       {"COUNT", "SUM", "AVG", "MIN", "MAX", "FIRST", "LAST", "STDEV", "STDEVP", "VAR", "VARP"}) {
    if (sameWord(name, known)) return true;
  }
  return false;
}

Expression call(const char* name, Expression first, Expression second, Expression third) {
  Call made{name, false, {}};
  made.arguments.push_back(std::move(first));
  made.arguments.push_back(std::move(second));
  made.arguments.push_back(std::move(third));
  return {std::move(made), {}};
}

Expression null() {
  return {Literal{}, {}};
}

Expression number(const char* digits) {
  return {Literal{Literal::Kind::Number, digits}, {}};
}

/// Makes the aggregates within an expression see only the rows for which `condition` holds.
class Restriction {
 public:
  explicit Restriction(const Expression& condition) : condition_(condition) {}

  void apply(Expression& expression) const {
    std::visit(runtime::Overloaded{[&](Call& node) { restrict(node, expression); },
                                   [&](Negation& node) { apply(*node.operand); },
                                   [&](Arithmetic& node) { applyBoth(node); },
                                   [&](Concatenation& node) { applyBoth(node); },
                                   [&](Comparison& node) { applyBoth(node); }, [](auto&) {}},
               expression.node);
  }

 private:
  template <class Node>
  void applyBoth(Node& node) const {
    apply(*node.left);
    apply(*node.right);
  }

  void restrict(Call& node, Expression& expression) const {
    if (!isAggregate(node.name)) {
      for (Expression& argument : node.arguments) apply(argument);
      return;
    }
    if (node.star) node.arguments.push_back(number("1"));
    node.star = false;
    for (Expression& argument : node.arguments) {
      argument = call("IIf", copyOf(condition_), std::move(argument), null());
    }
    // Which row is the first of a cell nobody tells; Null of another cell's row must not be it.
    if (sameWord(node.name, "FIRST") || sameWord(node.name, "LAST")) node.name = "Max";
    if (!sameWord(node.name, "COUNT")) return;
    // Where there is no row there is nothing, not zero rows.
    Expression count = copyOf(expression);
    Expression none{Comparison{ComparisonOperator::Equal, std::move(expression), number("0")}, {}};
    expression = call("IIf", std::move(none), null(), std::move(count));
  }

  const Expression& condition_;
};

std::string columnName(const Expression& value) {
  const auto* literal = std::get_if<Literal>(&value.node);
  if (!literal) return print(value);
  return literal->kind == Literal::Kind::Null ? "<>" : literal->text;
}

}  // namespace

Query crosstab(Transform transform) {
  const std::size_t position = transform.pivot.place.position;
  if (transform.columns.empty()) {
    throw SyntaxError(TransformSyntax, "indicare le colonne con PIVOT ... IN (...)", position);
  }
  if (transform.query.parts.size() != 1) throw SyntaxError(TransformSyntax, "UNION", position);
  for (const Expression& column : transform.columns) {
    const auto* literal = std::get_if<Literal>(&column.node);
    const bool isNull = literal && literal->kind == Literal::Kind::Null;
    Expression pivot = copyOf(transform.pivot);
    Expression condition{IsNull{false, copyOf(transform.pivot)}, {}};
    if (!isNull) condition.node = Comparison{ComparisonOperator::Equal, std::move(pivot), copyOf(column)};
    Expression value = copyOf(transform.value);
    Restriction(condition).apply(value);
    transform.query.parts.front().items.push_back({std::move(value), columnName(column), {}});
  }
  return std::move(transform.query);
}

}  // namespace jet::sql
