#include "jet/dao/sequential_recordset.h"

#include "jet/dao/values.h"
#include "jet/file/values.h"

namespace jet::dao {

void SequentialRecordset::start() {
  visited_ = 0;
  onRecord_ = step();
  if (onRecord_) visited_ = 1;
}

void SequentialRecordset::MoveFirst() {
  requireOpen();
  if (visited_ == 0) noCurrentRecord();
  if (visited_ == 1 && onRecord_) return;
  rewind();
  start();
}

void SequentialRecordset::MoveNext() {
  requireOpen();
  if (!onRecord_) noCurrentRecord();
  onRecord_ = step();
  if (onRecord_) ++visited_;
}

void SequentialRecordset::MoveLast() {
  invalidOperation();
}

void SequentialRecordset::Requery() {
  requireOpen();
  rewind();
  start();
}

ForwardRecordset::ForwardRecordset(std::shared_ptr<Session> session, sql::RowStatement plan,
                                   const Answers& answers)
    : SequentialRecordset(session, resultFields(plan, session->runner())),
      rows_(session->runner().prepare(std::move(plan), answers)) {
  start();
}

runtime::Variant ForwardRecordset::fieldValue(std::size_t index) const {
  requireOpen();
  if (!onRecord_) noCurrentRecord();
  return fromImage(rows_.statement, static_cast<int>(index), fields_[index].type);
}

void ForwardRecordset::Close() {
  rows_.statement = {};
  open_ = false;
}

FileRecordset::FileRecordset(std::shared_ptr<Session> session, std::uint32_t page)
    : SequentialRecordset(session, {}), table_(session->image().sharedDefinition(page)) {
  fields_ = tableFields(*table_, order_);
  rewind();
  start();
}

void FileRecordset::rewind() {
  reader_.emplace(session_->image().source(), *table_);
}

runtime::Variant FileRecordset::fieldValue(std::size_t index) const {
  requireOpen();
  if (!onRecord_) noCurrentRecord();
  const auto& header = session_->image().source().header();
  const auto position = order_[index];
  return file::toVariant(*header.format, header.codePage, table_->columns[position], row_[position]);
}

// Going back is rare here and reads the table again from its start.
void FileRecordset::MovePrevious() {
  requireOpen();
  if (visited_ == 0) noCurrentRecord();
  const auto wanted = onRecord_ ? visited_ - 1 : visited_;
  rewind();
  visited_ = 0;
  onRecord_ = false;
  while (visited_ < wanted && (onRecord_ = step())) ++visited_;
}

void FileRecordset::MoveLast() {
  requireOpen();
  if (visited_ == 0) noCurrentRecord();
  while (onRecord_) MoveNext();
  MovePrevious();
}

void FileRecordset::Close() {
  reader_.reset();
  open_ = false;
}

}  // namespace jet::dao
