// FROM: tables, stored queries, queries and their joins.
#include <algorithm>

#include "jet/file/errors.h"
#include "jet/sql/binder/binder.h"
#include "jet/sql/binder/crosstab.h"
#include "jet/sql/parser/parser.h"

namespace jet::sql {

using bound::Source;

namespace {

/// True for columns of one table under their own names: its rows are the table's.
bool onlySelectsRows(const tree::Query& query, const Schema& schema) {
  const tree::Select& part = query.parts.front();
  const bool plain = query.parts.size() == 1 && !part.distinct && !part.top && part.groupBy.empty() &&
                     !part.having && part.in.empty() && part.from.size() == 1;
  const auto* table = plain ? std::get_if<tree::TableSource>(&part.from.front().node) : nullptr;
  return table && schema.findTable(table->name) &&
         std::ranges::all_of(part.items, [](const tree::SelectItem& item) {
           const auto* value = std::get_if<tree::Expression>(&item.value);
           return !value || (item.alias.empty() && std::holds_alternative<tree::Name>(value->node));
         });
}

}  // namespace

/// All tables first, so that the conditions of joins see each of them.
std::vector<Source> Binder::from(const std::vector<tree::Source>& sources) {
  std::vector<Source> result;
  for (const tree::Source& source : sources) result.push_back(declare(source));
  inCondition_ = true;
  for (std::size_t i = 0; i < sources.size(); ++i) bindConditions(sources[i], result[i]);
  inCondition_ = false;
  ungrouped_.clear();
  return result;
}

Source Binder::declare(const tree::Source& source) {
  context_.countNode(source.place.position);
  if (const auto* table = std::get_if<tree::TableSource>(&source.node)) {
    return declareTable(*table, source.place.position);
  }
  if (const auto* query = std::get_if<tree::QuerySource>(&source.node)) {
    return declareQuery(bindQuery(context_, nullptr, *query->query), query->alias);
  }
  const auto& join = std::get<tree::Join>(source.node);
  Source left = declare(*join.left);
  return {bound::Join{join.kind, std::move(left), declare(*join.right), {Type::Null, bound::Literal{}}}};
}

Source Binder::declareTable(const tree::TableSource& table, std::size_t position) {
  const file::TableDefinition* definition = context_.schema().findTable(table.name);
  if (!definition) {
    if (const auto text = context_.schema().findQuery(table.name)) {
      return context_.withinQuery(table.name, position, [&] { return storedQuery(*text, table, position); });
    }
    throw SyntaxError(UnknownTable, table.name, position);
  }
  return declareAs(table.alias.empty() ? table.name : table.alias, *definition);
}

Source Binder::declareAs(const std::string& name, const file::TableDefinition& table) {
  VisibleSource visible{context_.addSource(&table, name), name, &table, {}};
  const bound::TableSource result{visible.source, table.page};
  scope_.add(std::move(visible));
  return {result};
}

/// FROM of an UPDATE or DELETE.
std::vector<Source> Binder::changedFrom(const std::vector<tree::Source>& sources) {
  throughQuery_ = sources.size() == 1 && std::holds_alternative<tree::TableSource>(sources.front().node);
  return from(sources);
}

/// The rows that both a query in FROM and `where` select.
std::optional<bound::Expression> Binder::changedRows(const std::optional<tree::Expression>& where) {
  auto wanted = clause(where);
  if (!wanted || !selected_) return wanted ? std::move(wanted) : std::move(selected_);
  return bound::Expression{Type::Boolean,
                           bound::Logic{LogicOperator::And, *std::move(selected_), *std::move(wanted)}};
}

/// The selection's condition sees the table by the selection's own name for it.
Source Binder::declareSelection(const tree::Select& selection, const std::string& name) {
  const auto& own = std::get<tree::TableSource>(selection.from.front().node);
  const file::TableDefinition& table = *context_.schema().findTable(own.name);
  Source result = declareAs(name, table);
  Binder within(context_, nullptr);
  within.scope_.add({scope_.sources().front().source, own.alias.empty() ? own.name : own.alias, &table, {}});
  selected_ = within.clause(selection.where);
  return result;
}

Source Binder::storedQuery(const std::string& text, const tree::TableSource& table, std::size_t position) {
  tree::Statement statement = parse(text);
  for (const tree::ParameterDeclaration& parameter : statement.parameters) context_.declare(parameter);
  if (auto* transform = std::get_if<tree::Transform>(&statement.body))
    statement.body = crosstab(context_, std::move(*transform));
  const auto* query = std::get_if<tree::Query>(&statement.body);
  if (!query) throw SyntaxError(UnknownTable, table.name, position);
  const std::string& name = table.alias.empty() ? table.name : table.alias;
  if (throughQuery_ && onlySelectsRows(*query, context_.schema()))
    return declareSelection(query->parts.front(), name);
  return declareQuery(bindQuery(context_, nullptr, *query), name);
}

Source Binder::declareQuery(bound::Query query, const std::string& name) {
  VisibleSource visible{context_.addSource(nullptr, name), name, nullptr, {}};
  const auto& items = query.parts.front().items;
  for (std::size_t i = 0; i < items.size(); ++i) {
    const bound::Column value{visible.source, i + 1, true, false};
    visible.queryColumns.push_back(
        {items[i].name, {items[i].value.type, value}, items[i].sourceTable, items[i].sourceColumn});
  }
  const unsigned source = visible.source;
  scope_.add(std::move(visible));
  return {bound::QuerySource{source, std::move(query)}};
}

void Binder::bindConditions(const tree::Source& source, Source& result) {
  const auto* join = std::get_if<tree::Join>(&source.node);
  if (!join) return;
  auto& boundJoin = std::get<bound::Join>(result.node);
  bindConditions(*join->left, *boundJoin.left);
  bindConditions(*join->right, *boundJoin.right);
  boundJoin.condition = condition(join->condition);
}

}  // namespace jet::sql
