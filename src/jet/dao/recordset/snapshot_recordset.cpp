// Snapshots: rows copied into a table of the image.
#include "jet/dao/recordset/snapshot_recordset.h"

#include "jet/dao/values.h"
#include "jet/file/errors.h"

namespace jet::dao {

SnapshotRecordset::Rows::Rows(std::shared_ptr<Session> owner, std::string columns)
    : session(std::move(owner)) {
  static std::uint64_t number = 0;
  table = "temp.s" + std::to_string(++number);
  session->image().connection().execute("CREATE TABLE " + table + "(" + columns + ")");
}

SnapshotRecordset::Rows::~Rows() {
  if (session->released()) return;
  session->image().connection().dropIfPossible("DROP TABLE IF EXISTS " + table);
}

void SnapshotRecordset::Rows::count() {
  auto query = session->image().connection().prepare("SELECT count(*) FROM " + table);
  query.step();
  size = query.integer(0);
}

bool SnapshotRecordset::Rows::there() const {
  auto query = session->image().connection().prepare("SELECT 1 FROM temp.sqlite_master WHERE name = ?1");
  query.bind(1, std::string_view(table).substr(table.find('.') + 1));
  return query.step();
}

SnapshotRecordset::SnapshotRecordset(std::shared_ptr<Session> session, Origin origin, sql::RowStatement plan,
                                     Answers answers)
    : PositionedRecordset(session, std::move(origin), resultFields(plan, session->runner())),
      plan_(std::move(plan)),
      answers_(std::move(answers)) {
  fill();
}

SnapshotRecordset::SnapshotRecordset(const SnapshotRecordset& other, std::vector<RowFilter> rowFilters)
    : PositionedRecordset(other.session_, other.origin_, other.fields_),
      plan_(other.plan_),
      answers_(other.answers_) {
  rowFilters_ = std::move(rowFilters);
}

std::shared_ptr<SnapshotRecordset::Rows> SnapshotRecordset::newRows() {
  std::string columns;
  for (std::size_t i = 0; i < fields_.size(); ++i) columns += (i ? ", v" : "v") + std::to_string(i);
  return std::make_shared<Rows>(session_, columns);
}

void SnapshotRecordset::use(std::shared_ptr<Rows> rows) {
  rows->count();
  fetch_ = session_->image().connection().prepare("SELECT * FROM " + rows->table + " WHERE rowid = ?1");
  rows_ = std::move(rows);
  restart();
}

void SnapshotRecordset::fill() {
  auto rows = newRows();
  session_->runner().prepareInto("INSERT INTO " + rows->table + " ", plan_, answers_).run();
  use(std::move(rows));
  for (const auto& rowFilter : rowFilters_) filterRows(rowFilter);
}

void SnapshotRecordset::filterRows(const RowFilter& rowFilter) {
  auto rows = newRows();
  auto copy = session_->image().connection().prepare("INSERT INTO " + rows->table + " SELECT * FROM " +
                                                     rows_->table + " WHERE rowid = ?1");
  for (const auto place : filteredBy(rowFilter)) {
    copy.bind(1, place + 1);
    copy.run();
  }
  use(std::move(rows));
}

std::unique_ptr<RecordSearch> SnapshotRecordset::makeSearch() {
  auto search = std::make_unique<RecordSearch>(session_, fields_);
  std::vector<std::string> columns;
  for (std::size_t i = 0; i < fields_.size(); ++i) columns.push_back("v" + std::to_string(i));
  search->show(columns, "rowid - 1", rows_->table);
  return search;
}

void SnapshotRecordset::moved() {
  fetch_.reset();
  if (!onRecord()) return;
  const auto now = session_->image().generation();
  if (!there_.get(now)) {
    if (!rows_->there()) throw errorOf(ObjectInvalid, source::Recordset, "Rollback ha tolto i record");
    there_.set(now);
  }
  fetch_.bind(1, requireRecord() + 1);
  fetch_.step();
}

runtime::Variant SnapshotRecordset::fieldValue(std::size_t index) const {
  requireRecord();
  return fromImage(fetch_, static_cast<int>(index), fields_[index].type);
}

RecordsetPtr SnapshotRecordset::OpenRecordset() {
  requireOpen();
  auto opened = std::shared_ptr<SnapshotRecordset>(new SnapshotRecordset(*this, rowFilters()));
  opened->fill();
  return opened;
}

RecordsetPtr SnapshotRecordset::Clone() {
  requireOpen();
  auto clone = std::shared_ptr<SnapshotRecordset>(new SnapshotRecordset(*this, rowFilters_));
  clone->use(rows_);
  clone->becomeCloneOf(*this);
  return clone;
}

void SnapshotRecordset::Requery() {
  requireOpen();
  fill();
}

void SnapshotRecordset::Close() {
  open_ = false;
  closeSearch();
  fetch_ = {};
  rows_.reset();
}

void SnapshotRecordset::refuse() const {
  requireOpen();
  if (origin_.type == dbOpenDynaset) readOnlyRecordset();
  unsupported();
}

}  // namespace jet::dao
