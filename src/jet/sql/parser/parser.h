#pragma once

#include <string_view>

#include "jet/file/errors.h"
#include "jet/sql/parser/cursor.h"
#include "jet/sql/tree/statement.h"

namespace jet::sql {

/// Reads one statement. Each rule has a function; the functions of a noun stand in the file of its name.
class Parser {
 public:
  /// The level of an expression that stands beside a comparison: an IN or NOT behind it is no part of it.
  static constexpr int ComparisonOperand = 8;

  /// `position`: of the text in the statement that it is a piece of.
  explicit Parser(std::string_view text, std::size_t position = 0) : cursor_(tokenize(text, position)) {}

  /// The whole text as one statement, a closing semicolon allowed. Throws SyntaxError.
  tree::Statement statement();
  /// The whole text as one expression, as one query.
  tree::Expression wholeExpression();
  tree::Query wholeQuery(unsigned levels);
  /// The whole text as the rule of a column, which stands where a comparison lacks its left side, and which a
  /// mere value is compared with ("M" Or "F"). An empty `column`: as the rule of a table.
  tree::Expression wholeRule(const std::string& column);

 private:
  // statement.cpp
  tree::ParameterDeclaration parameter();
  std::optional<decltype(tree::Statement::body)> rowStatement();
  std::optional<decltype(tree::Statement::body)> definition();
  tree::Execute execute();
  void end();

  // expression.cpp: operators; `minimum` is the weakest level that still belongs to the expression.
  tree::Expression expression(int minimum = 0);
  tree::Expression operand(int minimum);
  std::optional<tree::Expression> operation(tree::Expression& left, int minimum);
  tree::Expression predicate(tree::Expression left);
  tree::Expression in(tree::Expression value, bool negated);
  tree::Expression quantified(ComparisonOperator op, tree::Expression value);
  std::vector<tree::Expression> expressions(std::string_view closing);

  // rule.cpp
  bool atPredicate() const;
  /// The column of the rule being read, where a comparison begins without its left side.
  std::optional<tree::Expression> impliedColumn(int minimum) const;

  // operand.cpp: what stands without operators
  tree::Expression primary();
  tree::Expression parenthesised();
  tree::Expression wordOperand();
  tree::Expression name();
  std::string path(ErrorNumber error);
  tree::Expression call();

  // query.cpp, select.cpp
  tree::Query query();
  bool atQuery(std::size_t ahead = 0) const;
  tree::Select queryPart();
  tree::OrderItem orderItem();
  tree::Select select();
  tree::SelectItem selectItem();
  std::optional<tree::Expression> where();

  /// The body of a SELECT statement: with INTO it makes a table.
  decltype(tree::Statement::body) selection();
  /// TRANSFORM
  tree::Transform transform();

  // source.cpp
  std::vector<tree::Source> from();
  /// IN 'file': the database of the tables named before; empty where it isn't there.
  std::string externalDatabase(ErrorNumber error);
  tree::Source bracketedQuery();
  tree::Source source();
  tree::Source singleSource();
  tree::Join join(tree::JoinKind kind, tree::Source left);

  // update.cpp, delete.cpp, insert.cpp
  tree::Update update();
  tree::Delete deletion();
  std::string deletedTable();
  tree::Insert insert();

  // table.cpp, constraint.cpp, index.cpp
  tree::CreateTable createTable();
  tree::AlterTable alterTable();
  tree::SetDefault setDefault();
  tree::ColumnDefinition columnDefinition(ErrorNumber error);
  bool atConstraint() const;
  tree::Constraint constraint(bool ofColumn);
  tree::References references();
  tree::TypeName typeName(ErrorNumber error);
  std::string typeWords(ErrorNumber error);
  std::vector<std::string> names(ErrorNumber error);
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

  /// INTO of the SELECT of a statement, while that is being read.
  struct Into {
    std::optional<tree::PlacedName> table;
    std::string in;
  };

  Cursor cursor_;
  unsigned levels_ = 0;
  Into* into_ = nullptr;
  std::string ruledColumn_;  // while its rule is read
  /// What an unexpected word behind the statement is an error of: the clause read last.
  ErrorNumber clause_ = ExpressionSyntax;
};

tree::Statement parse(std::string_view text);
tree::Expression parseExpression(std::string_view text);
tree::Expression parseRule(std::string_view text, const std::string& column);

}  // namespace jet::sql
