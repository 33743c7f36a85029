// Functions, choices and aggregates in SQLite's SQL.
#include "jet/sql/binder/function.h"
#include "jet/sql/translation/translator.h"

namespace jet::sql {

using bound::AggregateKind;
using bound::Expression;

/// What is written in place of the `$` codes of a function's pattern.
Sql Translator::translate(const bound::Call& node, Type) {
  const auto argument = [&](std::size_t index) {
    const Expression& given = node.arguments[index];
    const Function& function = *node.function;
    const bool refused = node.refusesNull || (index < function.most() && function.refusesNull(index));
    const auto* literal = std::get_if<bound::Literal>(&given.node);
    const bool mayBeNull = !literal || std::holds_alternative<std::monostate>(literal->value);
    const bool isLong = index < function.most() && function.argument(index) == Function::Long;
    Sql sql = isLong ? asLong(given) : value(given);
    return refused && mayBeNull ? Sql{"jet_not_null(" + sql.text + ")"} : std::move(sql);
  };
  const std::string_view pattern = node.function->sql;
  if (node.function->isConversion()) return argument(0);
  std::string text;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    if (pattern[i] != '$') {
      text += pattern[i];
    } else if (pattern[++i] == 't') {
      text += std::to_string(static_cast<unsigned>(node.arguments.front().type));
    } else if (pattern[i] == '*') {
      for (std::size_t k = 0; k < node.arguments.size(); ++k) text += (k ? ", " : "") + argument(k).text;
    } else {
      text += argument(static_cast<std::size_t>(pattern[i] - '1')).text;
    }
  }
  return {std::move(text)};
}

/// IIf within the last part of an IIf continues the same CASE.
Sql Translator::translate(const bound::Choice& node, Type) {
  std::string text = "CASE";
  const bound::Choice* choice = &node;
  const Expression* otherwise = nullptr;
  for (; choice; choice = std::get_if<bound::Choice>(&otherwise->node)) {
    text += " WHEN " + condition(*choice->condition).text + " THEN " + value(*choice->then).text;
    otherwise = &*choice->otherwise;
  }
  return {text + " ELSE " + value(*otherwise).text + " END"};
}

Sql Translator::translate(const bound::NullReplacement& node, Type) {
  return {"ifnull(" + value(*node.operand).text + ", " + value(*node.replacement).text + ")"};
}

Sql Translator::translate(const bound::Aggregate& node, Type type) {
  const std::string rows =
      node.filter.empty() ? "" : " FILTER (WHERE " + condition(node.filter.front()).text + ")";
  if (node.kind == AggregateKind::CountRows) return {"count(*)" + rows};
  const Expression& argument = node.argument.front();
  const std::string text = value(argument).text;
  const auto call = [&](const std::string& name) { return name + text + ")" + rows; };
  switch (node.kind) {
    case AggregateKind::Sum:
      return {call(type == Type::Decimal ? "jet_sum_decimal(" : "sum(")};
    case AggregateKind::Avg:
      if (type == Type::Currency) return {"jet_double_to_currency(" + call("avg(") + " / 10000.0)"};
      if (type == Type::Decimal)
        return {"jet_double_to_decimal(avg(CAST(" + text + " AS REAL))" + rows + ")"};
      return {call("avg(")};
    case AggregateKind::Min:
      return {"min(" + ordered(argument).text + ")" + rows};
    case AggregateKind::Max:
      return {"max(" + ordered(argument).text + ")" + rows};
    case AggregateKind::First:
      return {"jet_first(" + text + ", " + firstKey_ + ")" + rows};
    case AggregateKind::Last:
      return {"jet_last(" + text + ", " + firstKey_ + ")" + rows};
    case AggregateKind::StDev:
      return {call("jet_st_dev(")};
    case AggregateKind::StDevP:
      return {call("jet_st_dev_p(")};
    case AggregateKind::Var:
      return {call("jet_var(")};
    case AggregateKind::VarP:
      return {call("jet_var_p(")};
    default:
      return {call("count(")};
  }
}

}  // namespace jet::sql
