// FROM.
#include "jet/file/errors.h"
#include "jet/sql/parser/parser.h"

namespace jet::sql {

using namespace tree;

std::vector<Source> Parser::from() {
  std::vector<Source> sources;
  clause_ = FromSyntax;
  do sources.push_back(source());
  while (cursor_.acceptSymbol(","));
  clause_ = FromSyntax;
  return sources;
}

/// A table or a chain of joins, which bind to the left.
Source Parser::source() {
  struct Word {
    std::string_view text;
    JoinKind kind;
  };
  static constexpr Word words[] = {
      {"INNER", JoinKind::Inner}, {"LEFT", JoinKind::Left}, {"RIGHT", JoinKind::Right}};
  const Level level(*this);
  Source source = singleSource();
  for (const Word* word = words; word != std::end(words);) {
    if (!cursor_.acceptWord(word->text)) {
      ++word;
      continue;
    }
    if (word->kind != JoinKind::Inner) cursor_.acceptWord("OUTER");
    cursor_.expectWord("JOIN", FromSyntax);
    const Place place{source.place.position, source.place.depth + 1};
    checkDepth(place.depth, place.position);
    source = Source{join(word->kind, std::move(source)), place};
    word = words;
  }
  return source;
}

Join Parser::join(JoinKind kind, Source left) {
  Source right = singleSource();
  cursor_.expectWord("ON", FromSyntax);
  return Join{kind, std::move(left), std::move(right), expression()};
}

std::string Parser::externalDatabase(ErrorNumber error) {
  if (!cursor_.acceptWord("IN")) return "";
  if (cursor_.peek().kind != Token::Kind::Text) cursor_.fail(error);
  std::string file = cursor_.take().text;
  // IN '' [;DATABASE=file]
  if (file.empty() && cursor_.peek().kind == Token::Kind::QuotedName) file = cursor_.take().text;
  if (file.empty()) cursor_.fail(error);
  return file;
}

/// [SELECT ...]. AS name
Source Parser::bracketedQuery() {
  const Token bracketed = cursor_.take();
  Query inner = Parser(bracketed.text, bracketed.position + 1).wholeQuery(levels_);
  cursor_.take();
  std::string alias = cursor_.acceptAlias(false, FromSyntax);
  return {QuerySource{std::move(inner), std::move(alias)}, {bracketed.position, 1}};
}

Source Parser::singleSource() {
  const Place place = cursor_.place();
  if (!cursor_.acceptSymbol("(")) {
    const bool bracketed = cursor_.peek().kind == Token::Kind::QuotedName && cursor_.peek(1).isSymbol(".") &&
                           sameWord(cursor_.peek().text.substr(0, 7), "SELECT ");
    if (bracketed) return bracketedQuery();
    if (isReserved(cursor_.peek())) cursor_.fail(FromSyntax);
    TableSource table{cursor_.expectName(FromSyntax), ""};
    table.alias = cursor_.acceptAlias(false, FromSyntax);
    return {std::move(table), place};
  }
  if (!cursor_.atWord("SELECT") && !(cursor_.atWord("TABLE") && cursor_.peek(1).isName())) {
    Source inner = source();
    cursor_.expectSymbol(")", FromSyntax);
    return inner;
  }
  Query inner = query();
  cursor_.expectSymbol(")", FromSyntax);
  std::string alias = cursor_.acceptAlias(false, FromSyntax);
  return {QuerySource{std::move(inner), std::move(alias)}, place};
}

}  // namespace jet::sql
