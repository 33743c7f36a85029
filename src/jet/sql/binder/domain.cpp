// DLookup and its kin, as sub-queries where their texts are constant.
#include "jet/sql/domain.h"

#include <algorithm>
#include <cctype>

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

constexpr DomainName DomainNames[] = {
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

/// The constant pieces of a text that is joined, one after another, with blanks for what each row has of its
/// own.
std::string constantPieces(const tree::Expression& expression) {
  if (const auto* literal = std::get_if<tree::Literal>(&expression.node)) return literal->text;
  const auto* joined = std::get_if<tree::Concatenation>(&expression.node);
  return joined ? constantPieces(*joined->left) + " " + constantPieces(*joined->right) : std::string();
}

/// What may be a name in a criterion.
std::vector<std::string> words(std::string_view text) {
  std::vector<std::string> result(1);
  for (const char c : text) {
    const bool letter =
        static_cast<unsigned char>(c) >= 0x80 || c == '_' || std::isalnum(static_cast<unsigned char>(c));
    if (letter) {
      result.back() += c;
    } else if (!result.back().empty()) {
      result.emplace_back();
    }
  }
  return result;
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
      DomainNames, [&](const DomainName& name) { return sameWord(node.name, name.name); });
  const std::size_t count = node.arguments.size();
  if (found == std::end(DomainNames) || count < 2 || count > 3) return std::nullopt;

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
    expectCriteria(query.parts.front(), constantPieces(node.arguments[2]));
  } else {
    context_.noteAnyTable();
  }
  bound::Call call{&domainFunction(), {}};
  call.arguments.push_back({Type::Long, bound::Literal{static_cast<std::int64_t>(type)}});
  call.arguments.push_back({Type::Text, bound::Literal{std::string(found->aggregate)}});
  for (const tree::Expression& argument : node.arguments)
    call.arguments.push_back(converted(argument, Type::Text));
  return Expression{type, std::move(call)};
}

/// Notes what criteria with these constant pieces will ask for, since nothing can be loaded or indexed while
/// a statement changes rows: the columns that they name, and any table where they have a sub-query.
void Binder::expectCriteria(const bound::Select& select, const std::string& pieces) {
  const auto* source =
      select.from.size() == 1 ? std::get_if<bound::TableSource>(&select.from.front().node) : nullptr;
  const auto touched = source ? context_.tableOf(source->source) : std::nullopt;
  const auto* table = touched ? context_.schema().findTable(context_.tables()[*touched].alias) : nullptr;
  const bool joined = pieces.find_first_not_of(' ') != std::string::npos;
  if (!joined) context_.noteAnyTable();
  for (const std::string& word : words(pieces)) {
    if (sameWord(word, "SELECT")) context_.noteAnyTable();
    if (!table) continue;
    for (const file::Column& column : table->columns) {
      if (!file::sameName(column.name, word)) continue;
      context_.noteCompared({Type::Null, bound::Column{source->source, column.number}});
    }
  }
}

}  // namespace jet::sql
