// Which statement begins here, its parameters, and how deep one may nest.
#include "jet/file/errors.h"
#include "jet/sql/parser/parser.h"

namespace jet::sql {

namespace {

constexpr unsigned MaximumLevels = 100;  // of grammar rules within one another
constexpr unsigned MaximumDepth = 400;   // of operators in a chain

}  // namespace

Parser::Level::Level(Parser& parser) : parser_(parser) {
  if (++parser_.levels_ <= MaximumLevels) return;
  --parser_.levels_;
  parser_.cursor_.fail(TooComplex);
}

void Parser::checkDepth(unsigned depth, std::size_t position) const {
  if (depth > MaximumDepth) throw SyntaxError(TooComplex, "", position);
}

tree::Statement Parser::statement() {
  tree::Statement statement{{}, tree::Query{}, false};
  if (cursor_.acceptWord("PARAMETERS")) {
    do statement.parameters.push_back(parameter());
    while (cursor_.acceptSymbol(","));
    cursor_.expectSymbol(";", ParametersSyntax);
  }
  auto body = rowStatement();
  if (!body) body = definition();
  if (!body) cursor_.fail(InvalidStatement);
  statement.body = std::move(*body);
  if (cursor_.acceptWord("WITH")) {
    cursor_.expectWord("OWNERACCESS", clause_);
    cursor_.expectWord("OPTION", clause_);
    statement.ownerAccess = true;
  }
  end();
  return statement;
}

std::optional<decltype(tree::Statement::body)> Parser::rowStatement() {
  if (atQuery()) return selection();
  if (cursor_.atWord("TRANSFORM")) return transform();
  if (cursor_.acceptWord("UPDATE")) return update();
  if (cursor_.acceptWord("DELETE")) return deletion();
  if (cursor_.acceptWord("INSERT")) return insert();
  if (cursor_.acceptWord("EXECUTE") || cursor_.acceptWord("EXEC")) return execute();
  return std::nullopt;
}

std::optional<decltype(tree::Statement::body)> Parser::definition() {
  if (cursor_.acceptWord("CREATE")) {
    const bool unique = cursor_.acceptWord("UNIQUE");
    if (unique || cursor_.atWord("INDEX")) return createIndex(unique);
    return createTable();
  }
  if (cursor_.acceptWord("ALTER")) return alterTable();
  if (!cursor_.acceptWord("DROP")) return std::nullopt;
  clause_ = DropSyntax;
  if (!cursor_.acceptWord("INDEX")) {
    cursor_.expectWord("TABLE", DropSyntax);
    return tree::DropTable{cursor_.expectName(DropSyntax)};
  }
  tree::DropIndex drop;
  drop.name = cursor_.expectName(DropSyntax);
  cursor_.expectWord("ON", DropSyntax);
  drop.table = cursor_.expectName(DropSyntax);
  return drop;
}

tree::Execute Parser::execute() {
  const tree::Place place = cursor_.place();
  tree::Execute execute{{cursor_.expectName(InvalidStatement), place}, {}};
  clause_ = ExpressionSyntax;
  if (cursor_.peek().kind == Token::Kind::End || cursor_.atSymbol(";")) return execute;
  do execute.arguments.push_back(expression());
  while (cursor_.acceptSymbol(","));
  return execute;
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
