#pragma once

#include <string_view>

#include "jet/sql/parser/cursor.h"
#include "jet/sql/tree/statement.h"

namespace jet::sql {

/// Reads one statement. Each rule has a function; the functions of a noun stand in the file of its name.
class Parser {
 public:
  explicit Parser(std::string_view text) : cursor_(tokenize(text)) {}

  /// The whole text as one statement, a closing semicolon allowed. Throws SyntaxError.
  tree::Statement statement();
  /// The whole text as one expression.
  tree::Expression wholeExpression();

 private:
  // statement.cpp
  tree::ParameterDeclaration parameter();
  void end();

  // expression.cpp: operators; `minimum` is the weakest level that still belongs to the expression.
  tree::Expression expression(int minimum = 0);
  tree::Expression operand();
  std::optional<tree::Expression> operation(tree::Expression& left, int minimum);
  tree::Expression predicate(tree::Expression left);
  tree::Expression in(tree::Expression value, bool negated);
  std::vector<tree::Expression> expressions(std::string_view closing);

  // operand.cpp: what stands without operators
  tree::Expression primary();
  tree::Expression parenthesised();
  tree::Expression wordOperand();
  tree::Expression name();
  std::string path(StatementError error);
  tree::Expression call();

  // query.cpp, select.cpp
  tree::Query query();
  tree::OrderItem orderItem();
  tree::Select select();
  tree::SelectItem selectItem();
  std::optional<tree::Expression> where();

  // source.cpp
  std::vector<tree::Source> from();
  tree::Source source();
  tree::Source singleSource();
  tree::Join join(tree::JoinKind kind, tree::Source left);

  // update.cpp, delete.cpp, insert.cpp
  tree::Update update();
  tree::Delete deletion();
  tree::Insert insert();

  // table.cpp, index.cpp
  tree::CreateTable createTable();
  tree::ColumnDefinition columnDefinition();
  tree::Constraint constraint(bool ofColumn);
  tree::TypeName typeName(StatementError error);
  std::vector<std::string> names(StatementError error);
  tree::CreateIndex createIndex(bool unique);

  /// Wraps `node`, whose highest operand has `depth` levels. Error 3360 above the limit.
  template <class Node>
  tree::Expression make(Node node, std::size_t position, unsigned depth = 0) const {
    checkDepth(depth + 1, position);
    return tree::Expression{std::move(node), {position, depth + 1}};
  }
  void checkDepth(unsigned depth, std::size_t position) const;

  /// Counts the levels of the grammar that are open.
  class Level {
   public:
    explicit Level(Parser& parser);
    ~Level() { --parser_.levels_; }
    Level(const Level&) = delete;

   private:
    Parser& parser_;
  };

  Cursor cursor_;
  unsigned levels_ = 0;
  /// What an unexpected word behind the statement is an error of: the clause read last.
  StatementError clause_ = ExpressionSyntax;
};

tree::Statement parse(std::string_view text);
tree::Expression parseExpression(std::string_view text);

}  // namespace jet::sql
