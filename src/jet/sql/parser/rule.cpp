// Rules of columns: conditions that may leave out the column that they are about.
#include <algorithm>

#include "jet/sql/parser/parser.h"

namespace jet::sql {

namespace {

using namespace tree;

/// Lets each value that stands where a condition should be one that the column is compared with.
void compareValues(Expression& part, const std::string& column) {
  const Place place = part.place;
  const Name name{"", column};
  if (auto* logic = std::get_if<Logic>(&part.node)) {
    compareValues(*logic->left, column);
    compareValues(*logic->right, column);
  } else if (auto* denied = std::get_if<Not>(&part.node)) {
    compareValues(*denied->operand, column);
  } else if (const auto* literal = std::get_if<Literal>(&part.node);
             literal && literal->kind == Literal::Kind::Null) {
    part = {IsNull{false, Expression{name, place}}, place};
  } else if (literal || std::holds_alternative<Negation>(part.node)) {
    part = {Comparison{ComparisonOperator::Equal, Expression{name, place}, std::move(part)}, place};
  }
}

}  // namespace

bool Parser::atPredicate() const {
  static constexpr std::string_view words[] = {"LIKE", "ALIKE", "IN", "BETWEEN", "IS"};
  return std::ranges::any_of(words, [&](std::string_view word) { return cursor_.atWord(word); });
}

std::optional<Expression> Parser::impliedColumn(int minimum) const {
  static constexpr std::string_view symbols[] = {"=", "<>", "<", ">", "<=", ">="};
  if (ruledColumn_.empty() || minimum >= ComparisonOperand) return std::nullopt;
  const bool compares =
      std::ranges::any_of(symbols, [&](std::string_view symbol) { return cursor_.atSymbol(symbol); });
  if (!compares && !atPredicate()) return std::nullopt;
  return make(Name{"", ruledColumn_}, cursor_.peek().position);
}

Expression Parser::wholeRule(const std::string& column) {
  ruledColumn_ = column;
  Expression rule = wholeExpression();
  if (!column.empty()) compareValues(rule, column);
  return rule;
}

Expression parseRule(std::string_view text, const std::string& column) {
  return Parser(text).wholeRule(column);
}

}  // namespace jet::sql
