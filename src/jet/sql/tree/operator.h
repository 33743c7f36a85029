#pragma once

namespace jet::sql {

enum class ArithmeticOperator { Power, Multiply, Divide, IntegerDivide, Modulo, Add, Subtract };
enum class ComparisonOperator { Equal, NotEqual, Less, Greater, LessOrEqual, GreaterOrEqual };
enum class LogicOperator { And, Or, Xor, Eqv, Imp };

/// As Jet SQL writes them.
const char* symbol(ArithmeticOperator op);
const char* symbol(ComparisonOperator op);
const char* symbol(LogicOperator op);

}  // namespace jet::sql
