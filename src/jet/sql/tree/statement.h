#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "jet/sql/tree/query.h"

namespace jet::sql::tree {

/// TEXT(50), DECIMAL(10, 2), LONG.
struct TypeName {
  std::string name;
  std::optional<unsigned> size, scale;
  Place place;
  bool operator==(const TypeName&) const = default;
};

struct ParameterDeclaration {
  std::string name;
  TypeName type;
  bool operator==(const ParameterDeclaration&) const = default;
};

struct Assignment {
  Name column;
  Expression value;
  Place place;
  bool operator==(const Assignment&) const = default;
};

struct Update {
  std::vector<Source> from;
  std::vector<Assignment> assignments;
  std::optional<Expression> where;
  bool operator==(const Update&) const = default;
};

struct Delete {
  std::optional<Star> target;  // `*`, `table.*` or nothing
  std::vector<Source> from;
  std::optional<Expression> where;
  bool operator==(const Delete&) const = default;
};

/// A name with its place, where an error may point at it.
struct PlacedName {
  std::string text;
  Place place;
  bool operator==(const PlacedName&) const = default;
};

struct Insert {
  PlacedName table;
  std::vector<PlacedName> columns;  // empty: not told
  std::variant<std::vector<Expression>, Query> rows;
  bool operator==(const Insert&) const = default;
};

/// CONSTRAINT name PRIMARY KEY (columns) or UNIQUE (columns); of a column: its own.
struct Constraint {
  std::string name;  // empty: not told
  bool primary = false;
  std::vector<std::string> columns;
  bool operator==(const Constraint&) const = default;
};

struct ColumnDefinition {
  std::string name;
  TypeName type;
  bool notNull = false;
  std::vector<Constraint> constraints;  // without columns
  bool operator==(const ColumnDefinition&) const = default;
};

struct CreateTable {
  std::string table;
  std::vector<ColumnDefinition> columns;
  std::vector<Constraint> constraints;
  bool operator==(const CreateTable&) const = default;
};

struct IndexColumn {
  std::string name;
  bool descending = false;
  bool operator==(const IndexColumn&) const = default;
};

struct CreateIndex {
  bool unique = false;
  std::string name, table;
  std::vector<IndexColumn> columns;
  enum class Option { None, Primary, DisallowNull, IgnoreNull };
  Option option = Option::None;
  bool operator==(const CreateIndex&) const = default;
};

struct DropTable {
  std::string table;
  bool operator==(const DropTable&) const = default;
};

struct DropIndex {
  std::string name, table;
  bool operator==(const DropIndex&) const = default;
};

struct Statement {
  std::vector<ParameterDeclaration> parameters;
  std::variant<Query, Update, Delete, Insert, CreateTable, CreateIndex, DropTable, DropIndex> body;
  bool operator==(const Statement&) const = default;
};

}  // namespace jet::sql::tree
