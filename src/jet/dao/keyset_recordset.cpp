#include <algorithm>

#include "jet/dao/positioned_recordset.h"
#include "jet/dao/values.h"
#include "jet/image/row_codec.h"

namespace jet::dao {

namespace {

constexpr char Source[] = "DAO.Recordset";

}  // namespace

bool hasKeyset(const sql::RowStatement& plan) {
  return plan.rowKeys == 1 &&
         std::all_of(plan.columns.begin(), plan.columns.end(),
                     [](const sql::ResultColumn& column) { return !column.sourceColumn.empty(); });
}

KeysetRecordset::KeysetRecordset(std::shared_ptr<Session> session, sql::RowStatement plan, Answers answers,
                                 bool readOnly)
    : PositionedRecordset(session, resultFields(plan, session->runner())),
      plan_(std::move(plan)),
      answers_(std::move(answers)),
      readOnly_(readOnly || session->readOnly()) {
  const auto& table = session_->image().definition(page());
  for (const auto& result : plan_.columns)
    columns_.push_back(table.columns[*table.find(result.sourceColumn)].number);
  fill();
}

void KeysetRecordset::fill() {
  auto& runner = session_->runner();
  auto rows = runner.prepare(plan_, answers_);
  const int keyColumn = static_cast<int>(plan_.columns.size());
  keys_.clear();
  while (rows.statement.step()) keys_.push_back(rows.statement.integer(keyColumn));

  std::string sql = "SELECT ";
  for (const auto number : columns_) sql += image::columnName(number) + ",";
  sql.back() = ' ';
  fetch_ =
      runner.image().connection().prepare(sql + "FROM " + image::tableName(page()) + " WHERE rowid = ?1");
  restart();
}

void KeysetRecordset::moved() {
  fetched_ = false;
  fetch_.reset();
  mode_ = Mode::Browse;
}

void KeysetRecordset::fetch() const {
  requireOpen();
  if (gone_) throw runtime::Error(3167, Source, "Il record è stato eliminato");
  if (!onRecord()) noCurrentRecord();
  if (fetched_) return;
  fetch_.reset();
  fetch_.bind(1, keys_[static_cast<std::size_t>(position_)]);
  if (!fetch_.step()) throw runtime::Error(3167, Source, "Il record è stato eliminato");
  fetched_ = true;
}

const file::Column& KeysetRecordset::column(std::size_t field) const {
  const auto& table = session_->image().definition(page());
  return table.columns[*table.findNumber(columns_[field])];
}

runtime::Variant KeysetRecordset::fieldValue(std::size_t index) const {
  if (mode_ != Mode::Browse && edits_[index]) return *edits_[index];
  if (mode_ == Mode::Add) return runtime::Variant(runtime::Null{});
  fetch();
  return fromImage(fetch_, static_cast<int>(index), fields_[index].type);
}

void KeysetRecordset::setFieldValue(std::size_t index, const runtime::Variant& value) {
  requireOpen();
  if (mode_ == Mode::Browse) throw runtime::Error(3020, Source, "Update o CancelUpdate senza AddNew o Edit");
  edits_[index] = value;
}

void KeysetRecordset::requireChangeable() const {
  requireOpen();
  if (readOnly_) refuseChange();
}

void KeysetRecordset::Edit() {
  requireChangeable();
  fetch();
  edits_.assign(fields_.size(), std::nullopt);
  mode_ = Mode::Edit;
}

void KeysetRecordset::AddNew() {
  requireChangeable();
  edits_.assign(fields_.size(), std::nullopt);
  mode_ = Mode::Add;
}

void KeysetRecordset::CancelUpdate() {
  requireOpen();
  if (mode_ == Mode::Browse) throw runtime::Error(3020, Source, "Update o CancelUpdate senza AddNew o Edit");
  mode_ = Mode::Browse;
}

void KeysetRecordset::Update() {
  requireChangeable();
  if (mode_ == Mode::Browse) throw runtime::Error(3020, Source, "Update o CancelUpdate senza AddNew o Edit");
  std::vector<std::size_t> given;
  for (std::size_t i = 0; i < edits_.size(); ++i)
    if (edits_[i]) given.push_back(i);
  if (mode_ == Mode::Add || !given.empty()) store(given);
  mode_ = Mode::Browse;
  fetched_ = false;
}

void KeysetRecordset::store(const std::vector<std::size_t>& given) {
  auto& image = session_->image();
  image.prepareToChange(page(), {});
  auto statement = image.connection().prepare(mode_ == Mode::Edit ? updateSql(given) : insertSql(given));
  const auto& table = image.definition(page()).name;
  for (const auto field : given)
    bindField(statement, static_cast<int>(field + 1), *edits_[field], column(field), table);
  statement.run();
  image.markChanged(page());
  if (mode_ == Mode::Add) keys_.push_back(sqlite3_last_insert_rowid(image.connection().handle()));
}

std::string KeysetRecordset::updateSql(const std::vector<std::size_t>& given) const {
  std::string assignments;
  for (const auto field : given)
    assignments += (assignments.empty() ? "" : ", ") + image::columnName(columns_[field]) + " = ?" +
                   std::to_string(field + 1);
  return "UPDATE " + image::tableName(page()) + " SET " + assignments +
         " WHERE rowid = " + std::to_string(keys_[static_cast<std::size_t>(position_)]);
}

std::string KeysetRecordset::insertSql(const std::vector<std::size_t>& given) const {
  const std::string insert = "INSERT INTO " + image::tableName(page());
  if (given.empty()) return insert + " DEFAULT VALUES";
  std::string names, values;
  for (const auto field : given) {
    names += (names.empty() ? "" : ", ") + image::columnName(columns_[field]);
    values += (values.empty() ? "?" : ", ?") + std::to_string(field + 1);
  }
  return insert + "(" + names + ") VALUES (" + values + ")";
}

void KeysetRecordset::Delete() {
  requireChangeable();
  fetch();
  auto& image = session_->image();
  fetch_.reset();
  image.prepareToChange(page(), {});
  auto statement =
      image.connection().prepare("DELETE FROM " + image::tableName(page()) + " WHERE rowid = ?1");
  statement.bind(1, keys_[static_cast<std::size_t>(position_)]);
  statement.run();
  image.markChanged(page());
  keys_.erase(keys_.begin() + position_);
  fetched_ = false;
  gone_ = true;
}

void KeysetRecordset::Requery() {
  requireOpen();
  fill();
}

void KeysetRecordset::Close() {
  fetch_ = {};
  open_ = false;
}

}  // namespace jet::dao
