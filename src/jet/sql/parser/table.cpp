#include "jet/sql/parser/parser.h"

namespace jet::sql {

using namespace tree;

CreateTable Parser::createTable() {
  clause_ = CreateTableSyntax;
  cursor_.expectWord("TABLE", CreateTableSyntax);
  CreateTable create{cursor_.expectName(CreateTableSyntax), {}, {}};
  cursor_.expectSymbol("(", CreateTableSyntax);
  do {
    if (cursor_.atWord("CONSTRAINT") || (cursor_.atWord("PRIMARY") && cursor_.peek(1).isWord("KEY")) ||
        (cursor_.atWord("UNIQUE") && cursor_.peek(1).isSymbol("("))) {
      create.constraints.push_back(constraint(false));
    } else {
      create.columns.push_back(columnDefinition());
    }
  } while (cursor_.acceptSymbol(","));
  cursor_.expectSymbol(")", CreateTableSyntax);
  if (create.columns.empty()) cursor_.fail(CreateTableSyntax);
  return create;
}

ColumnDefinition Parser::columnDefinition() {
  ColumnDefinition column{cursor_.expectName(CreateTableSyntax), {}, false, {}};
  column.type = typeName(ColumnDefinitionSyntax);
  while (true) {
    if (cursor_.acceptWord("NOT")) {
      cursor_.expectWord("NULL", ColumnDefinitionSyntax);
      column.notNull = true;
    } else if (cursor_.atWord("CONSTRAINT") || cursor_.atWord("PRIMARY") || cursor_.atWord("UNIQUE")) {
      column.constraints.push_back(constraint(true));
    } else {
      return column;
    }
  }
}

Constraint Parser::constraint(bool ofColumn) {
  Constraint constraint;
  if (cursor_.acceptWord("CONSTRAINT")) constraint.name = cursor_.expectName(ConstraintSyntax);
  if (cursor_.acceptWord("PRIMARY")) {
    cursor_.expectWord("KEY", ConstraintSyntax);
    constraint.primary = true;
  } else {
    cursor_.expectWord("UNIQUE", ConstraintSyntax);
  }
  if (!ofColumn) constraint.columns = names(ConstraintSyntax);
  return constraint;
}

TypeName Parser::typeName(StatementError error) {
  const Place place = cursor_.place();
  if (cursor_.peek().kind != Token::Kind::Word) cursor_.fail(error);
  TypeName type{cursor_.take().text, {}, {}, place};
  if (!cursor_.acceptSymbol("(")) return type;
  type.size = cursor_.expectCount(error);
  if (cursor_.acceptSymbol(",")) type.scale = cursor_.expectCount(error);
  cursor_.expectSymbol(")", error);
  return type;
}

std::vector<std::string> Parser::names(StatementError error) {
  std::vector<std::string> list;
  cursor_.expectSymbol("(", error);
  do list.push_back(cursor_.expectName(error));
  while (cursor_.acceptSymbol(","));
  cursor_.expectSymbol(")", error);
  return list;
}

}  // namespace jet::sql
