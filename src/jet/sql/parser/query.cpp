#include "jet/sql/parser/parser.h"

namespace jet::sql {

tree::Query Parser::query() {
  const Level level(*this);
  tree::Query query;
  query.parts.push_back(select());
  while (cursor_.acceptWord("UNION")) {
    query.all.push_back(cursor_.acceptWord("ALL"));
    query.parts.push_back(select());
  }
  if (cursor_.acceptWord("ORDER")) {
    cursor_.expectWord("BY", OrderBySyntax);
    clause_ = OrderBySyntax;
    do query.orderBy.push_back(orderItem());
    while (cursor_.acceptSymbol(","));
  }
  return query;
}

tree::OrderItem Parser::orderItem() {
  if (cursor_.peek().kind == Token::Kind::End || cursor_.atSymbol(",") || cursor_.atSymbol(";")) {
    cursor_.fail(OrderBySyntax);
  }
  tree::OrderItem item{expression(), false};
  if (!cursor_.acceptWord("ASC")) item.descending = cursor_.acceptWord("DESC");
  return item;
}

}  // namespace jet::sql
