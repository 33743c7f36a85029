// What an operator joins: literals, names, calls, what stands in parentheses.
#include <algorithm>

#include "jet/file/errors.h"
#include "jet/sql/parser/parser.h"

namespace jet::sql {

using namespace tree;

Expression Parser::primary() {
  const Token& token = cursor_.peek();
  const std::size_t position = token.position;
  const auto literal = [&](Literal::Kind kind) { return make(Literal{kind, cursor_.take().text}, position); };
  switch (token.kind) {
    case Token::Kind::Number:
      return literal(Literal::Kind::Number);
    case Token::Kind::Text:
      return literal(Literal::Kind::Text);
    case Token::Kind::Date:
      return literal(Literal::Kind::Date);
    case Token::Kind::QuotedName:
      return name();
    case Token::Kind::Word:
      return wordOperand();
    case Token::Kind::Symbol:
      if (token.text == "(") return parenthesised();
      break;
    case Token::Kind::End:
      break;
  }
  cursor_.fail(ExpressionSyntax);
}

Expression Parser::parenthesised() {
  const std::size_t position = cursor_.take().position;
  if (cursor_.atWord("SELECT")) {
    Query inner = query();
    cursor_.expectSymbol(")", ExpressionSyntax);
    return make(Subquery{std::move(inner)}, position);
  }
  Expression inner = expression();
  cursor_.expectSymbol(")", ExpressionSyntax);
  return inner;
}

/// A constant, EXISTS, a function or a name. A name in front of a dot may be any word.
Expression Parser::wordOperand() {
  static constexpr std::string_view trueWords[] = {"TRUE", "YES", "ON"},
                                    falseWords[] = {"FALSE", "NO", "OFF"};
  const Token& token = cursor_.peek();
  const std::size_t position = token.position;
  const Token& next = cursor_.peek(1);
  if (next.isSymbol(".") || next.isSymbol("!")) return name();
  const auto isOneOf = [&](const auto& words) {
    return std::ranges::any_of(words, [&](std::string_view word) { return token.isWord(word); });
  };
  const auto constant = [&](Literal::Kind kind, const char* text) {
    cursor_.take();
    return make(Literal{kind, text}, position);
  };
  if (token.isWord("NULL")) return constant(Literal::Kind::Null, "");
  if (isOneOf(trueWords)) return constant(Literal::Kind::Boolean, "True");
  if (isOneOf(falseWords)) return constant(Literal::Kind::Boolean, "False");
  if (next.isSymbol("(")) {
    if (token.isWord("EXISTS") && cursor_.peek(2).isWord("SELECT")) {
      cursor_.take();
      cursor_.take();
      Query inner = query();
      cursor_.expectSymbol(")", ExpressionSyntax);
      return make(Exists{std::move(inner)}, position);
    }
    if (!isReserved(token) || token.isWord("LEFT") || token.isWord("RIGHT")) return call();
  }
  if (isReserved(token)) cursor_.fail(ExpressionSyntax);
  return name();
}

/// column, table.column or table!column. More parts (Forms!form!control) name nothing in a database: together
/// they are the name of a parameter.
Expression Parser::name() {
  const std::size_t position = cursor_.peek().position;
  Name name{"", cursor_.expectName(ExpressionSyntax)};
  const auto atSeparator = [&] { return cursor_.atSymbol(".") || cursor_.atSymbol("!"); };
  if (atSeparator()) {
    const std::string separator = cursor_.take().text;
    name.table = std::move(name.column);
    name.column = cursor_.expectName(ExpressionSyntax);
    if (atSeparator()) {
      name.column = std::move(name.table) + separator + name.column + path(ExpressionSyntax);
      name.table.clear();
    }
  }
  return make(std::move(name), position);
}

/// The parts of a name behind its first one, with their separators.
std::string Parser::path(ErrorNumber error) {
  std::string parts;
  while (cursor_.atSymbol(".") || cursor_.atSymbol("!")) {
    parts += cursor_.take().text;
    parts += cursor_.expectName(error);
  }
  return parts;
}

Expression Parser::call() {
  const std::size_t position = cursor_.peek().position;
  Call call{cursor_.take().text, false, {}, {}};
  cursor_.take();
  if (cursor_.acceptSymbol("*")) {
    call.star = true;
    cursor_.expectSymbol(")", ExpressionSyntax);
  } else {
    call.arguments = expressions(")");
  }
  unsigned depth = 0;
  for (const Expression& argument : call.arguments) depth = std::max(depth, argument.place.depth);
  return make(std::move(call), position, depth);
}

}  // namespace jet::sql
