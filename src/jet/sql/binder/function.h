#pragma once

#include <string>

#include "jet/sql/type.h"

namespace jet::sql {

/// A function of expressions, as data.
struct Function {
  /// Type that a value is given as: its own (Any), a number as it is and others as Double (Number), or the
  /// one named. With NotNull a Null is error 94.
  enum Argument : std::uint8_t { None, Any, Number, Boolean, Long, Double, Date, Text, NotNull = 0x80 };
  enum class Result : std::uint8_t { Fixed, LikeFirst };

  const char* name;
  std::uint8_t least;  // arguments that must be given
  std::uint8_t arguments[6];
  Result result;
  Type type;  // of a Fixed result
  /// SQLite expression: $1 to $6 are the arguments, $* all that are given, $t the code of the first one's
  /// type.
  const char* sql;

  std::size_t most() const;
  Argument argument(std::size_t index) const { return static_cast<Argument>(arguments[index] & ~NotNull); }
  bool refusesNull(std::size_t index) const { return (arguments[index] & NotNull) != 0; }
  bool isConversion() const { return sql[0] == '$'; }
};

/// The function of this name with this number of arguments, or nullptr. A name of a function that returns
/// text may end in a dollar sign.
const Function* findFunction(const std::string& name, std::size_t arguments);

/// True for the name of an aggregate.
bool isAggregate(const std::string& name);

/// Choose(index, value, ...); its values are of one type, which is the result's.
const Function& chooseFunction();

/// What gives the auto-number given out last.
const Function& identityFunction();

/// What gives a domain's value: (type, aggregate, expression, domain[, criteria]).
const Function& domainFunction();

}  // namespace jet::sql
