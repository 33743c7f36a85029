#include "jet/dao/statement_runner.h"

#include "jet/dao/values.h"
#include "jet/sql/domain.h"
#include "jet/sql/functions.h"
#include "runtime/overloaded.h"

namespace jet::dao {

namespace {

constexpr char Source[] = "DAO.Database";
constexpr std::uint32_t SystemObject = 0x80000002;  // of a table's flags

void bindAnswers(image::Statement& statement, const sql::RowStatement& plan, const Answers& answers) {
  for (std::size_t i = 0; i < plan.parameters.size(); ++i) {
    const auto& parameter = plan.parameters[i];
    if (i >= answers.size() || !answers[i])
      throw runtime::Error(3061, Source, "Troppo pochi parametri: manca " + parameter.name);
    bindValue(statement, static_cast<int>(i + 1), *answers[i], parameter.type);
  }
}

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
  sql::registerDomainFunction(image.connection().handle(), [this](const std::string& text) {
    auto plan = std::get<sql::RowStatement>(compile(text));
    // No indexes now, in the middle of a statement.
    for (const auto& table : plan.tables) image_.prepareToRead(table.page, {});
    return plan;
  });
}

sql::Statement StatementRunner::compile(const std::string& text, bool withRowKeys) const {
  return sql::compile(text, *this, {.withRowKeys = withRowKeys});
}

void StatementRunner::ready(const sql::RowStatement& plan) {
  if (plan.mayReadAnyTable)
    for (const auto& table : image_.tables())
      if (!(table.flags & SystemObject)) image_.prepareToRead(table.page, {});
  const bool onePass = plan.kind == sql::RowStatement::Kind::Select && plan.tables.size() == 1 &&
                       plan.tables[0].compared.empty();
  for (const auto& table : plan.tables) {
    if (table.change != sql::TouchedTable::Change::None)
      image_.prepareToChange(table.page, table.compared);
    else if (onePass && plan.rowKeys == 0)
      image_.prepareToScan(table.page);
    else
      image_.prepareToRead(table.page, table.compared);
  }
}

PreparedRows StatementRunner::prepare(sql::RowStatement plan, const Answers& answers) {
  ready(plan);
  auto statement = image_.connection().prepare(plan.sql);
  bindAnswers(statement, plan, answers);
  return {std::move(plan), std::move(statement)};
}

image::Statement StatementRunner::prepareInto(const std::string& prefix, const sql::RowStatement& plan,
                                              const Answers& answers) {
  ready(plan);
  auto statement = image_.connection().prepare(prefix + plan.sql);
  bindAnswers(statement, plan, answers);
  return statement;
}

std::int64_t StatementRunner::execute(const sql::Statement& statement, const Answers& answers) {
  return std::visit(
      runtime::Overloaded{
          [&](const sql::RowStatement& plan) { return change(plan, answers); },
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

std::int64_t StatementRunner::change(const sql::RowStatement& plan, const Answers& answers) {
  if (plan.kind == sql::RowStatement::Kind::Select)
    throw runtime::Error(3065, Source, "Impossibile eseguire una query di selezione");
  auto prepared = prepare(plan, answers);
  // One SQLite statement changes all its rows or none.
  prepared.statement.run();
  const std::int64_t affected = sqlite3_changes64(image_.connection().handle());
  if (affected > 0)
    for (const auto& table : plan.tables)
      if (table.change != sql::TouchedTable::Change::None) image_.markChanged(table.page);
  return affected;
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
