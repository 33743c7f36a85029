// Calls: aggregates, functions whose arguments are more than values, and all the others.
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
Type argumentType(const Function& function, std::size_t index, Type given) {
  switch (function.argument(index)) {
    case Function::Number:
      if (given == Type::Boolean) return Type::Integer;
      return isWholeNumber(given) || given == Type::Currency || given == Type::Decimal ? given : Type::Double;
    case Function::Boolean:
      return Type::Boolean;
    case Function::Long:
      return Type::Long;
    case Function::Double:
      return Type::Double;
    case Function::Date:
      return Type::Date;
    case Function::Text:
      return Type::Text;
    default:
      break;
  }
  const bool conversion = function.isConversion() && function.result == Function::Result::Fixed;
  return conversion ? function.type : given;
}

struct AggregateName {
  const char* name;
  AggregateKind kind;
};

constexpr AggregateName AggregateNames[] = {
    {"COUNT", AggregateKind::Count}, {"SUM", AggregateKind::Sum},     {"AVG", AggregateKind::Avg},
    {"MIN", AggregateKind::Min},     {"MAX", AggregateKind::Max},     {"FIRST", AggregateKind::First},
    {"LAST", AggregateKind::Last},   {"STDEV", AggregateKind::StDev}, {"STDEVP", AggregateKind::StDevP},
    {"VAR", AggregateKind::Var},     {"VARP", AggregateKind::VarP},
};

const AggregateName* findAggregate(const std::string& name) {
  const auto* found = std::ranges::find_if(
      AggregateNames, [&](const AggregateName& known) { return sameWord(name, known.name); });
  return found == std::end(AggregateNames) ? nullptr : found;
}

/// Type that an aggregate works in and returns, from its argument's.
Type aggregateType(AggregateKind kind, Type argument) {
  switch (kind) {
    case AggregateKind::Sum:
    case AggregateKind::Avg:
      return argument == Type::Currency || argument == Type::Decimal ? argument : Type::Double;
    case AggregateKind::StDev:
    case AggregateKind::StDevP:
    case AggregateKind::Var:
    case AggregateKind::VarP:
      return Type::Double;
    default:
      return argument;
  }
}

}  // namespace

bool isAggregate(const std::string& name) {
  return findAggregate(name) != nullptr;
}

Expression Binder::bind(const tree::Call& node, const Place& place) {
  if (auto result = aggregate(node, place)) return std::move(*result);
  if (auto result = specialCall(node, place)) return std::move(*result);
  if (auto result = domain(node, place)) return std::move(*result);
  const Function* function = node.star ? nullptr : findFunction(node.name, node.arguments.size());
  if (!function) throw SyntaxError(UnknownFunction, node.name, place.position);
  bound::Call call{function, {}, node.name.ends_with('$')};
  Type first = Type::Null;
  for (std::size_t i = 0; i < node.arguments.size(); ++i) {
    Expression argument = expression(node.arguments[i]);
    if (i == 0) first = argument.type;
    const Type type = argumentType(*function, i, argument.type);
    call.arguments.push_back(convert(std::move(argument), type));
  }
  if (function->result == Function::Result::Fixed) return {function->type, std::move(call)};
  // Dates and Singles are worked on as Doubles and turned back.
  const Type worked = call.arguments.front().type;
  return convert({worked, std::move(call)}, worked == Type::Double && isNumber(first) ? first : worked);
}

/// The functions whose arguments are more than values.
std::optional<Expression> Binder::specialCall(const tree::Call& node, const Place&) {
  const auto& arguments = node.arguments;
  const std::size_t count = arguments.size();
  if (sameWord(node.name, "ISNULL") && count == 1) {
    Expression operand = expression(arguments[0]);
    noteCompared(operand);
    return Expression{Type::Boolean, bound::IsNull{false, std::move(operand)}};
  }
  if (sameWord(node.name, "IIF") && count == 3) {
    Expression test = condition(arguments[0]);
    Expression then = expression(arguments[1]), otherwise = expression(arguments[2]);
    const Type type = commonType(then.type, otherwise.type);
    return Expression{type, bound::Choice{std::move(test), convert(std::move(then), type),
                                          convert(std::move(otherwise), type)}};
  }
  if (sameWord(node.name, "NZ") && (count == 1 || count == 2)) return nullReplacement(arguments);
  if (sameWord(node.name, "SWITCH") && count >= 2 && count % 2 == 0) return choiceChain(arguments);
  if (sameWord(node.name, "CHOOSE") && count >= 2) return chosenValue(arguments);
  return std::nullopt;
}

/// Without a second argument a number turns into 0, another value into an empty text.
Expression Binder::nullReplacement(const std::vector<tree::Expression>& arguments) {
  Expression operand = expression(arguments[0]);
  Expression nothing{Type::Text, bound::Literal{std::string()}};
  if (isNumber(operand.type)) nothing = convert({Type::Long, bound::Literal{std::int64_t{0}}}, operand.type);
  Expression replacement = arguments.size() == 2 ? expression(arguments[1]) : std::move(nothing);
  const Type type = commonType(operand.type, replacement.type);
  return {type,
          bound::NullReplacement{convert(std::move(operand), type), convert(std::move(replacement), type)}};
}

/// Switch: the value behind the first condition that holds, Null where none does.
Expression Binder::choiceChain(const std::vector<tree::Expression>& arguments) {
  std::vector<Expression> conditions, values;
  Type type = Type::Null;
  for (std::size_t i = 0; i < arguments.size(); i += 2) {
    conditions.push_back(condition(arguments[i]));
    values.push_back(expression(arguments[i + 1]));
    type = commonType(type, values.back().type);
  }
  Expression chain{type, bound::Literal{}};
  for (std::size_t i = values.size(); i-- > 0;) {
    chain = {type,
             bound::Choice{std::move(conditions[i]), convert(std::move(values[i]), type), std::move(chain)}};
  }
  return chain;
}

Expression Binder::chosenValue(const std::vector<tree::Expression>& arguments) {
  bound::Call call{&chooseFunction(), {}};
  call.arguments.push_back(converted(arguments[0], Type::Long));
  Type type = Type::Null;
  for (std::size_t i = 1; i < arguments.size(); ++i) {
    call.arguments.push_back(expression(arguments[i]));
    type = commonType(type, call.arguments.back().type);
  }
  for (std::size_t i = 1; i < arguments.size(); ++i)
    call.arguments[i] = convert(std::move(call.arguments[i]), type);
  return {type, std::move(call)};
}

std::optional<Expression> Binder::aggregate(const tree::Call& node, const Place& place) {
  const auto* found = findAggregate(node.name);
  if (!found) return std::nullopt;
  if (!aggregatesAllowed_) throw SyntaxError(AggregateInClause, node.name, place.position);
  const bool rows = node.star && found->kind == AggregateKind::Count;
  if (!rows && (node.star || node.arguments.size() != 1)) {
    throw SyntaxError(UnknownFunction, node.name, place.position);
  }
  aggregateSeen_ = true;
  const std::size_t ungroupedBefore = ungrouped_.size();
  aggregatesAllowed_ = false;
  bound::Aggregate aggregate{rows ? AggregateKind::CountRows : found->kind, {}, {}};
  if (!rows) aggregate.argument.push_back(expression(node.arguments[0]));
  for (const tree::Expression& filter : node.filter) aggregate.filter.push_back(condition(filter));
  aggregatesAllowed_ = true;
  ungrouped_.resize(std::min(ungroupedBefore, ungrouped_.size()));
  if (rows) return Expression{Type::Long, std::move(aggregate)};
  Expression& argument = aggregate.argument.front();
  const Type type = aggregateType(found->kind, argument.type);
  argument = convert(std::move(argument), type);
  return Expression{found->kind == AggregateKind::Count ? Type::Long : type, std::move(aggregate)};
}

}  // namespace jet::sql
