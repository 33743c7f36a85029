// What a statement's parts share while they are bound.
#include "jet/sql/binder/context.h"

#include <algorithm>

#include "jet/sql/binder/binder.h"
#include "jet/sql/binder/type_name.h"
#include "jet/sql/syntax_error.h"
#include "jet/sql/tree/print.h"

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

const tree::Expression* Context::argument(std::size_t parameter) const {
  return arguments_ && parameter < arguments_->size() ? &(*arguments_)[parameter] : nullptr;
}

void Context::checkArguments(std::size_t position) const {
  if (parameters_.size() != arguments_->size())
    throw SyntaxError(TooFewParameters, std::to_string(parameters_.size()), position);
}

unsigned Context::addSource(const file::TableDefinition* table, const std::string& alias) {
  tableOfSource_.push_back(table ? std::optional(tables_.size()) : std::nullopt);
  if (table) tables_.push_back({table->page, alias, {}, TouchedTable::Change::None, {}});
  return static_cast<unsigned>(tableOfSource_.size() - 1);
}

void Context::noteCompared(const bound::Expression& expression) {
  const auto* column = std::get_if<bound::Column>(&expression.node);
  if (!column || !tableOfSource_[column->source]) return;
  const auto number = static_cast<std::uint16_t>(column->number);
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

Context::Values Context::values(const tree::Query& list) {
  columnsFromRows_ = true;
  const std::string text = tree::print(list);
  const auto known = values_->find(text);
  return known != values_->end() ? known->second : values_->emplace(text, readValues(list)).first->second;
}

Context::Values Context::readValues(const tree::Query& list) const {
  Context inner(schema_, translate_, answers_);
  inner.values_ = values_;
  inner.parameters_ = parameters_;
  inner.arguments_ = arguments_;
  inner.openQueries_ = openQueries_;
  const bound::Query query = bindQuery(inner, nullptr, list);
  const auto unknown =
      std::find_if(inner.parameters_.begin() + static_cast<std::ptrdiff_t>(parameters_.size()),
                   inner.parameters_.end(), [](const Parameter& p) { return p.type == Type::Variant; });
  const auto& value = std::get<tree::Expression>(list.parts.front().items.front().value);
  if (unknown != inner.parameters_.end()) throw SyntaxError(UnknownName, unknown->name, value.place.position);
  RowStatement statement;
  statement.sql = translate_(query);
  statement.parameters = inner.parameters();
  statement.tables = inner.tables_;
  statement.columns.push_back({"", query.parts.front().items.front().value.type, "", "", {}});
  statement.mayReadAnyTable = inner.mayReadAnyTable_;
  return schema_.values(statement, answers_);
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
