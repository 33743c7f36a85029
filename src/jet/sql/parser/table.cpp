// CREATE TABLE and ALTER TABLE.
#include <algorithm>

#include "jet/file/errors.h"
#include "jet/sql/parser/parser.h"

namespace jet::sql {

using namespace tree;

/// CREATE [TEMPORARY] TABLE: a temporary one is a table like others here.
CreateTable Parser::createTable() {
  clause_ = CreateTableSyntax;
  cursor_.acceptWord("TEMPORARY");
  cursor_.expectWord("TABLE", CreateTableSyntax);
  CreateTable create{cursor_.expectName(CreateTableSyntax), {}, {}};
  cursor_.expectSymbol("(", CreateTableSyntax);
  do {
    if (atConstraint()) {
      create.constraints.push_back(constraint(false));
    } else {
      create.columns.push_back(columnDefinition(CreateTableSyntax));
    }
  } while (cursor_.acceptSymbol(","));
  cursor_.expectSymbol(")", CreateTableSyntax);
  if (create.columns.empty()) cursor_.fail(CreateTableSyntax);
  return create;
}

AlterTable Parser::alterTable() {
  clause_ = AlterTableSyntax;
  cursor_.expectWord("TABLE", AlterTableSyntax);
  AlterTable alter{cursor_.expectName(AlterTableSyntax), DropColumn{}};
  if (cursor_.acceptWord("ADD")) {
    if (atConstraint()) {
      alter.action = AddConstraint{constraint(false)};
    } else {
      cursor_.acceptWord("COLUMN");
      alter.action = AddColumn{columnDefinition(AlterTableSyntax)};
    }
  } else if (cursor_.acceptWord("ALTER")) {
    cursor_.acceptWord("COLUMN");
    const auto follows = [&](std::string_view word) {
      return cursor_.peek(1).isWord(word) && cursor_.peek(2).isWord("DEFAULT");
    };
    if (follows("SET") || follows("DROP")) {
      alter.action = setDefault();
    } else {
      alter.action = AlterColumn{columnDefinition(AlterTableSyntax)};
    }
  } else {
    cursor_.expectWord("DROP", AlterTableSyntax);
    if (cursor_.acceptWord("CONSTRAINT")) {
      alter.action = DropConstraint{cursor_.expectName(AlterTableSyntax)};
    } else {
      cursor_.acceptWord("COLUMN");
      alter.action = DropColumn{cursor_.expectName(AlterTableSyntax)};
    }
  }
  return alter;
}

SetDefault Parser::setDefault() {
  SetDefault set{cursor_.expectName(AlterTableSyntax), {}};
  const bool gives = cursor_.take().isWord("SET");
  cursor_.take();
  if (gives) set.value = expression(ComparisonOperand);
  return set;
}

ColumnDefinition Parser::columnDefinition(ErrorNumber error) {
  ColumnDefinition column{cursor_.expectName(error), {}, false, {}, {}};
  column.type = typeName(ColumnDefinitionSyntax);
  while (true) {
    // A constraint NOT NULL may have a name.
    const bool named = cursor_.atWord("CONSTRAINT") && cursor_.peek(2).isWord("NOT");
    if (named) cursor_.take(), cursor_.take();
    if (cursor_.acceptWord("NOT")) {
      cursor_.expectWord("NULL", ColumnDefinitionSyntax);
      column.notNull = true;
    } else if (cursor_.acceptWord("NULL")) {
      column.notNull = false;
    } else if (cursor_.acceptWord("DEFAULT")) {
      column.defaultValue = expression(ComparisonOperand);
    } else if (atConstraint() || cursor_.atWord("UNIQUE") || cursor_.atWord("REFERENCES")) {
      column.constraints.push_back(constraint(true));
    } else {
      return column;
    }
  }
}

TypeName Parser::typeName(ErrorNumber error) {
  TypeName type;
  type.place = cursor_.place();
  type.name = typeWords(error);
  if (cursor_.acceptSymbol("(")) {
    type.size = cursor_.expectCount(error);
    if (cursor_.acceptSymbol(",")) type.scale = cursor_.expectCount(error);
    cursor_.expectSymbol(")", error);
  }
  if (cursor_.atWord("WITH") && (cursor_.peek(1).isWord("COMPRESSION") || cursor_.peek(1).isWord("COMP"))) {
    cursor_.take();
    cursor_.take();
    type.compressed = true;
  }
  return type;
}

/// LONG; CHARACTER VARYING, NATIONAL CHAR.
std::string Parser::typeWords(ErrorNumber error) {
  struct Pair {
    std::string_view first, second;
  };
  static constexpr Pair pairs[] = {{"NATIONAL", "CHAR"}, {"NATIONAL", "CHARACTER"}, {"CHAR", "VARYING"},
                                   {"NCHAR", "VARYING"}, {"CHARACTER", "VARYING"},  {"BINARY", "VARYING"},
                                   {"BIT", "VARYING"},   {"DOUBLE", "PRECISION"}};
  if (cursor_.peek().kind != Token::Kind::Word) cursor_.fail(error);
  Token word = cursor_.take();
  std::string words = word.text;
  const auto continues = [&](const Pair& pair) {
    return word.isWord(pair.first) && cursor_.atWord(pair.second);
  };
  while (std::ranges::any_of(pairs, continues)) {
    word = cursor_.take();
    words += " " + word.text;
  }
  return words;
}

std::vector<std::string> Parser::names(ErrorNumber error) {
  std::vector<std::string> list;
  cursor_.expectSymbol("(", error);
  do list.push_back(cursor_.expectName(error));
  while (cursor_.acceptSymbol(","));
  cursor_.expectSymbol(")", error);
  return list;
}

}  // namespace jet::sql
