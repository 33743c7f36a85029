#include <algorithm>

#include "jet/sql/binder/binder.h"
#include "jet/sql/binder/function.h"
#include "jet/sql/parser/token.h"
#include "jet/sql/syntax_error.h"

namespace jet::sql {

using bound::AggregateKind;
using bound::Expression;

namespace {

/// What a function wants to be given for an argument of type `given`.
Type argumentType(const Function& function, Function::Argument argument, Type given) {
  using Argument = Function::Argument;
  switch (argument) {
    case Argument::Number:
      // Money, decimals and dates are worked on as Doubles and turned back.
      return isWholeNumber(given) ? given : Type::Double;
    case Argument::Boolean:
      return Type::Boolean;
    case Argument::Long:
      return Type::Long;
    case Argument::Double:
      return Type::Double;
    case Argument::Date:
      return Type::Date;
    case Argument::Text:
      return Type::Text;
    default:
      break;
  }
  const bool conversion = function.sql == std::string_view("$1");
  return conversion ? function.type : given;
}

struct AggregateName {
  const char* name;
  AggregateKind kind;
};

constexpr AggregateName aggregates[] = {
    {"COUNT", AggregateKind::Count}, {"SUM", AggregateKind::Sum}, {"AVG", AggregateKind::Avg},
    {"MIN", AggregateKind::Min},     {"MAX", AggregateKind::Max}, {"FIRST", AggregateKind::First},
    {"LAST", AggregateKind::Last},
};

/// Type that an aggregate works in and returns, from its argument's.
Type aggregateType(AggregateKind kind, Type argument) {
  switch (kind) {
    case AggregateKind::Sum:
    case AggregateKind::Avg:
      return argument == Type::Currency || argument == Type::Decimal ? argument : Type::Double;
    default:
      return argument;
  }
}

}  // namespace

Expression Binder::bind(const tree::Call& node, const Place& place) {
  if (auto result = aggregate(node, place)) return std::move(*result);
  if (auto result = specialCall(node, place)) return std::move(*result);
  const Function* function = node.star ? nullptr : findFunction(node.name, node.arguments.size());
  if (!function) throw SyntaxError(UnknownFunction, node.name, place.position);
  bound::Call call{function, {}};
  Type first = Type::Null;
  for (std::size_t i = 0; i < node.arguments.size(); ++i) {
    Expression argument = expression(node.arguments[i]);
    if (i == 0) first = argument.type;
    const Type type = argumentType(*function, function->arguments[i], argument.type);
    call.arguments.push_back(convert(std::move(argument), type));
  }
  if (function->result == Function::Result::Fixed) return {function->type, std::move(call)};
  const Type worked = call.arguments.front().type;
  return convert({worked, std::move(call)}, isNumber(first) ? first : worked);
}

/// The functions whose arguments are more than values.
std::optional<Expression> Binder::specialCall(const tree::Call& node, const Place&) {
  const auto& arguments = node.arguments;
  if (sameWord(node.name, "ISNULL") && arguments.size() == 1) {
    Expression operand = expression(arguments[0]);
    noteCompared(operand);
    return Expression{Type::Boolean, bound::IsNull{false, std::move(operand)}};
  }
  if (sameWord(node.name, "IIF") && arguments.size() == 3) {
    Expression test = condition(arguments[0]);
    Expression then = expression(arguments[1]), otherwise = expression(arguments[2]);
    const Type type = commonType(then.type, otherwise.type);
    return Expression{type, bound::Choice{std::move(test), convert(std::move(then), type),
                                          convert(std::move(otherwise), type)}};
  }
  if (sameWord(node.name, "NZ") && (arguments.size() == 1 || arguments.size() == 2)) {
    Expression operand = expression(arguments[0]);
    Expression nothing{isNumber(operand.type) ? Type::Long : Type::Text, bound::Literal{std::string()}};
    if (isNumber(operand.type)) nothing.node = bound::Literal{std::int64_t{0}};
    Expression replacement = arguments.size() == 2 ? expression(arguments[1]) : std::move(nothing);
    const Type type = commonType(operand.type, replacement.type);
    return Expression{type, bound::NullReplacement{convert(std::move(operand), type),
                                                   convert(std::move(replacement), type)}};
  }
  return std::nullopt;
}

std::optional<Expression> Binder::aggregate(const tree::Call& node, const Place& place) {
  const auto* found = std::ranges::find_if(
      aggregates, [&](const AggregateName& name) { return sameWord(node.name, name.name); });
  if (found == std::end(aggregates)) return std::nullopt;
  if (!aggregatesAllowed_) throw SyntaxError(AggregateInClause, node.name, place.position);
  const bool rows = node.star && found->kind == AggregateKind::Count;
  if (!rows && (node.star || node.arguments.size() != 1)) {
    throw SyntaxError(UnknownFunction, node.name, place.position);
  }
  aggregateSeen_ = true;
  if (rows) return Expression{Type::Long, bound::Aggregate{AggregateKind::CountRows, {}}};
  const std::size_t ungroupedBefore = ungrouped_.size();
  aggregatesAllowed_ = false;
  Expression argument = expression(node.arguments[0]);
  aggregatesAllowed_ = true;
  ungrouped_.resize(std::min(ungroupedBefore, ungrouped_.size()));
  const Type type = aggregateType(found->kind, argument.type);
  bound::Aggregate aggregate{found->kind, {}};
  aggregate.argument.push_back(convert(std::move(argument), type));
  return Expression{found->kind == AggregateKind::Count ? Type::Long : type, std::move(aggregate)};
}

}  // namespace jet::sql
