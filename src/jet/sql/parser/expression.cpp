// Expressions by the strength of their operators.
#include <algorithm>

#include "jet/sql/parser/parser.h"

namespace jet::sql {

namespace {

using namespace tree;

/// Levels of the operators, the weakest first.
enum Precedence {
  ImpLevel = 1,
  EqvLevel,
  XorLevel,
  OrLevel,
  AndLevel,
  NotLevel,
  ComparisonLevel,
  ConcatenationLevel,
  AddLevel,
  ModuloLevel,
  IntegerDivideLevel,
  MultiplyLevel,
  NegationLevel,
  PowerLevel
};
static_assert(ConcatenationLevel == Parser::ComparisonOperand);

struct Operator {
  std::string_view token;
  int level;
  std::variant<ArithmeticOperator, ComparisonOperator, LogicOperator, std::monostate> op;  // monostate: &
};

constexpr Operator Operators[] = {
    {"IMP", ImpLevel, LogicOperator::Imp},
    {"EQV", EqvLevel, LogicOperator::Eqv},
    {"XOR", XorLevel, LogicOperator::Xor},
    {"OR", OrLevel, LogicOperator::Or},
    {"AND", AndLevel, LogicOperator::And},
    {"=", ComparisonLevel, ComparisonOperator::Equal},
    {"<>", ComparisonLevel, ComparisonOperator::NotEqual},
    {"<", ComparisonLevel, ComparisonOperator::Less},
    {">", ComparisonLevel, ComparisonOperator::Greater},
    {"<=", ComparisonLevel, ComparisonOperator::LessOrEqual},
    {">=", ComparisonLevel, ComparisonOperator::GreaterOrEqual},
    {"&", ConcatenationLevel, std::monostate{}},
    {"+", AddLevel, ArithmeticOperator::Add},
    {"-", AddLevel, ArithmeticOperator::Subtract},
    {"MOD", ModuloLevel, ArithmeticOperator::Modulo},
    {"\\", IntegerDivideLevel, ArithmeticOperator::IntegerDivide},
    {"*", MultiplyLevel, ArithmeticOperator::Multiply},
    {"/", MultiplyLevel, ArithmeticOperator::Divide},
    {"^", PowerLevel, ArithmeticOperator::Power},
};

const Operator* findOperator(const Token& token) {
  if (token.kind != Token::Kind::Word && token.kind != Token::Kind::Symbol) return nullptr;
  const auto* found = std::ranges::find_if(Operators, [&](const Operator& candidate) {
    return token.kind == Token::Kind::Word ? token.isWord(candidate.token) : token.text == candidate.token;
  });
  return found == std::end(Operators) ? nullptr : found;
}

struct MakeNode {
  Expression left, right;
  auto operator()(std::monostate) -> decltype(Expression::node) {
    return Concatenation{std::move(left), std::move(right)};
  }
  auto operator()(ArithmeticOperator op) -> decltype(Expression::node) {
    return Arithmetic{op, std::move(left), std::move(right)};
  }
  auto operator()(ComparisonOperator op) -> decltype(Expression::node) {
    return Comparison{op, std::move(left), std::move(right)};
  }
  auto operator()(LogicOperator op) -> decltype(Expression::node) {
    return Logic{op, std::move(left), std::move(right)};
  }
};

/// ALL (SELECT, and not a function of this name.
bool atQuantifier(const Cursor& cursor) {
  const Token& word = cursor.peek();
  return (word.isWord("ALL") || word.isWord("ANY") || word.isWord("SOME")) && cursor.peek(1).isSymbol("(") &&
         cursor.peek(2).isWord("SELECT");
}

}  // namespace

Expression Parser::wholeExpression() {
  Expression whole = expression();
  if (cursor_.peek().kind != Token::Kind::End) cursor_.fail(ExpressionSyntax);
  return whole;
}

Expression parseExpression(std::string_view text) {
  return Parser(text).wholeExpression();
}

Expression Parser::expression(int minimum) {
  const Level level(*this);
  Expression left = operand(minimum);
  while (auto longer = operation(left, minimum)) left = std::move(*longer);
  return left;
}

/// The operand at the cursor with the signs and NOT before it.
Expression Parser::operand(int minimum) {
  const std::size_t position = cursor_.peek().position;
  if (auto implied = impliedColumn(minimum)) return std::move(*implied);
  if (cursor_.acceptWord("NOT")) {
    Expression inner = expression(NotLevel);
    const unsigned depth = inner.place.depth;
    return make(Not{std::move(inner)}, position, depth);
  }
  if (cursor_.acceptSymbol("-")) {
    Expression inner = expression(NegationLevel);
    const unsigned depth = inner.place.depth;
    return make(Negation{std::move(inner)}, position, depth);
  }
  if (cursor_.acceptSymbol("+")) return expression(NegationLevel);
  return primary();
}

/// `left` joined with what the operator at the cursor binds to it; nothing if that operator is weaker than
/// `minimum` or there is none.
std::optional<Expression> Parser::operation(Expression& left, int minimum) {
  if (atPredicate() || cursor_.atWord("NOT")) {
    if (minimum > ComparisonLevel) return std::nullopt;
    return predicate(std::move(left));
  }
  const Operator* found = findOperator(cursor_.peek());
  if (!found || found->level < minimum) return std::nullopt;
  cursor_.take();
  const auto* comparison = std::get_if<ComparisonOperator>(&found->op);
  if (comparison && atQuantifier(cursor_)) return quantified(*comparison, std::move(left));
  Expression right = expression(found->level + 1);
  const unsigned depth = std::max(left.place.depth, right.place.depth);
  const std::size_t position = left.place.position;
  checkDepth(depth + 1, position);
  return Expression{std::visit(MakeNode{std::move(left), std::move(right)}, found->op),
                    {position, depth + 1}};
}

/// LIKE, ALIKE, IN, BETWEEN with or without NOT, and IS [NOT] NULL.
Expression Parser::predicate(Expression left) {
  const std::size_t position = left.place.position;
  const unsigned depth = left.place.depth;
  if (cursor_.acceptWord("IS")) {
    const bool negated = cursor_.acceptWord("NOT");
    cursor_.expectWord("NULL", ExpressionSyntax);
    return make(IsNull{negated, std::move(left)}, position, depth);
  }
  const bool negated = cursor_.acceptWord("NOT");
  const bool ansi = cursor_.atWord("ALIKE");
  if (ansi || cursor_.atWord("LIKE")) {
    cursor_.take();
    Expression pattern = expression(ComparisonOperand);
    const unsigned highest = std::max(depth, pattern.place.depth);
    return make(Like{negated, ansi, std::move(left), std::move(pattern)}, position, highest);
  }
  if (cursor_.acceptWord("BETWEEN")) {
    Expression low = expression(ComparisonOperand);
    cursor_.expectWord("AND", ExpressionSyntax);
    Expression high = expression(ComparisonOperand);
    const unsigned highest = std::max({depth, low.place.depth, high.place.depth});
    return make(Between{negated, std::move(left), std::move(low), std::move(high)}, position, highest);
  }
  cursor_.expectWord("IN", ExpressionSyntax);
  return in(std::move(left), negated);
}

Expression Parser::in(Expression value, bool negated) {
  const tree::Place place = value.place;
  cursor_.expectSymbol("(", ExpressionSyntax);
  if (atQuery()) {
    Query inner = query();
    cursor_.expectSymbol(")", ExpressionSyntax);
    return make(InQuery{negated, std::move(value), std::move(inner)}, place.position, place.depth);
  }
  std::vector<Expression> items = expressions(")");
  if (items.empty()) cursor_.fail(ExpressionSyntax);
  return make(InList{negated, std::move(value), std::move(items)}, place.position, place.depth);
}

Expression Parser::quantified(ComparisonOperator op, Expression value) {
  const Place place = value.place;
  const bool all = cursor_.take().isWord("ALL");
  cursor_.take();
  Query inner = query();
  cursor_.expectSymbol(")", ExpressionSyntax);
  return make(QuantifiedComparison{op, all, std::move(value), std::move(inner)}, place.position, place.depth);
}

/// Expressions between commas up to `closing`, which is taken; none if it stands at once.
std::vector<Expression> Parser::expressions(std::string_view closing) {
  std::vector<Expression> items;
  if (cursor_.acceptSymbol(closing)) return items;
  do items.push_back(expression());
  while (cursor_.acceptSymbol(","));
  cursor_.expectSymbol(closing, ExpressionSyntax);
  return items;
}

}  // namespace jet::sql
