#include "jet/dao/statement_runner.h"

#include "jet/dao/stored_queries.h"
#include "jet/image/property_values.h"
#include "jet/sql/functions.h"
#include "runtime/overloaded.h"

namespace jet::dao {

namespace {

constexpr char Source[] = "DAO.Database";

image::IndexDesign indexDesign(const file::TableDefinition& table, const sql::CreateIndex& index) {
  image::IndexDesign design;
  design.name = index.name;
  design.unique = index.unique;
  design.primary = index.primary;
  design.required = index.disallowNull;
  design.ignoreNulls = index.ignoreNull;
  for (const auto& part : index.columns) {
    const auto position = table.find(part.column);
    if (!position) throw runtime::Error(3409, Source, "Campo inesistente nell'indice: " + part.column);
    design.columns.push_back({table.columns[*position].number, part.ascending});
  }
  return design;
}

}  // namespace

StatementRunner::StatementRunner(image::Image& image) : image_(image) {
  sql::registerFunctions(image.connection().handle());
}

std::optional<std::string> StatementRunner::findQuery(std::string_view name) const {
  using sql::QueryKind;
  const auto object = findQueryObject(image_, name);
  if (!object) return std::nullopt;
  const auto kind = object->kind();
  const bool givesRows =
      kind == QueryKind::Select || kind == QueryKind::Union || kind == QueryKind::Crosstab;
  return givesRows ? std::optional(queryText(image_, *object)) : std::nullopt;
}

sql::Statement StatementRunner::compile(const std::string& text, bool withRowKeys) const {
  return sql::compile(text, *this, {.withRowKeys = withRowKeys});
}

std::string StatementRunner::defaultOf(const file::TableDefinition& table, const file::Column& column) const {
  return image::textProperty(image_.properties(table.page), column.name, "DefaultValue");
}

sql::RowStatement StatementRunner::selection(const std::string& text, bool withRowKeys) const {
  auto statement = compile(text, withRowKeys);
  auto* rows = std::get_if<sql::RowStatement>(&statement);
  if (!rows || rows->kind != sql::RowStatement::Kind::Select)
    throw runtime::Error(3219, Source, "Operazione non valida: l'istruzione non restituisce record");
  return std::move(*rows);
}

sql::RowStatement StatementRunner::change(sql::RowStatement plan) {
  if (plan.kind == sql::RowStatement::Kind::Select)
    throw runtime::Error(3065, Source, "Impossibile eseguire una query di selezione");
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

std::int64_t StatementRunner::execute(sql::Statement statement, const Answers& answers,
                                      bool failOnError) {
  return std::visit(
      runtime::Overloaded{
          [&](sql::RowStatement& plan) {
            return RowChanges(image_, change(std::move(plan))).run(answers, failOnError);
          },
          [&](const sql::CreateTable& table) { return create(table), std::int64_t{0}; },
          [&](const sql::CreateIndex& index) { return createIndex(index), std::int64_t{0}; },
          [&](const sql::DropTable& table) { return image_.dropTable(table.table), std::int64_t{0}; },
          [&](const sql::DropIndex& index) {
            return image_.dropIndex(index.table, index.name), std::int64_t{0};
          },
          [](const auto&) -> std::int64_t {
            throw runtime::Error(3219, Source, "Operazione non valida: modifica di struttura");
          }},
      statement);
}

void StatementRunner::create(const sql::CreateTable& table) {
  image::Transaction whole(image_);
  file::TableDefinition design;
  design.name = table.table;
  std::vector<std::string> required;
  for (const auto& wanted : table.columns) {
    auto column = image::newColumn(wanted.name, wanted.type, wanted.size);
    if (wanted.autoNumber) column.flags |= file::Column::AutoNumber;
    if (wanted.type == file::ColumnType::Numeric) {
      column.precision = wanted.precision;
      column.scale = wanted.scale;
    }
    if (wanted.notNull) required.push_back(wanted.name);
    image::addColumn(design, std::move(column));
  }
  for (const auto& index : table.indexes) image::addIndex(design, indexDesign(design, index));
  image_.createTable(std::move(design), required);
  whole.keep();
}

void StatementRunner::createIndex(const sql::CreateIndex& index) {
  const auto* table = findTable(index.table);
  if (!table) throw runtime::Error(3078, Source, "Tabella inesistente: " + index.table);
  image::Transaction whole(image_);
  image_.createIndex(index.table, indexDesign(*table, index));
  whole.keep();
}

}  // namespace jet::dao
