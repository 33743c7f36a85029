#include "jet/sql/binder/context.h"

#include <algorithm>
#include <charconv>

#include "jet/sql/binder/type_name.h"
#include "jet/sql/syntax_error.h"

namespace jet::sql {

void Context::declare(const tree::ParameterDeclaration& declaration) {
  const auto same = [&](const Parameter& known) { return file::sameName(known.name, declaration.name); };
  if (std::ranges::any_of(parameters_, same)) return;
  parameters_.push_back({declaration.name, parameterType(declaration.type)});
}

bound::Expression Context::parameter(const std::string& name) {
  std::size_t index = 0;
  while (index < parameters_.size() && !file::sameName(parameters_[index].name, name)) ++index;
  if (index == parameters_.size()) parameters_.push_back({name, Type::Variant});
  return {parameters_[index].type, bound::Parameter{index}};
}

unsigned Context::addSource(const file::TableDefinition* table, const std::string& alias) {
  tableOfSource_.push_back(table ? std::optional(tables_.size()) : std::nullopt);
  if (table) tables_.push_back({table->page, alias, {}, TouchedTable::Change::None, {}});
  return static_cast<unsigned>(tableOfSource_.size() - 1);
}

void Context::noteCompared(const bound::Expression& expression) {
  const auto* column = std::get_if<bound::Column>(&expression.node);
  if (!column || !tableOfSource_[column->source]) return;
  std::uint16_t number = 0;
  std::from_chars(column->name.data() + 1, column->name.data() + column->name.size(), number);
  auto& compared = tables_[*tableOfSource_[column->source]].compared;
  if (std::ranges::find(compared, number) == compared.end()) compared.push_back(number);
}

void Context::noteChanged(unsigned source, TouchedTable::Change change) {
  tables_[*tableOfSource_[source]].change = change;
}

void Context::noteAssigned(unsigned source, std::uint16_t column) {
  auto& assigned = tables_[*tableOfSource_[source]].assigned;
  if (std::ranges::find(assigned, column) == assigned.end()) assigned.push_back(column);
}

void Context::openStoredQuery(std::size_t position) {
  constexpr unsigned maximumOpen = 20;
  if (++openQueries_ > maximumOpen) throw SyntaxError(TooComplex, "", position);
}

void Context::countNode(std::size_t position) {
  constexpr std::size_t maximumNodes = 20000;
  if (++nodes_ > maximumNodes) throw SyntaxError(TooComplex, "", position);
}

}  // namespace jet::sql
