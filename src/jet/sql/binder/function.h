#pragma once

#include <string>

#include "jet/sql/type.h"

namespace jet::sql {

/// A function of expressions with a given number of arguments, as data.
struct Function {
  enum class Argument : std::uint8_t { None, Any, Number, Boolean, Long, Double, Date, Text };
  enum class Result : std::uint8_t { Fixed, LikeFirst };

  const char* name;
  Argument arguments[4];
  Result result;
  Type type;  // of a Fixed result
  /// SQLite expression: $1 to $4 are the arguments, $t the code of the first one's type.
  const char* sql;

  std::size_t argumentCount() const;
};

/// The function of this name and number of arguments, or nullptr. A name of a function that returns text may
/// end in a dollar sign.
const Function* findFunction(const std::string& name, std::size_t arguments);

}  // namespace jet::sql
