#include "jet/dao/query/statement_runner.h"

#include "jet/dao/design/design_runner.h"
#include "jet/dao/query/stored_queries.h"
#include "jet/dao/values.h"
#include "jet/file/errors.h"
#include "jet/image/property_values.h"
#include "jet/sql/domain.h"
#include "jet/sql/functions.h"
#include "runtime/overloaded.h"

namespace jet::dao {

StatementRunner::StatementRunner(image::Image& image) : image_(image) {
  sql::registerFunctions(image.connection().handle());
  sql::registerDomainFunction(image.connection().handle(), [this](const std::string& text) {
    auto plan = std::get<sql::RowStatement>(compile(text));
    // No indexes now, in the middle of a statement.
    for (const auto& table : plan.tables) image_.prepareToRead(table.page, {});
    return plan;
  });
  image.setRuleCompiler([this](const auto& table, const auto* column, const std::string& rule) {
    return sql::compileRule(rule, table, column, *this);
  });
}

std::optional<std::string> StatementRunner::findQuery(std::string_view name) const {
  auto& texts = queries_.getOrBegin(image_.generation());
  const std::string key = file::nameKey(name);
  const auto known = texts.find(key);
  if (known != texts.end()) return known->second;
  return texts.emplace(key, readQuery(name)).first->second;
}

std::optional<std::string> StatementRunner::readQuery(std::string_view name) const {
  using sql::QueryKind;
  const auto object = findQueryObject(image_, name);
  if (!object) return std::nullopt;
  const auto kind = object->kind();
  const bool givesRows = kind == QueryKind::Select || kind == QueryKind::Union || kind == QueryKind::Crosstab;
  return givesRows ? std::optional(queryText(image_, *object)) : std::nullopt;
}

/// No indexes are made: the list may be asked for in the middle of a statement.
std::optional<std::vector<runtime::Variant>> StatementRunner::values(const sql::RowStatement& list,
                                                                     const Answers& answers) const {
  for (std::size_t i = 0; i < list.parameters.size(); ++i)
    if (i >= answers.size() || !answers[i]) return std::nullopt;
  for (const auto& table : list.tables) image_.prepareToRead(table.page, {});
  auto rows = image_.connection().prepare(list.sql);
  bindAnswers(rows, list, answers);
  std::vector<runtime::Variant> values;
  while (rows.step()) values.push_back(fromImage(rows, 0, list.columns.front().type));
  return values;
}

std::optional<std::string> StatementRunner::findAction(std::string_view name) const {
  const auto object = findQueryObject(image_, name);
  return object ? std::optional(queryText(image_, *object)) : std::nullopt;
}

sql::Statement StatementRunner::compile(const std::string& text, const sql::Options& options) const {
  return sql::compile(text, *this, options);
}

std::string StatementRunner::defaultOf(const file::TableDefinition& table, const file::Column& column) const {
  return image::textProperty(image_.properties(table.page), column.name, "DefaultValue");
}

sql::RowStatement StatementRunner::selection(const std::string& text, const sql::Options& options) const {
  constexpr std::size_t most = 32;
  auto& plans = selections_.getOrBegin(image_.generation());
  if (plans.size() >= most) plans.clear();
  const auto known = plans.find({text, options.withRowKeys});
  if (known != plans.end()) return known->second;
  auto statement = compile(text, options);
  auto* rows = std::get_if<sql::RowStatement>(&statement);
  if (!rows || rows->kind != sql::RowStatement::Kind::Select)
    throw errorOf(InvalidOperation, source::Database, "l'istruzione non restituisce record");
  // The columns that rows tell of, or another file, are not the same the next time.
  if (!rows->columnsFromRows && !readsLinks(image_, *rows))
    plans.emplace(std::pair(text, options.withRowKeys), *rows);
  return std::move(*rows);
}

sql::RowStatement StatementRunner::change(sql::RowStatement plan) {
  if (plan.kind == sql::RowStatement::Kind::Select) throw errorOf(SelectNotExecutable, source::Database);
  return plan;
}

image::Statement StatementRunner::prepare(const sql::RowStatement& plan, const Answers& answers) {
  return prepareInto("", plan, answers);
}

image::Statement StatementRunner::prepareInto(const std::string& prefix, const sql::RowStatement& plan,
                                              const Answers& answers) {
  makeReady(image_, plan);
  auto statement = image_.connection().prepare(prefix + plan.sql);
  bindAnswers(statement, plan, answers);
  return statement;
}

std::int64_t StatementRunner::execute(sql::Statement statement, const Answers& answers, bool failOnError) {
  return std::visit(runtime::Overloaded{
                        [&](sql::RowStatement& plan) {
                          return RowChanges(image_, change(std::move(plan))).run(answers, failOnError);
                        },
                        [&](const sql::SelectInto& into) { return DesignRunner(*this).run(into, answers); },
                        [&](const auto& design) { return DesignRunner(*this).run(design), std::int64_t{0}; }},
                    statement);
}

}  // namespace jet::dao
