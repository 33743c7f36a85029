#include "jet/dao/statement_runner.h"

#include "jet/dao/design_runner.h"
#include "jet/dao/values.h"
#include "jet/sql/functions.h"
#include "runtime/overloaded.h"

namespace jet::dao {

namespace {

constexpr char Source[] = "DAO.Database";

void bindAnswers(image::Statement& statement, const sql::RowStatement& plan, const Answers& answers) {
  for (std::size_t i = 0; i < plan.parameters.size(); ++i) {
    const auto& parameter = plan.parameters[i];
    if (i >= answers.size() || !answers[i])
      throw runtime::Error(3061, Source, "Troppo pochi parametri: manca " + parameter.name);
    bindValue(statement, static_cast<int>(i + 1), *answers[i], parameter.type);
  }
}

image::RowChange rowChange(const sql::TouchedTable& table) {
  using Change = sql::TouchedTable::Change;
  using Kind = image::RowChange::Kind;
  const Kind kind = table.change == Change::Insert   ? Kind::Insert
                    : table.change == Change::Update ? Kind::Update
                                                     : Kind::Delete;
  return {kind, table.assigned};
}

}  // namespace

StatementRunner::StatementRunner(image::Image& image) : image_(image) {
  sql::registerFunctions(image.connection().handle());
}

sql::Statement StatementRunner::compile(const std::string& text, bool withRowKeys) const {
  return sql::compile(text, *this, {.withRowKeys = withRowKeys});
}

void StatementRunner::ready(const sql::RowStatement& plan) {
  const bool onePass = plan.kind == sql::RowStatement::Kind::Select && plan.tables.size() == 1 &&
                       plan.tables[0].compared.empty();
  for (const auto& table : plan.tables) {
    if (table.change != sql::TouchedTable::Change::None)
      image_.prepareToChange(table.page, table.compared, rowChange(table));
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
  return std::visit(runtime::Overloaded{
                        [&](const sql::RowStatement& plan) { return change(plan, answers); },
                        [&](const sql::SelectInto& into) { return DesignRunner(*this).run(into, answers); },
                        [&](const auto& design) { return DesignRunner(*this).run(design), std::int64_t{0}; }},
                    statement);
}

std::int64_t StatementRunner::change(const sql::RowStatement& plan, const Answers& answers) {
  if (plan.kind == sql::RowStatement::Kind::Select)
    throw runtime::Error(3065, Source, "Impossibile eseguire una query di selezione");
  if (plan.sql.empty()) return changeRowByRow(plan, answers);
  auto prepared = prepare(plan, answers);
  // One SQLite statement changes all its rows or none.
  prepared.statement.run();
  const std::int64_t affected = sqlite3_changes64(image_.connection().handle());
  if (affected > 0)
    for (const auto& table : plan.tables)
      if (table.change != sql::TouchedTable::Change::None) image_.markChanged(table.page);
  return affected;
}

std::int64_t StatementRunner::changeRowByRow(const sql::RowStatement& plan, const Answers& answers) {
  ready(plan);
  image::Transaction whole(image_);
  const auto& connection = image_.connection();
  const auto run = [&](const std::string& sql) {
    auto statement = connection.prepare(sql);
    bindAnswers(statement, plan, answers);
    statement.run();
  };
  run("CREATE TEMP TABLE jet_gathered AS " + plan.steps->gather);
  connection.execute("CREATE TEMP TABLE jet_rows AS SELECT * FROM jet_gathered WHERE 0");
  auto next = connection.prepare("INSERT INTO jet_rows SELECT * FROM jet_gathered WHERE rowid = ?1");
  auto count = connection.prepare("SELECT count(*) FROM jet_gathered");
  count.step();
  const std::int64_t rows = count.integer(0);
  count.reset();
  for (std::int64_t row = 1; row <= rows; ++row) {
    connection.execute("DELETE FROM jet_rows");
    next.bind(1, row);
    next.run();
    for (const auto& sql : plan.steps->apply) run(sql);
  }
  next.reset();
  connection.execute("DROP TABLE jet_rows");
  connection.execute("DROP TABLE jet_gathered");
  for (const auto& table : plan.tables)
    if (table.change != sql::TouchedTable::Change::None) image_.markChanged(table.page);
  whole.keep();
  return rows;
}

}  // namespace jet::dao
