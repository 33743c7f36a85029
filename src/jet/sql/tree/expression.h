#pragma once

#include <cstddef>
#include <string>
#include <variant>
#include <vector>

#include "jet/sql/tree/box.h"
#include "jet/sql/tree/operator.h"

/// What a statement says, as it says it: no name is looked up and no type is known. Equality is of structure,
/// places apart.
namespace jet::sql::tree {

struct Expression;
struct Query;

/// Where a node begins, in characters of the statement, and how many nodes stand above one another in it.
struct Place {
  std::size_t position = 0;
  unsigned depth = 1;
  bool operator==(const Place&) const { return true; }
};

struct Literal {
  enum class Kind { Null, Boolean, Number, Text, Date };
  Kind kind = Kind::Null;
  /// Boolean: "True" or "False"; Number: as written; Date: "yyyy-mm-dd hh:mm:ss"; Text: its characters.
  std::string text;
  bool operator==(const Literal&) const = default;
};

/// `column` or `table.column`; a parameter looks the same.
struct Name {
  std::string table;  // empty: not told
  std::string column;
  bool operator==(const Name&) const = default;
};

struct Negation {
  Box<Expression> operand;
  bool operator==(const Negation&) const = default;
};

struct Arithmetic {
  ArithmeticOperator op;
  Box<Expression> left, right;
  bool operator==(const Arithmetic&) const = default;
};

/// left & right
struct Concatenation {
  Box<Expression> left, right;
  bool operator==(const Concatenation&) const = default;
};

struct Comparison {
  ComparisonOperator op;
  Box<Expression> left, right;
  bool operator==(const Comparison&) const = default;
};

struct Logic {
  LogicOperator op;
  Box<Expression> left, right;
  bool operator==(const Logic&) const = default;
};

struct Not {
  Box<Expression> operand;
  bool operator==(const Not&) const = default;
};

/// LIKE, or ALIKE with the wildcards of ANSI.
struct Like {
  bool negated = false, ansi = false;
  Box<Expression> value, pattern;
  bool operator==(const Like&) const = default;
};

struct Between {
  bool negated = false;
  Box<Expression> value, low, high;
  bool operator==(const Between&) const = default;
};

struct InList {
  bool negated = false;
  Box<Expression> value;
  std::vector<Expression> items;
  bool operator==(const InList&) const = default;
};

struct InQuery {
  bool negated = false;
  Box<Expression> value;
  Box<Query> query;
  bool operator==(const InQuery&) const = default;
};

/// value op ANY (query), value op ALL (query)
struct QuantifiedComparison {
  ComparisonOperator op;
  bool all = false;
  Box<Expression> value;
  Box<Query> query;
  bool operator==(const QuantifiedComparison&) const = default;
};

struct IsNull {
  bool negated = false;
  Box<Expression> operand;
  bool operator==(const IsNull&) const = default;
};

/// A function or an aggregate; `star` for Count(*).
struct Call {
  std::string name;
  bool star = false;
  std::vector<Expression> arguments;
  /// One or none: the rows that an aggregate sees, in the cell of a crosstab. No text says it.
  std::vector<Expression> filter;
  bool operator==(const Call&) const = default;
};

struct Exists {
  Box<Query> query;
  bool operator==(const Exists&) const = default;
};

/// A query in parentheses that stands for its one value.
struct Subquery {
  Box<Query> query;
  bool operator==(const Subquery&) const = default;
};

struct Expression {
  std::variant<Literal, Name, Negation, Arithmetic, Concatenation, Comparison, Logic, Not, Like, Between,
               InList, InQuery, QuantifiedComparison, IsNull, Call, Exists, Subquery>
      node;
  Place place;
  bool operator==(const Expression&) const = default;
};

}  // namespace jet::sql::tree
