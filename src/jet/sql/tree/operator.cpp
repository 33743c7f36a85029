// The signs of operators.
#include "jet/sql/tree/operator.h"

#include <cstddef>

namespace jet::sql {

const char* symbol(ArithmeticOperator op) {
  static constexpr const char* symbols[] = {"^", "*", "/", "\\", "MOD", "+", "-"};
  return symbols[static_cast<std::size_t>(op)];
}

const char* symbol(ComparisonOperator op) {
  static constexpr const char* symbols[] = {"=", "<>", "<", ">", "<=", ">="};
  return symbols[static_cast<std::size_t>(op)];
}

const char* symbol(LogicOperator op) {
  static constexpr const char* symbols[] = {"AND", "OR", "XOR", "EQV", "IMP"};
  return symbols[static_cast<std::size_t>(op)];
}

}  // namespace jet::sql
