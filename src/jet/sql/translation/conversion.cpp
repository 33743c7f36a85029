// Conversions in SQLite's SQL.
#include <algorithm>

#include "jet/sql/translation/translator.h"

namespace jet::sql {

namespace {

/// True if a value of `from` is the same value of `to` in the image.
bool isSame(Type from, Type to) {
  if (from == to || from == Type::Null || (isText(from) && isText(to))) return true;
  if (isWholeNumber(from) && isWholeNumber(to))
    return from < to && !(from == Type::Boolean && to == Type::Byte);
  if (isPlainNumber(from)) {
    return to == Type::Double || to == Type::Variant || (to == Type::Single && from < Type::Long);
  }
  const bool blob = from == Type::Guid || from == Type::Binary || from == Type::Ole;
  return (blob && (to == Type::Binary || to == Type::Ole || to == Type::Variant)) ||
         (isText(from) && to == Type::Variant);
}

std::string functionName(Type from, const char* between, Type to) {
  std::string name = std::string("jet_") + typeName(from) + between + typeName(to);
  std::ranges::transform(name, name.begin(),
                         [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  return name;
}

}  // namespace

Sql Translator::translate(const bound::Conversion& node, Type to) {
  const Type from = node.operand->type;
  Sql operand = value(*node.operand);
  if (isSame(from, to)) return operand;
  if (isText(to) && isWholeNumber(from) && (from != Type::Long || isStored(*node.operand)))
    return {"CAST(" + operand.text + " AS TEXT)"};
  if (to == Type::Boolean && (isPlainNumber(from) || from == Type::Currency)) {
    return booleanValue({within(std::move(operand), Strength::Relation) + " <> 0", Strength::Equality});
  }
  if (to == Type::Currency && isWholeNumber(from)) {
    return {within(std::move(operand), Strength::Product) + " * 10000", Strength::Product};
  }
  if (from == Type::Currency && (to == Type::Double || to == Type::Variant)) {
    return {within(std::move(operand), Strength::Product) + " / 10000.0", Strength::Product};
  }
  return {functionName(from, "_to_", to) + "(" + operand.text + ")"};
}

Sql Translator::translate(const bound::Store& node, Type to) {
  const Type from = node.operand->type;
  Sql operand = value(*node.operand);
  if (to == Type::Boolean && isSame(from, to)) return {"ifnull(" + operand.text + ", 0)"};
  // Arithmetic can give more than a Long holds.
  const bool wide = from == Type::Long && to == Type::Long && !isStored(*node.operand);
  const bool sized = node.size != 0 || to == Type::Decimal || wide;
  if (from == Type::Null || (isSame(from, to) && !sized && to != Type::Date)) return operand;
  if (from == Type::Date && to == Type::Date) return operand;
  std::string arguments = operand.text;
  if (node.size != 0) arguments += ", " + std::to_string(node.size);
  if (to == Type::Decimal)
    arguments += ", " + std::to_string(node.precision) + ", " + std::to_string(node.scale);
  return {functionName(from, "_into_", to) + "(" + arguments + ")"};
}

}  // namespace jet::sql
