// Names: a column, an alias, a column of a level around, or else a parameter.
#include <algorithm>

#include "jet/sql/binder/binder.h"
#include "jet/sql/binder/function.h"
#include "jet/sql/parser/token.h"
#include "jet/sql/syntax_error.h"
#include "jet/sql/tree/print.h"

namespace jet::sql {

using bound::Expression;

/// A column of this level, an alias of the list, a column of a level around it, or else a parameter.
Expression Binder::bind(const tree::Name& node, const Place& place) {
  if (auto found = column(node, place)) return std::move(*found);
  if (auto found = alias(node)) return std::move(*found);
  for (const Scope* scope = scope_.outer(); scope; scope = scope->outer()) {
    if (auto found = scope->find(node, place.position)) return std::move(found->column.value);
  }
  if (node.table.empty() && sameWord(node.column, identityFunction().name))
    return {identityFunction().type, bound::Call{&identityFunction(), {}}};
  return parameter(node.table.empty() ? node.column : node.table + "." + node.column, place.position);
}

/// A parameter that EXECUTE gives a value is that value, in which the names of the statement mean nothing.
Expression Binder::parameter(const std::string& name, std::size_t position) {
  Expression parameter = context_.parameter(name);
  const auto* given = context_.argument(std::get<bound::Parameter>(parameter.node).index);
  if (!given) return parameter;
  Context constant = context_.apart();
  Expression value = Binder(constant, nullptr).expression(*given);
  if (!constant.parameters().empty() || !constant.tables().empty())
    throw SyntaxError(ExpressionSyntax, tree::print(*given), position);
  return parameter.type == Type::Variant ? std::move(value) : convert(std::move(value), parameter.type);
}

std::optional<Expression> Binder::column(const tree::Name& name, const Place& place) {
  auto found = scope_.find(name, place.position);
  if (!found) return std::nullopt;
  ungrouped_.push_back({name.column, place.position, found->source->source});
  return std::move(found->column.value);
}

std::optional<Expression> Binder::alias(const tree::Name& name) {
  if (!name.table.empty()) return std::nullopt;
  const auto found = std::ranges::find_if(aliases_, [&](const Alias& candidate) {
    return !candidate.open && file::sameName(candidate.name, name.column);
  });
  if (found == aliases_.end()) return std::nullopt;
  found->open = true;
  Expression value = expression(*found->value);
  found->open = false;
  return value;
}

}  // namespace jet::sql
