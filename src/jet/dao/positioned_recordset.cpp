#include "jet/dao/positioned_recordset.h"

#include "jet/dao/values.h"

namespace jet::dao {

void PositionedRecordset::restart() {
  position_ = 0;
  gone_ = false;
  moved();
}

void PositionedRecordset::moveTo(std::int64_t position) {
  position_ = position;
  gone_ = false;
  moved();
}

void PositionedRecordset::MoveFirst() {
  requireOpen();
  if (count() == 0) noCurrentRecord();
  moveTo(0);
}

void PositionedRecordset::MoveLast() {
  requireOpen();
  if (count() == 0) noCurrentRecord();
  moveTo(count() - 1);
}

void PositionedRecordset::MoveNext() {
  requireOpen();
  if (position_ >= count() && !gone_) noCurrentRecord();
  moveTo(gone_ ? position_ : position_ + 1);
}

void PositionedRecordset::MovePrevious() {
  requireOpen();
  if (position_ < 0) noCurrentRecord();
  moveTo(position_ - 1);
}

SnapshotRecordset::SnapshotRecordset(std::shared_ptr<Session> session, sql::RowStatement plan,
                                     Answers answers)
    : PositionedRecordset(session, resultFields(plan, session->runner())),
      plan_(std::move(plan)),
      answers_(std::move(answers)) {
  fill();
}

SnapshotRecordset::~SnapshotRecordset() {
  drop();
}

void SnapshotRecordset::fill() {
  static std::uint64_t number = 0;
  auto& runner = session_->runner();
  const auto& connection = runner.image().connection();
  drop();
  const std::string table = "temp.s" + std::to_string(++number);
  std::string columns;
  for (std::size_t i = 0; i < plan_.columns.size(); ++i) columns += (i ? ", v" : "v") + std::to_string(i);
  connection.execute("CREATE TABLE " + table + "(" + columns + ")");
  table_ = table;
  runner.prepareInto("INSERT INTO " + table + " ", plan_, answers_).run();
  auto size = connection.prepare("SELECT count(*) FROM " + table);
  size.step();
  count_ = size.integer(0);
  fetch_ = connection.prepare("SELECT * FROM " + table + " WHERE rowid = ?1");
  restart();
}

void SnapshotRecordset::drop() {
  fetch_ = {};
  if (table_.empty() || session_->released()) return;
  // A scratch table that can't be dropped goes with the connection.
  sqlite3_exec(session_->image().connection().handle(), ("DROP TABLE IF EXISTS " + table_).c_str(), nullptr,
               nullptr, nullptr);
  table_.clear();
}

void SnapshotRecordset::moved() {
  fetch_.reset();
  if (!onRecord()) return;
  fetch_.bind(1, position_ + 1);
  fetch_.step();
}

runtime::Variant SnapshotRecordset::fieldValue(std::size_t index) const {
  requireOpen();
  if (!onRecord()) noCurrentRecord();
  return fromImage(fetch_, static_cast<int>(index), fields_[index].type);
}

void SnapshotRecordset::Requery() {
  requireOpen();
  fill();
}

void SnapshotRecordset::Close() {
  drop();
  open_ = false;
}

}  // namespace jet::dao
