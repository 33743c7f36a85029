#include "jet/sql/binder/binder.h"
#include "jet/sql/syntax_error.h"

namespace jet::sql {

using bound::Expression;

namespace {

void requireOneColumn(const bound::Query& query, std::size_t position) {
  if (query.parts.front().items.size() != 1) throw SyntaxError(SubqueryColumns, "", position);
}

}  // namespace

Expression Binder::bind(const tree::InQuery& node, const Place& place) {
  Expression value = expression(*node.value);
  noteCompared(value);
  bound::Query query = bindQuery(context_, &scope_, *node.query);
  requireOneColumn(query, place.position);
  const Expression& column = query.parts.front().items.front().value;
  noteCompared(column);
  const Type type = comparedTypeOf(value.type, column.type, place);
  for (bound::Select& part : query.parts) {
    part.items.front().value = convert(std::move(part.items.front().value), type);
  }
  return {Type::Boolean, bound::InQuery{node.negated, convert(std::move(value), type), std::move(query)}};
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
