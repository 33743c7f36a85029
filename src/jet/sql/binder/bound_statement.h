#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "jet/sql/binder/bound_expression.h"
#include "jet/sql/tree/query.h"

namespace jet::sql::bound {

using tree::JoinKind;
using tree::Top;

struct Source;

/// A table of the image under the source number that its columns name.
struct TableSource {
  unsigned source = 0;
  std::uint32_t page = 0;
  bool operator==(const TableSource&) const = default;
};

/// A query whose columns are named x1, x2, ...
struct QuerySource {
  unsigned source = 0;
  Box<Query> query;
  bool operator==(const QuerySource&) const = default;
};

struct Join {
  JoinKind kind = JoinKind::Inner;
  Box<Source> left, right;
  Expression condition;
  bool operator==(const Join&) const = default;
};

struct Source {
  std::variant<TableSource, QuerySource, Join> node;
  bool operator==(const Source&) const = default;
};

/// A column of a result, with the table's column that it shows, if it does.
struct Item {
  Expression value;
  std::string name;
  std::string sourceTable, sourceColumn;
  std::optional<unsigned> source;
  bool operator==(const Item&) const = default;
};

struct Select {
  bool distinct = false;
  std::vector<unsigned> distinctRows;  // tables of whose rows no combination comes twice; empty: no matter
  std::optional<Top> top;
  std::vector<Item> items;
  std::vector<Source> from;
  std::optional<Expression> where;
  bool grouped = false;
  std::vector<Expression> groupBy;
  std::optional<Expression> having;
  bool operator==(const Select&) const = default;
};

/// A result column's position from 0, or an expression of the rows of a query's only part.
struct OrderKey {
  std::variant<std::size_t, Expression> value;
  bool descending = false;
  bool operator==(const OrderKey&) const = default;
};

struct Query {
  std::vector<Select> parts;
  std::vector<bool> all;
  std::vector<OrderKey> orderBy;
  bool operator==(const Query&) const = default;
};

struct Assignment {
  std::uint16_t column = 0;
  Expression value;
};

/// A table of FROM whose rows an UPDATE changes. Where an outer join may find no row of it, one is added, of
/// the assigned values and `defaults`.
struct Target {
  unsigned source = 0;
  std::uint32_t page = 0;
  std::vector<Assignment> assignments;
  bool optional = false;
  std::vector<Assignment> defaults;
};

struct Update {
  std::vector<Source> from;
  std::vector<Target> targets;
  std::optional<Expression> where;
};

struct Delete {
  std::vector<Source> from;
  unsigned target = 0;
  std::uint32_t page = 0;
  std::optional<Expression> where;
};

/// Adds a row of the assigned values and `defaults` for each row of `rows`; one row where that is not there.
struct Insert {
  std::uint32_t page = 0;
  std::vector<Assignment> assignments, defaults;
  std::optional<QuerySource> rows;
};

using Statement = std::variant<Query, Update, Delete, Insert>;

}  // namespace jet::sql::bound
