// Types of arithmetic, and what is really a joining of texts.
#include "jet/sql/binder/binder.h"

namespace jet::sql {

using bound::Expression;

namespace {

/// Two texts, or a text and what may be one, are joined by +.
bool joinsTexts(ArithmeticOperator op, Type left, Type right) {
  if (op != ArithmeticOperator::Add) return false;
  const auto mayBeText = [](Type type) {
    return isText(type) || type == Type::Null || type == Type::Variant;
  };
  return (isText(left) && mayBeText(right)) || (isText(right) && mayBeText(left));
}

Expression join(Expression left, Expression right, bool nullIsEmpty) {
  bound::Concatenation result{nullIsEmpty, {}};
  auto* chain = std::get_if<bound::Concatenation>(&left.node);
  if (chain && chain->nullIsEmpty == nullIsEmpty) {
    result.parts = std::move(chain->parts);
  } else {
    result.parts.push_back(convert(std::move(left), Type::Text));
  }
  result.parts.push_back(convert(std::move(right), Type::Text));
  return {Type::Text, std::move(result)};
}

}  // namespace

Expression Binder::bind(const tree::Arithmetic& node, const Place&) {
  Expression left = expression(*node.left), right = expression(*node.right);
  if (joinsTexts(node.op, left.type, right.type)) return join(std::move(left), std::move(right), false);
  const Type type = arithmeticType(node.op, left.type, right.type);
  const bool moneyTimesCount = type == Type::Currency && node.op == ArithmeticOperator::Multiply;
  const auto operand = [&](Expression value) {
    if (moneyTimesCount && isWholeNumber(value.type)) return value;
    const bool dateDifference = type == Type::Double && value.type == Type::Date;
    if (dateDifference || (type == Type::Date && value.type == Type::Date)) return value;
    return convert(std::move(value), type == Type::Date ? Type::Double : type);  // days may be any number
  };
  return {type, bound::Arithmetic{node.op, operand(std::move(left)), operand(std::move(right))}};
}

Expression Binder::bind(const tree::Negation& node, const Place&) {
  Expression operand = expression(*node.operand);
  if (auto* literal = std::get_if<bound::Literal>(&operand.node)) {
    if (auto* whole = std::get_if<std::int64_t>(&literal->value))
      return {Type::Long, bound::Literal{-*whole}};
    if (auto* real = std::get_if<double>(&literal->value)) {
      std::string digits = literal->digits;
      if (digits.starts_with('-'))
        digits.erase(0, 1);
      else if (!digits.empty())
        digits.insert(0, 1, '-');
      return {operand.type, bound::Literal{-*real, std::move(digits)}};
    }
  }
  const Type zero = isWholeNumber(operand.type) ? Type::Long : operand.type;
  const Type type = isNumber(zero) || zero == Type::Null ? zero : Type::Double;
  return {type, bound::Negation{convert(std::move(operand), type)}};
}

Expression Binder::bind(const tree::Concatenation& node, const Place&) {
  Expression left = expression(*node.left);
  return join(std::move(left), expression(*node.right), true);
}

}  // namespace jet::sql
