// Cursors over numbered records.
#include "jet/dao/recordset/positioned_recordset.h"

#include <algorithm>
#include <cstring>

#include "jet/file/errors.h"

namespace jet::dao {

namespace {

struct Mark {
  std::uint64_t family;
  std::int64_t place;
};

std::uint64_t nextFamily() {
  static std::uint64_t last = 0;
  return ++last;
}

}  // namespace

PositionedRecordset::PositionedRecordset(std::shared_ptr<Session> session, Origin origin,
                                         std::vector<FieldInfo> fields)
    : RecordsetBase(std::move(session), std::move(origin), std::move(fields)), family_(nextFamily()) {}

void PositionedRecordset::restart() {
  search_.reset();
  family_ = nextFamily();
  opened_ = count();
  visited_ = 0;
  lastModified_ = -1;
  if (opened_ > 0)
    goTo(0);
  else
    leave(Cursor::None);
}

void PositionedRecordset::becomeCloneOf(const PositionedRecordset& other) {
  family_ = other.family_;
  opened_ = other.opened_;
  visited_ = opened_ > 0 ? 1 : 0;
  rowFilters_ = other.rowFilters_;
  leave(liveCount() > 0 ? Cursor::Before : Cursor::None);
}

void PositionedRecordset::goTo(std::int64_t place) {
  cursor_ = Cursor::On;
  place_ = place;
  visited_ = std::max(visited_, place + 1);
  moved();
}

void PositionedRecordset::leave(Cursor cursor) {
  cursor_ = liveCount() > 0 ? cursor : Cursor::None;
  if (cursor == Cursor::Behind) visited_ = count();
  moved();
}

std::int64_t PositionedRecordset::next(std::int64_t place) const {
  do ++place;
  while (place < count() && !filled(place));
  return place;
}

std::int64_t PositionedRecordset::previous(std::int64_t place) const {
  do --place;
  while (place >= 0 && !filled(place));
  return place;
}

std::int64_t PositionedRecordset::here() const {
  requireOpen();
  if (cursor_ == Cursor::Behind) return count();
  return cursor_ == Cursor::On || cursor_ == Cursor::Deleted ? place_ : -1;
}

std::int64_t PositionedRecordset::requireRecord() const {
  requireOpen();
  if (cursor_ == Cursor::Deleted) recordDeleted();
  if (cursor_ != Cursor::On) noCurrentRecord();
  return place_;
}

void PositionedRecordset::deleted() {
  moved();
  cursor_ = Cursor::Deleted;
}

void PositionedRecordset::MoveFirst() {
  requireOpen();
  if (liveCount() == 0) noCurrentRecord();
  goTo(next(-1));
}

void PositionedRecordset::MoveLast() {
  requireOpen();
  if (liveCount() == 0) noCurrentRecord();
  visited_ = count();
  goTo(previous(count()));
}

void PositionedRecordset::MoveNext() {
  requireOpen();
  if (cursor_ == Cursor::None || cursor_ == Cursor::Behind) noCurrentRecord();
  const auto place = next(here());
  if (place < count())
    goTo(place);
  else
    leave(Cursor::Behind);
}

void PositionedRecordset::MovePrevious() {
  requireOpen();
  if (cursor_ == Cursor::None || cursor_ == Cursor::Before) noCurrentRecord();
  const auto place = previous(here());
  if (place >= 0)
    goTo(place);
  else
    leave(Cursor::Before);
}

void PositionedRecordset::Move(std::int64_t rows) {
  if (rows == 0) goTo(requireRecord());
  stepRows(rows);
}

std::int64_t PositionedRecordset::RecordCount() const {
  requireOpen();
  return std::min(visited_, opened_) - holes() + (count() - opened_);
}

std::int64_t PositionedRecordset::AbsolutePosition() const {
  requireOpen();
  if (cursor_ != Cursor::On) return -1;
  if (holes() == 0) return place_;
  std::int64_t position = 0;
  for (std::int64_t place = 0; place < place_; ++place) position += filled(place);
  return position;
}

void PositionedRecordset::setAbsolutePosition(std::int64_t position) {
  requireOpen();
  if (position < 0 || position >= liveCount())
    throw runtime::Error(InvalidArgument, source::Recordset,
                         "Posizione fuori del recordset: " + std::to_string(position));
  std::int64_t place = holes() == 0 ? position : next(-1);
  if (holes() > 0)
    while (position-- > 0) place = next(place);
  goTo(place);
}

runtime::Bytes PositionedRecordset::bookmarkOf(std::int64_t place) const {
  const Mark mark{family_, place};
  runtime::Bytes bytes(sizeof mark);
  std::memcpy(bytes.data(), &mark, sizeof mark);
  return bytes;
}

runtime::Bytes PositionedRecordset::Bookmark() const {
  return bookmarkOf(requireRecord());
}

runtime::Bytes PositionedRecordset::LastModified() const {
  requireOpen();
  if (lastModified_ < 0) noCurrentRecord();
  return bookmarkOf(lastModified_);
}

void PositionedRecordset::setBookmark(const runtime::Bytes& bookmark) {
  requireOpen();
  Mark mark{};
  if (bookmark.size() != sizeof mark) invalidBookmark();
  std::memcpy(&mark, bookmark.data(), sizeof mark);
  if (mark.family != family_ || mark.place < 0 || mark.place >= count()) invalidBookmark();
  if (!filled(mark.place)) recordDeleted();
  goTo(mark.place);
}

RecordSearch& PositionedRecordset::search() {
  // A rollback may have taken its view away.
  auto& image = session_->image();
  if (!search_.get(image.generation())) {
    search_.reset();  // its view goes before the next one comes
    search_.set(image.generation(), makeSearch());
  }
  auto& search = **search_.last();
  extendSearch(search);
  search_.renew(image.generation());
  return search;
}

void PositionedRecordset::find(const std::string& criteria, std::int64_t from, bool forward) {
  requireOpen();
  const auto found = search().find(criteria, from, forward, [this](auto place) { return filled(place); });
  noMatch_ = !found;
  if (found) goTo(*found);
}

std::vector<std::int64_t> PositionedRecordset::filteredBy(const RowFilter& rowFilter) {
  return search().all(rowFilter.filter, rowFilter.sort);
}

std::vector<PositionedRecordset::RowFilter> PositionedRecordset::rowFilters() const {
  auto result = rowFilters_;
  if (!filter_.empty() || !sort_.empty()) result.push_back({filter_, sort_});
  return result;
}

}  // namespace jet::dao
