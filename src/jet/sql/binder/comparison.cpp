// Comparisons: both sides get the type in which they can be compared.
#include <algorithm>

#include "jet/sql/binder/binder.h"
#include "jet/sql/syntax_error.h"

namespace jet::sql {

using bound::Expression;

Type Binder::comparedTypeOf(Type a, Type b, const Place& place) const {
  const auto type = comparedType(a, b);
  if (type) return *type;
  throw SyntaxError(TypesDiffer, std::string(typeName(a)) + " e " + typeName(b), place.position);
}

void Binder::noteCompared(const Expression& expression) {
  if (inCondition_) context_.noteCompared(expression);
}

Expression Binder::bind(const tree::Comparison& node, const Place& place) {
  Expression left = expression(*node.left), right = expression(*node.right);
  noteCompared(left);
  noteCompared(right);
  const Type type = comparedTypeOf(left.type, right.type, place);
  return {Type::Boolean,
          bound::Comparison{node.op, convert(std::move(left), type), convert(std::move(right), type)}};
}

Expression Binder::bind(const tree::Between& node, const Place& place) {
  Expression value = expression(*node.value), low = expression(*node.low), high = expression(*node.high);
  noteCompared(value);
  const Type type = comparedTypeOf(comparedTypeOf(value.type, low.type, place),
                                   comparedTypeOf(value.type, high.type, place), place);
  return {Type::Boolean, bound::Between{node.negated, convert(std::move(value), type),
                                        convert(std::move(low), type), convert(std::move(high), type)}};
}

Expression Binder::bind(const tree::Like& node, const Place&) {
  return {Type::Boolean, bound::Like{node.negated, node.ansi, converted(*node.value, Type::Text),
                                     converted(*node.pattern, Type::Text)}};
}

Expression Binder::bind(const tree::IsNull& node, const Place&) {
  Expression operand = expression(*node.operand);
  noteCompared(operand);
  return {Type::Boolean, bound::IsNull{node.negated, std::move(operand)}};
}

Expression Binder::bind(const tree::InList& node, const Place&) {
  Expression value = expression(*node.value);
  noteCompared(value);
  std::vector<Expression> items;
  Type type = value.type;
  for (const tree::Expression& item : node.items) {
    items.push_back(expression(item));
    type = comparedTypeOf(type, comparedTypeOf(value.type, items.back().type, item.place), item.place);
  }
  for (Expression& item : items) item = convert(std::move(item), type);
  return {Type::Boolean, bound::InList{node.negated, convert(std::move(value), type), std::move(items)}};
}

}  // namespace jet::sql
