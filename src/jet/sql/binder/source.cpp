#include "jet/sql/binder/binder.h"
#include "jet/sql/parser/parser.h"

namespace jet::sql {

using bound::Source;

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
    if (const auto text = context_.schema().findQuery(table.name)) return storedQuery(*text, table, position);
    throw SyntaxError(UnknownTable, table.name, position);
  }
  VisibleSource visible;
  visible.name = table.alias.empty() ? table.name : table.alias;
  visible.source = context_.addSource(definition, visible.name);
  visible.table = definition;
  const bound::TableSource result{visible.source, definition->page};
  scope_.add(std::move(visible));
  return {result};
}

Source Binder::storedQuery(const std::string& text, const tree::TableSource& table, std::size_t position) {
  const tree::Statement statement = parse(text);
  const auto* query = std::get_if<tree::Query>(&statement.body);
  if (!query) throw SyntaxError(UnknownTable, table.name, position);
  for (const tree::ParameterDeclaration& parameter : statement.parameters) context_.declare(parameter);
  context_.openStoredQuery(position);
  Source result =
      declareQuery(bindQuery(context_, nullptr, *query), table.alias.empty() ? table.name : table.alias);
  context_.closeStoredQuery();
  return result;
}

Source Binder::declareQuery(bound::Query query, const std::string& name) {
  VisibleSource visible{context_.addSource(nullptr, name), name, nullptr, {}};
  const auto& items = query.parts.front().items;
  for (std::size_t i = 0; i < items.size(); ++i) {
    const bound::Column value{visible.source, "x" + std::to_string(i + 1), false};
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
