#include "jet/sql/parser/parser.h"

namespace jet::sql {

namespace {

constexpr unsigned maximumLevels = 100;  // of grammar rules within one another
constexpr unsigned maximumDepth = 400;   // of operators in a chain

}  // namespace

Parser::Level::Level(Parser& parser) : parser_(parser) {
  if (++parser_.levels_ <= maximumLevels) return;
  --parser_.levels_;
  parser_.cursor_.fail(TooComplex);
}

void Parser::checkDepth(unsigned depth, std::size_t position) const {
  if (depth > maximumDepth) throw SyntaxError(TooComplex, "", position);
}

tree::Statement Parser::statement() {
  tree::Statement statement{{}, tree::Query{}};
  if (cursor_.acceptWord("PARAMETERS")) {
    do statement.parameters.push_back(parameter());
    while (cursor_.acceptSymbol(","));
    cursor_.expectSymbol(";", ParametersSyntax);
  }
  if (cursor_.atWord("SELECT")) {
    statement.body = query();
  } else if (cursor_.acceptWord("UPDATE")) {
    statement.body = update();
  } else if (cursor_.acceptWord("DELETE")) {
    statement.body = deletion();
  } else if (cursor_.acceptWord("INSERT")) {
    statement.body = insert();
  } else if (cursor_.acceptWord("CREATE")) {
    const bool unique = cursor_.acceptWord("UNIQUE");
    if (unique || cursor_.atWord("INDEX")) {
      statement.body = createIndex(unique);
    } else {
      statement.body = createTable();
    }
  } else if (cursor_.acceptWord("DROP")) {
    clause_ = DropSyntax;
    if (cursor_.acceptWord("INDEX")) {
      tree::DropIndex drop;
      drop.name = cursor_.expectName(DropSyntax);
      cursor_.expectWord("ON", DropSyntax);
      drop.table = cursor_.expectName(DropSyntax);
      statement.body = std::move(drop);
    } else {
      cursor_.expectWord("TABLE", DropSyntax);
      statement.body = tree::DropTable{cursor_.expectName(DropSyntax)};
    }
  } else {
    cursor_.fail(InvalidStatement);
  }
  end();
  return statement;
}

tree::ParameterDeclaration Parser::parameter() {
  std::string name = cursor_.expectName(ParametersSyntax);
  name += path(ParametersSyntax);
  return {std::move(name), typeName(ParametersSyntax)};
}

void Parser::end() {
  if (cursor_.peek().kind == Token::Kind::End) return;
  if (!cursor_.acceptSymbol(";")) cursor_.fail(clause_);
  if (cursor_.peek().kind != Token::Kind::End) cursor_.fail(TextBehindStatement);
}

tree::Statement parse(std::string_view text) {
  return Parser(text).statement();
}

}  // namespace jet::sql
