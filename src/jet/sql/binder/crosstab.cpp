#include "jet/sql/binder/crosstab.h"

#include <algorithm>
#include <charconv>

#include "jet/sql/binder/function.h"
#include "jet/sql/parser/parser.h"
#include "jet/sql/syntax_error.h"
#include "jet/sql/tree/print.h"
#include "runtime/format.h"
#include "runtime/overloaded.h"

namespace jet::sql {

namespace {

using namespace tree;

struct Column {
  std::string name;
  Expression value;  // of the pivot
};

/// A tree belongs to one place: another one of the same text.
Expression copyOf(const Expression& expression) {
  return parseExpression(print(expression));
}

Expression call(const char* name, Expression first, Expression second, Expression third) {
  Call made{name, false, {}, {}};
  made.arguments.push_back(std::move(first));
  made.arguments.push_back(std::move(second));
  made.arguments.push_back(std::move(third));
  return {std::move(made), {}};
}

Expression null() {
  return {Literal{}, {}};
}

Expression number(std::string digits) {
  return {Literal{Literal::Kind::Number, std::move(digits)}, {}};
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
    const bool counts = sameWord(node.name, "COUNT");
    Expression again = copyOf(expression);
    node.filter.push_back(copyOf(condition_));
    if (!counts) return;
    // Where there is no row there is nothing, not zero rows.
    std::get<Call>(again.node).filter.push_back(copyOf(condition_));
    Expression none{Comparison{ComparisonOperator::Equal, std::move(again), number("0")}, {}};
    expression = call("IIf", std::move(none), null(), Expression(std::move(expression)));
  }

  const Expression& condition_;
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

std::string columnName(const Expression& value) {
  const auto* literal = std::get_if<Literal>(&value.node);
  if (!literal) return print(value);
  return literal->kind == Literal::Kind::Null ? "<>" : literal->text;
}

Expression literalOf(const runtime::Variant& value, std::size_t position) {
  using Kind = runtime::VariantKind;
  switch (value.kind()) {
    case Kind::Null:
      return null();
    case Kind::Text:
      return {Literal{Literal::Kind::Text, value.toText()}, {}};
    case Kind::Date:
      return {Literal{Literal::Kind::Date, runtime::format(value, "yyyy-mm-dd hh:nn:ss")}, {}};
    case Kind::Bytes:
      throw SyntaxError(TypesDiffer, "PIVOT", position);
    default:
      return number(digitsOf(value.toDouble()));
  }
}

/// The values of the pivot in the rows that the query reads, as many as there are, in their order.
std::vector<Column> columnsOfRows(Context& context, const Transform& transform) {
  constexpr std::size_t maximumFields = 255;
  const std::size_t position = transform.pivot.place.position;
  Query list = parseQuery(print(transform.query));
  Select& rows = list.parts.front();
  rows.distinct = true;
  rows.items.clear();
  rows.items.push_back({copyOf(transform.pivot), "", {position}});
  rows.groupBy.clear();
  rows.having.reset();
  list.orderBy.clear();
  list.orderBy.push_back({number("1"), false});
  const auto values = context.values(list);
  if (!values) return {};
  if (values->size() >= maximumFields)
    throw SyntaxError(TooManyFields, std::to_string(values->size()), position);
  std::vector<Column> columns;
  for (const auto& value : *values) columns.push_back({headingOf(value), literalOf(value, position)});
  return columns;
}

std::vector<Column> columnsOf(Context& context, Transform& transform) {
  if (transform.columns.empty()) return columnsOfRows(context, transform);
  std::vector<Column> columns;
  for (Expression& value : transform.columns) columns.push_back({columnName(value), std::move(value)});
  return columns;
}

}  // namespace

Query crosstab(Context& context, Transform transform) {
  if (transform.query.parts.size() != 1)
    throw SyntaxError(TransformSyntax, "UNION", transform.pivot.place.position);
  for (Column& column : columnsOf(context, transform)) {
    const auto* literal = std::get_if<Literal>(&column.value.node);
    const bool isNull = literal && literal->kind == Literal::Kind::Null;
    Expression pivot = copyOf(transform.pivot);
    Expression condition{IsNull{false, copyOf(transform.pivot)}, {}};
    if (!isNull)
      condition.node = Comparison{ComparisonOperator::Equal, std::move(pivot), std::move(column.value)};
    Expression value = copyOf(transform.value);
    Restriction(condition).apply(value);
    transform.query.parts.front().items.push_back({std::move(value), std::move(column.name), {}});
  }
  return std::move(transform.query);
}

}  // namespace jet::sql
