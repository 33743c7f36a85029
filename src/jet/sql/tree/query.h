#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "jet/sql/tree/expression.h"

namespace jet::sql::tree {

struct Source;

/// A table of FROM.
struct TableSource {
  std::string name;
  std::string alias;  // empty: none
  bool operator==(const TableSource&) const = default;
};

/// (query) AS alias
struct QuerySource {
  Box<Query> query;
  std::string alias;
  bool operator==(const QuerySource&) const = default;
};

enum class JoinKind { Inner, Left, Right };

struct Join {
  JoinKind kind = JoinKind::Inner;
  Box<Source> left, right;
  Expression condition;
  bool operator==(const Join&) const = default;
};

struct Source {
  std::variant<TableSource, QuerySource, Join> node;
  Place place;
  bool operator==(const Source&) const = default;
};

/// `*` or `table.*`.
struct Star {
  std::string table;
  bool operator==(const Star&) const = default;
};

struct SelectItem {
  std::variant<Star, Expression> value;
  std::string alias;
  Place place;
  bool operator==(const SelectItem&) const = default;
};

struct Top {
  unsigned count = 0;
  bool percent = false;
  bool operator==(const Top&) const = default;
};

struct Select {
  bool distinct = false;
  bool distinctRow = false;
  std::optional<Top> top;
  std::vector<SelectItem> items;
  std::vector<Source> from;
  std::string in;  // database that the tables of FROM lie in; empty: this one
  std::optional<Expression> where;
  std::vector<Expression> groupBy;
  std::optional<Expression> having;
  bool operator==(const Select&) const = default;
};

struct OrderItem {
  Expression value;
  bool descending = false;
  bool operator==(const OrderItem&) const = default;
};

/// One SELECT, or several joined by UNION: `all[i]` tells whether part i + 1 follows UNION ALL.
struct Query {
  std::vector<Select> parts;
  std::vector<bool> all;
  std::vector<OrderItem> orderBy;
  bool operator==(const Query&) const = default;
};

}  // namespace jet::sql::tree
