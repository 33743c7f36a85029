// Which type two types meet in, and expressions turned into a type.
#include "jet/sql/binder/conversion.h"

#include <algorithm>
#include <cmath>

namespace jet::sql {

namespace {

using bound::Expression;
using bound::Literal;

bool either(Type a, Type b, Type type) {
  return a == type || b == type;
}
bool isBinary(Type type) {
  return type == Type::Binary || type == Type::Ole || type == Type::Guid;
}

Type commonNumber(Type a, Type b) {
  if (either(a, b, Type::Decimal)) return Type::Decimal;
  if (isWholeNumber(a) && isWholeNumber(b)) {
    return either(a, b, Type::Long) ? Type::Long : Type::Integer;
  }
  const Type other = a == Type::Currency ? b : a;
  if (either(a, b, Type::Currency) && isWholeNumber(other)) return Type::Currency;
  return Type::Double;
}

/// Ten-thousandths of a literal that money can hold exactly.
std::optional<std::int64_t> exactCurrency(const Literal& literal) {
  constexpr std::int64_t scale = 10000;
  constexpr double limit = 9e14;
  if (const auto* whole = std::get_if<std::int64_t>(&literal.value)) return *whole * scale;
  const auto* number = std::get_if<double>(&literal.value);
  if (!number || std::abs(*number) > limit / scale) return std::nullopt;
  const double scaled = std::round(*number * scale);
  if (scaled / scale != *number) return std::nullopt;
  return static_cast<std::int64_t>(scaled);
}

/// The literal in `type`, or nothing if that takes a conversion at run time.
std::optional<Expression> convertLiteral(const Literal& literal, Type from, Type type) {
  const auto* whole = std::get_if<std::int64_t>(&literal.value);
  const bool plain = isPlainNumber(from);
  if (std::holds_alternative<std::monostate>(literal.value)) return Expression{type, literal};
  if (isText(from) && isText(type)) return Expression{type, literal};
  if (plain && type == Type::Currency) {
    if (const auto exact = exactCurrency(literal)) return Expression{type, Literal{*exact}};
  }
  if (whole && plain && (type == Type::Double || type == Type::Single)) {
    return Expression{type, Literal{static_cast<double>(*whole)}};
  }
  if (whole && plain && type == Type::Decimal) return Expression{type, Literal{std::to_string(*whole)}};
  return std::nullopt;
}

}  // namespace

Type commonType(Type a, Type b) {
  if (a == b || b == Type::Null) return a;
  if (a == Type::Null) return b;
  if (isText(a) && isText(b)) return Type::Memo;
  if (either(a, b, Type::Variant)) return Type::Variant;
  if (isNumber(a) && isNumber(b)) return commonNumber(a, b);
  if (isBinary(a) && isBinary(b)) return Type::Binary;
  return Type::Text;
}

std::optional<Type> comparedType(Type a, Type b) {
  if (a == Type::Variant) std::swap(a, b);
  if (a == Type::Null || b == Type::Null) return a == Type::Null ? b : a;
  if (b == Type::Variant)
    return isWholeNumber(a) || a == Type::Currency || a == Type::Single ? Type::Double : a;
  if (isText(a) && isText(b)) return Type::Text;
  if (a == b) return a;
  if (isNumber(a) && isNumber(b)) return commonNumber(a, b);
  if (either(a, b, Type::Guid)) {
    const Type other = a == Type::Guid ? b : a;
    return isText(other) || isBinary(other) ? std::optional(Type::Guid) : std::nullopt;
  }
  if (isBinary(a) && isBinary(b)) return Type::Binary;
  return std::nullopt;
}

Type arithmeticType(ArithmeticOperator op, Type left, Type right) {
  switch (op) {
    case ArithmeticOperator::Power:
    case ArithmeticOperator::Divide:
      return Type::Double;
    case ArithmeticOperator::IntegerDivide:
    case ArithmeticOperator::Modulo:
      return Type::Long;
    default:
      break;
  }
  if (left == Type::Null) std::swap(left, right);
  const auto operandType = [](Type type) { return isNumber(type) ? type : Type::Double; };
  left = operandType(left), right = right == Type::Null ? left : operandType(right);
  if (op == ArithmeticOperator::Subtract && left == Type::Date && right == Type::Date) return Type::Double;
  if (op != ArithmeticOperator::Multiply && either(left, right, Type::Date)) return Type::Date;
  if (either(left, right, Type::Decimal)) return Type::Decimal;
  if (isWholeNumber(left) && isWholeNumber(right)) return Type::Long;
  const bool doubles = either(left, right, Type::Double) || either(left, right, Type::Date);
  if (either(left, right, Type::Currency)) {
    return op == ArithmeticOperator::Multiply && doubles ? Type::Double : Type::Currency;
  }
  return left == Type::Single && right == Type::Single ? Type::Single : Type::Double;
}

namespace {

/// A number with more digits than a Double holds as the Decimal that it is, where `type` keeps them.
Expression exact(Expression expression, Type type) {
  const auto* literal = std::get_if<Literal>(&expression.node);
  if (!literal || literal->digits.empty() || (type != Type::Decimal && type != Type::Currency))
    return expression;
  return {Type::Decimal, Literal{literal->digits}};
}

}  // namespace

Expression convert(Expression expression, Type type) {
  expression = exact(std::move(expression), type);
  if (expression.type == type) return expression;
  if (const auto* literal = std::get_if<Literal>(&expression.node)) {
    if (auto converted = convertLiteral(*literal, expression.type, type)) return std::move(*converted);
  }
  return {type, bound::Conversion{std::move(expression)}};
}

Expression store(Expression expression, const file::Column& column) {
  const Type type = typeOf(column.type);
  bound::Store node{exact(std::move(expression), type), 0, column.precision, column.scale};
  const bool twoBytes = column.codePage == 0;  // Jet 4 keeps two bytes a character
  if (type == Type::Text) node.size = twoBytes ? column.length / 2u : column.length;
  if (type == Type::Binary) node.size = column.length;
  return {type, std::move(node)};
}

}  // namespace jet::sql
