// SELECT and TRANSFORM.
#include "jet/sql/parser/parser.h"

namespace jet::sql {

using namespace tree;

Select Parser::select() {
  cursor_.expectWord("SELECT", SelectSyntax);
  Into* const into = std::exchange(into_, nullptr);
  Select select;
  if (!cursor_.acceptWord("ALL")) select.distinct = cursor_.acceptWord("DISTINCT");
  if (!select.distinct) select.distinctRow = cursor_.acceptWord("DISTINCTROW");
  if (cursor_.atWord("TOP") && cursor_.peek(1).kind == Token::Kind::Number) {
    cursor_.take();
    select.top = Top{cursor_.expectCount(SelectSyntax), false};
    select.top->percent = cursor_.acceptWord("PERCENT");
  }
  do select.items.push_back(selectItem());
  while (cursor_.acceptSymbol(","));
  clause_ = std::holds_alternative<Star>(select.items.back().value) ? SelectSyntax : ExpressionSyntax;
  if (into && cursor_.acceptWord("INTO")) {
    const Place place = cursor_.place();
    into->table = PlacedName{cursor_.expectName(SelectSyntax), place};
    into->in = externalDatabase(SelectSyntax);
  }
  if (cursor_.acceptWord("FROM")) {
    select.from = from();
    select.in = externalDatabase(FromSyntax);
  }
  select.where = where();
  if (cursor_.acceptWord("GROUP")) {
    clause_ = ExpressionSyntax;
    cursor_.expectWord("BY", ExpressionSyntax);
    do select.groupBy.push_back(expression());
    while (cursor_.acceptSymbol(","));
  }
  if (cursor_.acceptWord("HAVING")) {
    clause_ = ExpressionSyntax;
    select.having = expression();
  }
  return select;
}

SelectItem Parser::selectItem() {
  const Place place = cursor_.place();
  if (cursor_.acceptSymbol("*")) return {Star{}, "", place};
  const Token& dot = cursor_.peek(1);
  if ((dot.isSymbol(".") || dot.isSymbol("!")) && cursor_.peek(2).isSymbol("*")) {
    Star star{cursor_.expectName(SelectSyntax)};
    cursor_.take();
    cursor_.take();
    return {std::move(star), "", place};
  }
  const Token& token = cursor_.peek();
  const bool callOfReserved = isReserved(token) && (dot.isSymbol("(") || dot.isSymbol("."));
  const bool missing = token.kind == Token::Kind::End || token.isSymbol(",") || token.isSymbol(";") ||
                       (isReserved(token) && !token.isWord("NOT") && !token.isWord("ON") && !callOfReserved);
  if (missing) cursor_.fail(SelectSyntax);
  Expression value = expression();
  std::string alias = cursor_.acceptAlias(true, SelectSyntax);
  return {std::move(value), std::move(alias), place};
}

decltype(Statement::body) Parser::selection() {
  Into into;
  into_ = &into;
  Query selected = query();
  into_ = nullptr;
  if (!into.table) return selected;
  return SelectInto{std::move(*into.table), std::move(into.in), std::move(selected)};
}

Transform Parser::transform() {
  cursor_.expectWord("TRANSFORM", TransformSyntax);
  Expression value = expression();
  cursor_.acceptAlias(true, TransformSyntax);  // the engine writes one, and shows it nowhere
  if (!cursor_.atWord("SELECT")) cursor_.fail(TransformSyntax);
  Query rows = query();
  cursor_.expectWord("PIVOT", TransformSyntax);
  Transform transform{std::move(value), std::move(rows), expression(ComparisonOperand), {}};
  if (cursor_.acceptWord("IN")) {
    cursor_.expectSymbol("(", TransformSyntax);
    transform.columns = expressions(")");
    if (transform.columns.empty()) cursor_.fail(TransformSyntax);
  }
  clause_ = TransformSyntax;
  return transform;
}

std::optional<Expression> Parser::where() {
  if (!cursor_.acceptWord("WHERE")) return std::nullopt;
  clause_ = ExpressionSyntax;
  return expression();
}

}  // namespace jet::sql
