// Queries: UNION and ORDER BY around the parts.
#include "jet/sql/parser/parser.h"

namespace jet::sql {

using namespace tree;

namespace {

/// A part that is a table or a query of its own: SELECT * FROM it.
Select all(Source source) {
  Select select;
  const Place place = source.place;
  select.items.push_back({Star{}, "", place});
  select.from.push_back(std::move(source));
  return select;
}

}  // namespace

Query Parser::query() {
  const Level level(*this);
  Query query;
  query.parts.push_back(queryPart());
  while (cursor_.acceptWord("UNION")) {
    query.all.push_back(cursor_.acceptWord("ALL"));
    query.parts.push_back(queryPart());
  }
  if (cursor_.acceptWord("ORDER")) {
    cursor_.expectWord("BY", OrderBySyntax);
    clause_ = OrderBySyntax;
    do query.orderBy.push_back(orderItem());
    while (cursor_.acceptSymbol(","));
  }
  return query;
}

Query Parser::wholeQuery(unsigned levels) {
  levels_ = levels;
  Query whole = query();
  end();
  return whole;
}

/// True where a query begins: SELECT, TABLE, or one of them in parentheses.
bool Parser::atQuery(std::size_t ahead) const {
  while (cursor_.peek(ahead).isSymbol("(")) ++ahead;
  const Token& word = cursor_.peek(ahead);
  return word.isWord("SELECT") || (word.isWord("TABLE") && cursor_.peek(ahead + 1).isName());
}

/// SELECT, TABLE name, or a query in parentheses.
Select Parser::queryPart() {
  const Place place = cursor_.place();
  if (cursor_.acceptWord("TABLE")) {
    clause_ = FromSyntax;
    return all({TableSource{cursor_.expectName(FromSyntax), ""}, place});
  }
  if (!cursor_.atSymbol("(") || !atQuery()) return select();
  cursor_.take();
  Query inner = query();
  cursor_.expectSymbol(")", SelectSyntax);
  if (inner.parts.size() == 1 && inner.orderBy.empty()) return std::move(inner.parts.front());
  return all({QuerySource{std::move(inner), ""}, place});
}

OrderItem Parser::orderItem() {
  if (cursor_.peek().kind == Token::Kind::End || cursor_.atSymbol(",") || cursor_.atSymbol(";")) {
    cursor_.fail(OrderBySyntax);
  }
  OrderItem item{expression(), false};
  if (!cursor_.acceptWord("ASC")) item.descending = cursor_.acceptWord("DESC");
  return item;
}

}  // namespace jet::sql
