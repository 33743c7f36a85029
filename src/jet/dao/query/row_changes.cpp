// Statements that change rows: as a whole, or row by row where some may be refused.
#include "jet/dao/query/row_changes.h"

#include <algorithm>

#include "jet/dao/values.h"
#include "jet/file/errors.h"

namespace jet::dao {

namespace {

using Kind = sql::RowStatement::Kind;
using Change = sql::TouchedTable::Change;

/// Errors that say that one row can't be changed so, not that the statement is wrong: overflow, division by
/// zero, types, Null; keys, a record that is too large, texts that are too long; relations; rules; numbers
/// and conversions.
constexpr int RowErrors[] = {6,
                             11,
                             13,
                             94,
                             DuplicateKey,
                             RecordTooLarge,
                             NullInIndex,
                             FieldTooSmall,
                             RelatedRecordsExist,
                             RelatedRecordMissing,
                             ValueRequired,
                             EmptyTextRefused,
                             TableRuleBroken,
                             FieldRuleBroken,
                             RuleUnreadable,
                             NumericOverflow,
                             CascadeDeleteRefused,
                             CascadeUpdateRefused,
                             CascadeRefused,
                             ConversionFailed,
                             TypesDiffer};

bool refusesRow(int number) {
  return std::find(std::begin(RowErrors), std::end(RowErrors), number) != std::end(RowErrors);
}

image::RowChange rowChange(const sql::TouchedTable& table) {
  image::RowChange change;
  switch (table.change) {
    case Change::Insert:
      change.kind = image::RowChange::Kind::Insert;
      break;
    case Change::Update:
      change.kind = image::RowChange::Kind::Update;
      break;
    case Change::Delete:
      change.kind = image::RowChange::Kind::Delete;
      break;
    case Change::None:
      break;
  }
  change.assigned = table.assigned;
  return change;
}

/// The rows that a statement changes, one after the other as the only row of temp.jet_rows.
class SpooledRows {
 public:
  SpooledRows(const image::Connection& connection, const sql::RowStatement& plan, const Answers& answers)
      : connection_(connection) {
    auto spool = connection.prepare("CREATE TEMP TABLE jet_spool AS " + plan.steps->spool);
    bindAnswers(spool, plan, answers);
    spool.run();
    connection.execute("CREATE TEMP TABLE jet_rows AS SELECT * FROM jet_spool WHERE 0");
    take_ = connection.prepare("INSERT INTO jet_rows SELECT * FROM jet_spool WHERE rowid = ?1");
    empty_ = connection.prepare("DELETE FROM jet_rows");
    auto size = connection.prepare("SELECT count(*) FROM jet_spool");
    size.step();
    count_ = size.integer(0);
  }
  /// Not where an error is under way: the transaction takes the tables back.
  void drop() {
    take_ = {};
    empty_ = {};
    connection_.execute("DROP TABLE jet_rows; DROP TABLE jet_spool");
  }
  bool next() {
    if (row_ == count_) return false;
    empty_.run();
    take_.bind(1, ++row_);
    take_.run();
    return true;
  }

 private:
  const image::Connection& connection_;
  image::Statement take_, empty_;
  std::int64_t row_ = 0, count_ = 0;
};

}  // namespace

void bindAnswers(image::Statement& statement, const sql::RowStatement& plan, const Answers& answers) {
  for (std::size_t i = 0; i < plan.parameters.size(); ++i) {
    const auto& parameter = plan.parameters[i];
    if (i >= answers.size() || !answers[i])
      throw runtime::Error(TooFewParameters, source::Database,
                           "Troppo pochi parametri: manca " + parameter.name);
    bindValue(statement, static_cast<int>(i + 1), *answers[i], parameter.type);
  }
}

void makeReady(image::Image& image, const sql::RowStatement& plan) {
  if (plan.mayReadAnyTable)
    for (const auto& table : image.tables())
      if (!table.system() && !table.link) image.prepareToRead(table.page, {});
  const bool onePass =
      plan.kind == Kind::Select && plan.tables.size() == 1 && plan.tables[0].compared.empty();
  for (const auto& table : plan.tables) {
    if (table.change != Change::None)
      image.prepareToChange(table.page, table.compared, rowChange(table));
    else if (onePass && plan.rowKeys == 0)
      image.prepareToScan(table.page);
    else
      image.prepareToRead(table.page, table.compared);
  }
}

bool readsLinks(const image::Image& image, const sql::RowStatement& plan) {
  return std::ranges::any_of(image.tables(), [&](const image::Table& table) {
    return table.link &&
           std::ranges::find(plan.tables, table.page, &sql::TouchedTable::page) != plan.tables.end();
  });
}

RowChanges::RowChanges(image::Image& image, sql::RowStatement plan) : image_(image), plan_(std::move(plan)) {
  makeReady(image_, plan_);
  manyRowsInserted_ = plan_.kind == Kind::Insert && plan_.tables.size() > 1;
  readsLinks_ = readsLinks(image_, plan_);
}

std::int64_t RowChanges::run(const Answers& answers, bool failOnError) {
  if (readsLinks_) makeReady(image_, plan_);  // the other file may have changed
  if (plan_.sql.empty()) return runRowByRow(answers, failOnError);
  if (failOnError) return runWhole(answers);
  try {
    if (!manyRowsInserted_) return runWhole(answers);
    // Taken back, the auto-numbers of rows that were tried are free again.
    image::Transaction attempt(image_);
    const auto affected = runWhole(answers);
    attempt.keep();
    return affected;
  } catch (const runtime::Error& error) {
    if (!refusesRow(error.number())) throw;
  }
  if (plan_.kind == Kind::Insert && !manyRowsInserted_) return 0;  // its one row was refused
  return runRowByRow(answers, false);
}

/// One SQLite statement changes all its rows or none.
std::int64_t RowChanges::runWhole(const Answers& answers) {
  if (!whole_) whole_ = image_.connection().prepare(plan_.sql);
  bindAnswers(whole_, plan_, answers);
  whole_.run();
  const std::int64_t affected = image_.connection().changes();
  if (affected > 0) noteChange();
  return affected;
}

std::int64_t RowChanges::runRowByRow(const Answers& answers, bool failOnError) {
  const auto& connection = image_.connection();
  image::Transaction whole(image_);
  makeReady(image_, plan_);  // inside: a transaction taken back may have let tables go
  SpooledRows rows(connection, plan_, answers);
  std::vector<image::Statement> steps;
  for (const auto& sql : plan_.steps->apply) {
    steps.push_back(connection.prepare(sql));
    bindAnswers(steps.back(), plan_, answers);
  }
  std::int64_t affected = 0;
  while (rows.next()) {
    const auto before = connection.totalChanges();
    connection.execute("SAVEPOINT jet_row");
    try {
      for (auto& step : steps) step.run();
      connection.execute("RELEASE jet_row");
      affected += connection.totalChanges() > before;
    } catch (const runtime::Error& error) {
      if (failOnError || !refusesRow(error.number())) throw;
      connection.execute("ROLLBACK TO jet_row; RELEASE jet_row");
    }
  }
  steps.clear();
  rows.drop();
  if (affected > 0) noteChange();
  whole.keep();
  return affected;
}

void RowChanges::noteChange() {
  for (const auto& table : plan_.tables)
    if (table.change != Change::None) image_.markChanged(table.page);
}

}  // namespace jet::dao
