#include "jet/sql/domain.h"

#include <algorithm>

#include "jet/sql/binder/binder.h"
#include "jet/sql/binder/function.h"
#include "jet/sql/parser/parser.h"
#include "jet/sql/parser/token.h"
#include "jet/sql/syntax_error.h"

namespace jet::sql {

using bound::Expression;

namespace {

struct DomainName {
  const char* name;
  const char* aggregate;  // empty: the value of any row
};

constexpr DomainName domainNames[] = {
    {"DLOOKUP", ""},     {"DCOUNT", "Count"},   {"DSUM", "Sum"},     {"DAVG", "Avg"},
    {"DMIN", "Min"},     {"DMAX", "Max"},       {"DFIRST", "First"}, {"DLAST", "Last"},
    {"DSTDEV", "StDev"}, {"DSTDEVP", "StDevP"}, {"DVAR", "Var"},     {"DVARP", "VarP"},
};

/// The text that an expression is, whatever the row.
std::optional<std::string> constantText(const tree::Expression& expression) {
  if (const auto* literal = std::get_if<tree::Literal>(&expression.node)) {
    return literal->kind == tree::Literal::Kind::Text ? std::optional(literal->text) : std::nullopt;
  }
  const auto* joined = std::get_if<tree::Concatenation>(&expression.node);
  if (!joined) return std::nullopt;
  const auto left = constantText(*joined->left), right = constantText(*joined->right);
  return left && right ? std::optional(*left + *right) : std::nullopt;
}

/// A statement's error, at the call whose text it was.
template <class Work>
auto at(const tree::Place& place, Work work) {
  try {
    return work();
  } catch (const SyntaxError& error) {
    throw SyntaxError(error.number(), error.description(), place.position);
  }
}

}  // namespace

/// Where the texts are known the query is bound in place; otherwise it is compiled for each row.
std::optional<Expression> Binder::domain(const tree::Call& node, const Place& place) {
  const auto* found = std::ranges::find_if(
      domainNames, [&](const DomainName& name) { return sameWord(node.name, name.name); });
  const std::size_t count = node.arguments.size();
  if (found == std::end(domainNames) || count < 2 || count > 3) return std::nullopt;

  const auto expressionText = constantText(node.arguments[0]), source = constantText(node.arguments[1]),
             criteria = count == 3 ? constantText(node.arguments[2]) : std::string();
  const bool typed = expressionText && source;
  Type type = Type::Variant;
  if (typed) {
    bound::Query query = at(place, [&] {
      const std::string text =
          domainStatement(found->aggregate, *expressionText, *source, criteria.value_or(""));
      const tree::Statement statement = parse(text);
      return bindQuery(context_, nullptr, std::get<tree::Query>(statement.body));
    });
    if (query.parts.front().items.size() != 1) throw SyntaxError(SubqueryColumns, "", place.position);
    type = query.parts.front().items.front().value.type;
    if (criteria) return Expression{type, bound::Subquery{std::move(query)}};
  }
  bound::Call call{&domainFunction(), {}};
  call.arguments.push_back({Type::Long, bound::Literal{static_cast<std::int64_t>(type)}});
  call.arguments.push_back({Type::Text, bound::Literal{std::string(found->aggregate)}});
  for (const tree::Expression& argument : node.arguments)
    call.arguments.push_back(converted(argument, Type::Text));
  return Expression{type, std::move(call)};
}

}  // namespace jet::sql
