#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "jet/sql/tree/box.h"
#include "jet/sql/tree/operator.h"
#include "jet/sql/type.h"

/// What a statement means: each name is a column or a parameter, each expression has its type, each change of
/// type is a node of its own. Equality is of meaning within one statement.
namespace jet::sql {
struct Function;
}

namespace jet::sql::bound {

struct Expression;
struct Query;

/// A value in its type's form in the image; monostate: Null.
struct Literal {
  std::variant<std::monostate, std::int64_t, double, std::string> value;
  std::string digits{};  // of a Double written with more of them than it holds: all, as a Decimal has them
  bool operator==(const Literal&) const = default;
};

/// A column of source number `source`.
struct Column {
  unsigned source = 0;
  std::size_t number = 0;  // of a table: file::Column::number; of a query: its place in the list, from 1
  bool ofQuery = false;
  bool collated = false;  // SQLite knows the order of its texts or digits
  bool operator==(const Column&) const = default;
};

struct Parameter {
  std::size_t index = 0;
  bool operator==(const Parameter&) const = default;
};

/// From the operand's type to the expression's.
struct Conversion {
  Box<Expression> operand;
  bool operator==(const Conversion&) const = default;
};

/// The conversion into a column's type and size that an assignment makes.
struct Store {
  Box<Expression> operand;
  unsigned size = 0;       // Text: characters; Binary: bytes; 0: no limit
  unsigned precision = 0;  // Decimal
  unsigned scale = 0;
  bool operator==(const Store&) const = default;
};

struct Negation {
  Box<Expression> operand;
  bool operator==(const Negation&) const = default;
};

/// Operands have the expression's type, but for a Currency times a whole number.
struct Arithmetic {
  ArithmeticOperator op;
  Box<Expression> left, right;
  bool operator==(const Arithmetic&) const = default;
};

/// Texts joined; a Null counts as an empty text with `nullIsEmpty`, otherwise it makes the result Null.
struct Concatenation {
  bool nullIsEmpty = true;
  std::vector<Expression> parts;
  bool operator==(const Concatenation&) const = default;
};

/// Operands of one type in the image.
struct Comparison {
  ComparisonOperator op;
  Box<Expression> left, right;
  bool operator==(const Comparison&) const = default;
};

/// Operands are conditions.
struct Logic {
  LogicOperator op;
  Box<Expression> left, right;
  bool operator==(const Logic&) const = default;
};

struct Not {
  Box<Expression> operand;
  bool operator==(const Not&) const = default;
};

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

/// value op ANY (query); `negated`: of its result.
struct AnyOf {
  bool negated = false;
  ComparisonOperator op;
  Box<Expression> value;
  Box<Query> query;
  bool operator==(const AnyOf&) const = default;
};

struct IsNull {
  bool negated = false;
  Box<Expression> operand;
  bool operator==(const IsNull&) const = default;
};

struct Call {
  const Function* function = nullptr;
  std::vector<Expression> arguments;
  bool refusesNull = false;  // of any argument: Left$ and its like
  bool operator==(const Call&) const = default;
};

/// IIf: the second operand unless the condition holds.
struct Choice {
  Box<Expression> condition, then, otherwise;
  bool operator==(const Choice&) const = default;
};

/// Nz: the replacement where the operand is Null.
struct NullReplacement {
  Box<Expression> operand, replacement;
  bool operator==(const NullReplacement&) const = default;
};

enum class AggregateKind { CountRows, Count, Sum, Avg, Min, Max, First, Last, StDev, StDevP, Var, VarP };

struct Aggregate {
  AggregateKind kind = AggregateKind::CountRows;
  std::vector<Expression> argument;  // one; none for CountRows
  std::vector<Expression> filter;    // the condition of the rows that it sees; none: all
  bool operator==(const Aggregate&) const = default;
};

struct Exists {
  Box<Query> query;
  bool operator==(const Exists&) const = default;
};

struct Subquery {
  Box<Query> query;
  bool operator==(const Subquery&) const = default;
};

struct Expression {
  Type type = Type::Null;
  std::variant<Literal, Column, Parameter, Conversion, Store, Negation, Arithmetic, Concatenation, Comparison,
               Logic, Not, Like, Between, InList, InQuery, AnyOf, IsNull, Call, Choice, NullReplacement,
               Aggregate, Exists, Subquery>
      node;
  bool operator==(const Expression&) const = default;
};

}  // namespace jet::sql::bound
