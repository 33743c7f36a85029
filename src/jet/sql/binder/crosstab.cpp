// TRANSFORM written out as a SELECT: every column is the value's tree again, over fewer rows.
#include "jet/sql/binder/crosstab.h"

#include <algorithm>
#include <charconv>

#include "jet/sql/binder/function.h"
#include "jet/sql/parser/token.h"
#include "jet/sql/syntax_error.h"
#include "jet/sql/tree/print.h"
#include "runtime/format.h"
#include "runtime/overloaded.h"

namespace jet::sql {

namespace {

/// A column that a value of the pivot makes.
struct PivotColumn {
  std::string name;
  tree::Expression value;
};

bool isNullLiteral(const tree::Expression& expression) {
  const auto* literal = std::get_if<tree::Literal>(&expression.node);
  return literal && literal->kind == tree::Literal::Kind::Null;
}

tree::Expression numberLiteral(std::string digits, const tree::Place& place) {
  return {tree::Literal{tree::Literal::Kind::Number, std::move(digits)}, place};
}

/// Makes the aggregates within an expression see only the rows for which `condition` holds.
class Restriction {
 public:
  explicit Restriction(const tree::Expression& condition) : condition_(condition) {}

  void apply(tree::Expression& expression) const {
    std::visit(runtime::Overloaded{[&](tree::Call& node) { restrict(node, expression); },
                                   [&](tree::Negation& node) { apply(*node.operand); },
                                   [&](tree::Arithmetic& node) { applyBoth(node); },
                                   [&](tree::Concatenation& node) { applyBoth(node); },
                                   [&](tree::Comparison& node) { applyBoth(node); }, [](auto&) {}},
               expression.node);
  }

 private:
  template <class Node>
  void applyBoth(Node& node) const {
    apply(*node.left);
    apply(*node.right);
  }

  void restrict(tree::Call& node, tree::Expression& expression) const {
    if (!isAggregate(node.name)) {
      for (tree::Expression& argument : node.arguments) apply(argument);
      return;
    }
    node.filter.push_back(condition_);
    if (sameWord(node.name, "COUNT")) expression = nullForZero(std::move(expression));
  }

  /// Where there is no row there is nothing, not zero rows.
  static tree::Expression nullForZero(tree::Expression count) {
    const tree::Place place = count.place;
    tree::Comparison zero{ComparisonOperator::Equal, tree::Expression(count), numberLiteral("0", place)};
    return {
        tree::Call{"IIf", false, {{std::move(zero), place}, {tree::Literal{}, place}, std::move(count)}, {}},
        place};
  }

  const tree::Expression& condition_;
};

std::string digitsOf(double value) {
  char digits[32];
  return {digits, std::to_chars(digits, std::end(digits), value).ptr};
}

/// The text of a value, as it may stand in a name; a Boolean is its number.
std::string headingOf(const runtime::Variant& value) {
  const bool isBoolean = value.kind() == runtime::VariantKind::Boolean;
  std::string text = value.isNull() ? "<>" : isBoolean ? digitsOf(value.toDouble()) : value.toText();
  std::ranges::replace_if(
      text, [](char c) { return std::string_view(".![]`").find(c) != std::string_view::npos; }, '_');
  return text;
}

std::string headingOf(const tree::Expression& value) {
  if (isNullLiteral(value)) return "<>";
  const auto* literal = std::get_if<tree::Literal>(&value.node);
  return literal ? literal->text : print(value);
}

tree::Expression literalOf(const runtime::Variant& value, const tree::Place& place) {
  using Kind = runtime::VariantKind;
  using tree::Literal;
  switch (value.kind()) {
    case Kind::Null:
      return {Literal{}, place};
    case Kind::Text:
      return {Literal{Literal::Kind::Text, value.toText()}, place};
    case Kind::Date:
      return {Literal{Literal::Kind::Date, runtime::format(value, "yyyy-mm-dd hh:nn:ss")}, place};
    case Kind::Bytes:
      throw SyntaxError(TypesDiffer, "PIVOT", place.position);
    default:
      return numberLiteral(digitsOf(value.toDouble()), place);
  }
}

/// The values of the pivot in the rows that the query reads, as many as there are, in their order.
std::vector<PivotColumn> columnsOfRows(Context& context, const tree::Transform& transform) {
  constexpr std::size_t maximumFields = 255;
  const tree::Place& place = transform.pivot.place;
  tree::Query list = transform.query;
  tree::Select& rows = list.parts.front();
  rows.distinct = true;
  rows.items.assign(1, {transform.pivot, "", place});
  rows.groupBy.clear();
  rows.having.reset();
  list.orderBy.assign(1, {numberLiteral("1", place), false});
  const auto values = context.values(list);
  if (!values) return {};
  if (values->size() >= maximumFields)
    throw SyntaxError(TooManyFields, std::to_string(values->size()), place.position);
  std::vector<PivotColumn> columns;
  for (const auto& value : *values) columns.push_back({headingOf(value), literalOf(value, place)});
  return columns;
}

std::vector<PivotColumn> columnsOf(Context& context, const tree::Transform& transform) {
  if (transform.columns.empty()) return columnsOfRows(context, transform);
  std::vector<PivotColumn> columns;
  for (const tree::Expression& value : transform.columns) columns.push_back({headingOf(value), value});
  return columns;
}

/// Holds for the rows of a column. What is wrong with comparing them is the value's fault.
tree::Expression conditionOf(const tree::Expression& pivot, const tree::Expression& value) {
  if (isNullLiteral(value)) return {tree::IsNull{false, tree::Expression(pivot)}, value.place};
  return {tree::Comparison{ComparisonOperator::Equal, tree::Expression(pivot), tree::Expression(value)},
          value.place};
}

}  // namespace

tree::Query crosstab(Context& context, tree::Transform transform) {
  if (transform.query.parts.size() != 1)
    throw SyntaxError(TransformSyntax, "UNION", transform.pivot.place.position);
  for (PivotColumn& column : columnsOf(context, transform)) {
    tree::Expression value = transform.value;
    Restriction(conditionOf(transform.pivot, column.value)).apply(value);
    transform.query.parts.front().items.push_back(
        {std::move(value), std::move(column.name), transform.value.place});
  }
  return std::move(transform.query);
}

}  // namespace jet::sql
