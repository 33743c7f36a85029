// Tables as recordsets: in the order of an index or of their rows, read straight from the file where they
// can.
#include "jet/dao/recordset/table_recordset.h"

#include <cstring>

#include "jet/file/errors.h"
#include "jet/image/row_codec.h"

namespace jet::dao {

namespace {

runtime::Bytes bookmarkOf(std::int64_t rowid) {
  runtime::Bytes bytes(sizeof rowid);
  std::memcpy(bytes.data(), &rowid, sizeof rowid);
  return bytes;
}

}  // namespace

TableRecordset::TableRecordset(std::shared_ptr<Session> session, Origin origin, std::uint32_t page,
                               bool readOnly)
    : EditableRecordset(session, std::move(origin), tableFields(session->image().definition(page)), {page},
                        readOnly),
      page_(page),
      cursor_(session->image(), page) {
  start();
}

void TableRecordset::start() {
  // Nothing can change under a read-only database, so its rows need not be loaded to be read in order.
  if (session_->readOnly() && index_.empty()) {
    file_.emplace(session_->image(), page_);
    place_ = file_->next() ? Place::On : Place::None;
  } else {
    goTo(cursor_.first(), Place::None);
  }
}

void TableRecordset::leaveFile() {
  if (!file_) return;
  const auto rowid = file_->rowid();
  file_.reset();
  if (place_ == Place::On) goTo(rowid, Place::Behind);
}

void TableRecordset::goTo(std::optional<std::int64_t> rowid, Place otherwise) {
  place_ = rowid ? Place::On : otherwise;
  if (rowid) {
    rowid_ = *rowid;
    cursor_.standOn(rowid_);
  }
  leaveEdited();
}

std::int64_t TableRecordset::requireRecord() const {
  requireOpen();
  if (place_ == Place::Deleted) recordDeleted();
  if (place_ != Place::On) noCurrentRecord();
  return rowid_;
}

void TableRecordset::MoveFirst() {
  requireOpen();
  leaveFile();
  goTo(cursor_.first(), Place::None);
  if (place_ == Place::None) noCurrentRecord();
}

void TableRecordset::MoveLast() {
  requireOpen();
  leaveFile();
  goTo(cursor_.last(), Place::None);
  if (place_ == Place::None) noCurrentRecord();
}

void TableRecordset::MoveNext() {
  requireOpen();
  if (place_ == Place::None || place_ == Place::Behind) noCurrentRecord();
  if (file_)
    place_ = file_->next() ? Place::On : Place::Behind;
  else
    goTo(place_ == Place::Before ? cursor_.first() : cursor_.next(), Place::Behind);
}

void TableRecordset::MovePrevious() {
  requireOpen();
  if (place_ == Place::None || place_ == Place::Before) noCurrentRecord();
  leaveFile();
  goTo(place_ == Place::Behind ? cursor_.last() : cursor_.previous(), Place::Before);
}

void TableRecordset::Move(std::int64_t rows) {
  if (rows == 0) {
    requireRecord();
    fetched_ = false;
  }
  stepRows(rows);
}

std::int64_t TableRecordset::RecordCount() const {
  requireOpen();
  auto& image = session_->image();
  if (file_) return image.definition(page_).rows;
  const std::int64_t changes = image.connection().totalChanges();
  if (changes != countedChanges_) {
    image.prepareToRead(page_, {});
    auto query = image.connection().prepare("SELECT count(*) FROM " + image::tableName(page_));
    query.step();
    count_ = query.integer(0);
    countedChanges_ = changes;
  }
  return count_;
}

runtime::Bytes TableRecordset::Bookmark() const {
  const auto rowid = requireRecord();
  return bookmarkOf(file_ ? file_->rowid() : rowid);
}

runtime::Bytes TableRecordset::LastModified() const {
  requireOpen();
  if (!lastModified_) noCurrentRecord();
  return bookmarkOf(*lastModified_);
}

void TableRecordset::setBookmark(const runtime::Bytes& bookmark) {
  requireOpen();
  std::int64_t rowid = 0;
  if (bookmark.size() != sizeof rowid) invalidBookmark();
  std::memcpy(&rowid, bookmark.data(), sizeof rowid);
  leaveFile();
  if (!reader_.read(&rowid)) invalidBookmark();
  goTo(rowid, Place::On);
}

void TableRecordset::setIndex(const std::string& name) {
  requireOpen();
  leaveFile();
  std::vector<file::IndexColumn> columns;
  if (!name.empty()) {
    const auto& table = session_->image().definition(page_);
    const file::LogicalIndex* found = nullptr;
    for (const auto& index : table.logicalIndexes)
      if (file::sameName(index.name, name)) found = &index;
    if (!found) throw errorOf(UnknownIndex, source::Recordset, name);
    columns = table.realIndexes.at(found->real).columns;
  }
  index_ = name;
  cursor_.orderBy(std::move(columns));
  goTo(cursor_.first(), Place::None);
}

void TableRecordset::Seek(std::string_view comparison, std::span<const runtime::Variant> keys) {
  requireOpen();
  if (!cursor_.ordered()) throw errorOf(NoCurrentIndex, source::Recordset, origin_.name);
  const auto found = cursor_.seek(comparison, keys);
  noMatch_ = !found;
  // Without a match there is no current record.
  goTo(found, RecordCount() > 0 ? Place::Behind : Place::None);
}

runtime::Variant TableRecordset::storedValue(std::size_t index) const {
  return file_ ? (requireRecord(), file_->value(index)) : EditableRecordset::storedValue(index);
}

void TableRecordset::changeRecord() {
  lastModified_ = requireRecord();
  editor_.change(&rowid_);
}

void TableRecordset::Delete() {
  requireChangeable();
  fetch();
  reader_.release();
  editor_.remove(0, rowid_);
  if (editor_.mode() != dbEditNone) editor_.cancel();
  place_ = Place::Deleted;
}

RecordsetPtr TableRecordset::OpenRecordset() {
  requireOpen();
  return std::make_shared<TableRecordset>(session_, origin_, page_, readOnly_);
}

RecordsetPtr TableRecordset::Clone() {
  requireOpen();
  auto clone = std::make_shared<TableRecordset>(session_, origin_, page_, readOnly_);
  clone->setIndex(index_);
  if (clone->place_ == Place::On) clone->place_ = Place::Before;
  return clone;
}

void TableRecordset::Requery() {
  requireOpen();
  goTo({}, Place::None);
  file_.reset();
  start();
}

void TableRecordset::Close() {
  reader_.release();
  file_.reset();
  open_ = false;
}

}  // namespace jet::dao
