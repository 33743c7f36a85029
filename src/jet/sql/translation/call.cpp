#include "jet/sql/binder/function.h"
#include "jet/sql/translation/translator.h"

namespace jet::sql {

using bound::AggregateKind;
using bound::Expression;

Sql Translator::translate(const bound::Call& node, Type) {
  const std::string_view pattern = node.function->sql;
  if (pattern == "$1") return value(node.arguments.front());
  std::string text;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    if (pattern[i] != '$') {
      text += pattern[i];
    } else if (pattern[++i] == 't') {
      text += std::to_string(static_cast<unsigned>(node.arguments.front().type));
    } else {
      text += value(node.arguments[static_cast<std::size_t>(pattern[i] - '1')]).text;
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
  if (node.kind == AggregateKind::CountRows) return {"count(*)"};
  const Expression& argument = node.argument.front();
  const std::string text = value(argument).text;
  switch (node.kind) {
    case AggregateKind::Sum:
      return {(type == Type::Decimal ? "jet_sum_decimal(" : "sum(") + text + ")"};
    case AggregateKind::Avg:
      if (type == Type::Currency) return {"jet_double_to_currency(avg(" + text + ") / 10000.0)"};
      if (type == Type::Decimal) return {"jet_double_to_decimal(avg(CAST(" + text + " AS REAL)))"};
      return {"avg(" + text + ")"};
    case AggregateKind::Min:
      return {"min(" + ordered(argument).text + ")"};
    case AggregateKind::Max:
      return {"max(" + ordered(argument).text + ")"};
    case AggregateKind::First:
      return {"jet_first(" + text + ", " + firstKey_ + ")"};
    case AggregateKind::Last:
      return {"jet_last(" + text + ", " + firstKey_ + ")"};
    default:
      return {"count(" + text + ")"};
  }
}

}  // namespace jet::sql
