// AND, OR and their kin: operands are conditions.
#include "jet/sql/binder/binder.h"

namespace jet::sql {

using bound::Expression;

Expression Binder::bind(const tree::Logic& node, const Place&) {
  Expression left = condition(*node.left);
  return {Type::Boolean, bound::Logic{node.op, std::move(left), condition(*node.right)}};
}

Expression Binder::bind(const tree::Not& node, const Place&) {
  return {Type::Boolean, bound::Not{condition(*node.operand)}};
}

}  // namespace jet::sql
