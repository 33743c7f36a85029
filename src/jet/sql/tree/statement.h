#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "jet/sql/tree/query.h"

namespace jet::sql::tree {

/// TEXT(50), DECIMAL(10, 2), CHARACTER VARYING, LONG.
struct TypeName {
  std::string name;                     // its words with one blank between
  std::optional<unsigned> size, scale;  // of a COUNTER: its first number and its step
  bool compressed = false;
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
  std::string in;                   // database of the table; empty: this one
  std::vector<PlacedName> columns;  // empty: not told
  std::variant<std::vector<Expression>, Query> rows;
  bool operator==(const Insert&) const = default;
};

/// What REFERENCES says: rows point at rows of `table`.
struct References {
  std::string table;
  std::vector<std::string> columns;  // empty: not told
  bool cascadeUpdate = false, cascadeDelete = false;
  bool operator==(const References&) const = default;
};

/// CONSTRAINT name PRIMARY KEY (columns), UNIQUE (columns), FOREIGN KEY (columns) REFERENCES ...; of a
/// column: its own.
struct Constraint {
  std::string name;  // empty: not told
  enum class Kind { Primary, Unique, Foreign };
  Kind kind = Kind::Unique;
  std::vector<std::string> columns;
  References references;  // Foreign
  bool operator==(const Constraint&) const = default;
};

struct ColumnDefinition {
  std::string name;
  TypeName type;
  bool notNull = false;
  std::optional<Expression> defaultValue;
  std::vector<Constraint> constraints;  // without columns
  bool operator==(const ColumnDefinition&) const = default;
};

struct CreateTable {
  std::string table;
  std::vector<ColumnDefinition> columns;
  std::vector<Constraint> constraints;
  bool operator==(const CreateTable&) const = default;
};

struct AddColumn {
  ColumnDefinition column;
  bool operator==(const AddColumn&) const = default;
};
struct AlterColumn {
  ColumnDefinition column;
  bool operator==(const AlterColumn&) const = default;
};
/// ALTER COLUMN name SET DEFAULT value, ALTER COLUMN name DROP DEFAULT
struct SetDefault {
  std::string name;
  std::optional<Expression> value;
  bool operator==(const SetDefault&) const = default;
};
struct DropColumn {
  std::string name;
  bool operator==(const DropColumn&) const = default;
};
struct AddConstraint {
  Constraint constraint;
  bool operator==(const AddConstraint&) const = default;
};
struct DropConstraint {
  std::string name;
  bool operator==(const DropConstraint&) const = default;
};

struct AlterTable {
  std::string table;
  std::variant<AddColumn, AlterColumn, SetDefault, DropColumn, AddConstraint, DropConstraint> action;
  bool operator==(const AlterTable&) const = default;
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

/// SELECT ... INTO table: the query without INTO.
struct SelectInto {
  PlacedName table;
  std::string in;  // database of the table; empty: this one
  Query query;
  bool operator==(const SelectInto&) const = default;
};

/// TRANSFORM value SELECT ... PIVOT pivot IN (columns): a row for each group, a column for each value of
/// `pivot`.
struct Transform {
  Expression value;
  Query query;
  Expression pivot;
  std::vector<Expression> columns;  // empty: as many as there are values
  bool operator==(const Transform&) const = default;
};

/// EXECUTE: a stored query with values for its parameters.
struct Execute {
  PlacedName query;
  std::vector<Expression> arguments;
  bool operator==(const Execute&) const = default;
};

struct Statement {
  std::vector<ParameterDeclaration> parameters;
  std::variant<Query, Update, Delete, Insert, SelectInto, Transform, Execute, CreateTable, AlterTable,
               CreateIndex, DropTable, DropIndex>
      body;
  bool ownerAccess = false;  // WITH OWNERACCESS OPTION
  bool operator==(const Statement&) const = default;
};

}  // namespace jet::sql::tree
