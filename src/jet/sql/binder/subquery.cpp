// Sub-queries as values, lists and tests.
#include "jet/sql/binder/binder.h"
#include "jet/sql/syntax_error.h"

namespace jet::sql {

using bound::Expression;

namespace {

void requireOneColumn(const bound::Query& query, std::size_t position) {
  if (query.parts.front().items.size() != 1) throw SyntaxError(SubqueryColumns, "", position);
}

}  // namespace

/// A value and the column of a query in the type in which they can be compared.
bound::InQuery Binder::valueAndQuery(const tree::Expression& valueTree, const tree::Query& queryTree,
                                     const Place& place) {
  Expression value = expression(valueTree);
  noteCompared(value);
  bound::Query query = bindQuery(context_, &scope_, queryTree);
  requireOneColumn(query, place.position);
  const Expression& column = query.parts.front().items.front().value;
  noteCompared(column);
  const Type type = comparedTypeOf(value.type, column.type, place);
  for (bound::Select& part : query.parts) {
    part.items.front().value = convert(std::move(part.items.front().value), type);
  }
  return {false, convert(std::move(value), type), std::move(query)};
}

Expression Binder::bind(const tree::InQuery& node, const Place& place) {
  bound::InQuery in = valueAndQuery(*node.value, *node.query, place);
  in.negated = node.negated;
  return {Type::Boolean, std::move(in)};
}

/// v op ALL (q) holds unless v fails op for one of q.
Expression Binder::bind(const tree::QuantifiedComparison& node, const Place& place) {
  static constexpr ComparisonOperator opposite[] = {
      ComparisonOperator::NotEqual,    ComparisonOperator::Equal,   ComparisonOperator::GreaterOrEqual,
      ComparisonOperator::LessOrEqual, ComparisonOperator::Greater, ComparisonOperator::Less};
  bound::InQuery in = valueAndQuery(*node.value, *node.query, place);
  const ComparisonOperator op = node.all ? opposite[static_cast<std::size_t>(node.op)] : node.op;
  return {Type::Boolean, bound::AnyOf{node.all, op, std::move(in.value), std::move(in.query)}};
}

Expression Binder::bind(const tree::Exists& node, const Place&) {
  return {Type::Boolean, bound::Exists{bindQuery(context_, &scope_, *node.query)}};
}

Expression Binder::bind(const tree::Subquery& node, const Place& place) {
  bound::Query query = bindQuery(context_, &scope_, *node.query);
  requireOneColumn(query, place.position);
  const Type type = query.parts.front().items.front().value.type;
  return {type, bound::Subquery{std::move(query)}};
}

}  // namespace jet::sql
