// Arithmetic and joined texts in SQLite's SQL.
#include "jet/sql/translation/translator.h"
#include "runtime/join.h"

namespace jet::sql {

namespace {

using bound::Expression;

bool isNative(ArithmeticOperator op) {
  return op == ArithmeticOperator::Add || op == ArithmeticOperator::Subtract ||
         op == ArithmeticOperator::Multiply;
}

/// SQLite's own operators compute with 64 bits or with Doubles; one check around a chain of them finds a
/// result that its type can't hold. Whole numbers have none: beyond a Long they go on as Doubles, as those of
/// a Variant do ("* Operator" in the language reference of Visual Basic for Applications,
/// learn.microsoft.com/office/vba/language/reference/user-interface-help/operator: a result that "is a Long,
/// Single, or Date variant that overflows its legal range" becomes "a Variant containing a Double"). A column
/// or an argument that is a Long refuses it then, with error 6.
const char* check(Type type) {
  switch (type) {
    case Type::Long:
      return "jet_check_whole";
    case Type::Date:
      return "jet_check_date";
    case Type::Currency:
      return "jet_check_currency";
    case Type::Single:
      return "jet_check_single";
    default:
      return "jet_check_double";
  }
}

const char* function(ArithmeticOperator op, Type type) {
  switch (op) {
    case ArithmeticOperator::Power:
      return "jet_power";
    case ArithmeticOperator::Divide:
      return "jet_divide";
    case ArithmeticOperator::IntegerDivide:
      return "jet_integer_divide";
    case ArithmeticOperator::Modulo:
      return "jet_modulo";
    case ArithmeticOperator::Add:
      return "jet_add_decimal";
    case ArithmeticOperator::Subtract:
      return "jet_subtract_decimal";
    case ArithmeticOperator::Multiply:
      break;
  }
  return type == Type::Decimal ? "jet_multiply_decimal" : "jet_multiply_currency";
}

bool takesFunction(const bound::Arithmetic& node, Type type) {
  const bool money = node.op == ArithmeticOperator::Multiply && node.left->type == Type::Currency &&
                     node.right->type == Type::Currency;
  return !isNative(node.op) || type == Type::Decimal || money;
}

}  // namespace

Sql Translator::translate(const bound::Arithmetic& node, Type type) {
  if (takesFunction(node, type)) {
    const auto operand = [&](const Expression& each) {
      return (type == Type::Long ? asLong(each) : value(each)).text;
    };
    return {std::string(function(node.op, type)) + "(" + operand(*node.left) + ", " + operand(*node.right) +
            ")"};
  }
  return {std::string(check(type)) + "(" + unchecked(node, type).text + ")"};
}

Sql Translator::unchecked(const bound::Arithmetic& node, Type) {
  const Strength strength = node.op == ArithmeticOperator::Multiply ? Strength::Product : Strength::Sum;
  const Strength right = strength == Strength::Sum ? Strength::Product : Strength::Join;
  return {within(unchecked(*node.left), strength) + " " + symbol(node.op) + " " +
              within(unchecked(*node.right), right),
          strength};
}

/// An operand in a chain: arithmetic of the chain's kind goes unchecked.
Sql Translator::unchecked(const Expression& expression) {
  const auto* node = std::get_if<bound::Arithmetic>(&expression.node);
  const bool chained = node && !takesFunction(*node, expression.type) && expression.type != Type::Single;
  return chained ? unchecked(*node, expression.type) : value(expression);
}

Sql Translator::translate(const bound::Negation& node, Type type) {
  if (type == Type::Decimal) return {"jet_subtract_decimal('0', " + value(*node.operand).text + ")"};
  Sql negated{"-" + within(value(*node.operand), Strength::Whole), Strength::Sign};
  if (type == Type::Date) return {"jet_check_date(" + negated.text + ")"};
  if (type == Type::Long) return {"jet_check_whole(" + negated.text + ")"};
  return negated;
}

Sql Translator::translate(const bound::Concatenation& node, Type) {
  constexpr std::size_t mostArguments = 100;
  bool anyText = node.parts.size() > mostArguments;
  for (const Expression& part : node.parts) {
    const auto* literal = std::get_if<bound::Literal>(&part.node);
    anyText |= literal && std::holds_alternative<std::string>(literal->value);
  }
  // Where no part is certain not to be Null, all may be, and so is the result.
  if (node.nullIsEmpty && !anyText) return {"jet_join(" + list(node.parts) + ")"};
  const auto operand = [&](const Expression& part) {
    Sql piece = value(part);
    const bool literal = std::holds_alternative<bound::Literal>(part.node);
    if (node.nullIsEmpty && (!literal || piece.text == "NULL")) piece = {"ifnull(" + piece.text + ", '')"};
    return within(std::move(piece), Strength::Join);
  };
  return {runtime::join(node.parts, " || ", operand), Strength::Join};
}

}  // namespace jet::sql
