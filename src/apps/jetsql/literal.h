#pragma once

#include <string>

#include "runtime/variant.h"

namespace jet::dao {
class Database;
}

namespace jetsql {

/// An answer to a parameter, as NAME=LITERAL gives it.
struct ParameterAnswer {
  std::string name;
  runtime::Variant value;
};

/// Splits at the first "=" and lets the engine read the literal. Error 5 without "=" or where the rest is
/// none.
ParameterAnswer readAnswer(const std::string& text, jet::dao::Database& database);

}  // namespace jetsql
