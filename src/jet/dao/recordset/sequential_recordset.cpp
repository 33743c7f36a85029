#include "jet/dao/recordset/sequential_recordset.h"

#include "jet/dao/values.h"

namespace jet::dao {

void SequentialRecordset::start() {
  visited_ = 0;
  onRecord_ = step();
  if (onRecord_) visited_ = 1;
}

void SequentialRecordset::requireRecord() const {
  requireOpen();
  if (!onRecord_) noCurrentRecord();
}

void SequentialRecordset::MoveNext() {
  requireRecord();
  onRecord_ = step();
  if (onRecord_) ++visited_;
}

void SequentialRecordset::Move(std::int64_t rows) {
  requireOpen();
  if (rows < 0) invalidOperation();
  stepRows(rows);
}

void SequentialRecordset::Requery() {
  requireOpen();
  rewind();
  start();
}

ForwardRecordset::ForwardRecordset(std::shared_ptr<Session> session, Origin origin, sql::RowStatement plan,
                                   Answers answers)
    : SequentialRecordset(session, std::move(origin), resultFields(plan, session->runner())),
      plan_(std::move(plan)),
      answers_(std::move(answers)) {
  rewind();
  start();
}

void ForwardRecordset::rewind() {
  rows_ = {};
  rows_ = session_->runner().prepare(plan_, answers_);
}

runtime::Variant ForwardRecordset::fieldValue(std::size_t index) const {
  requireRecord();
  return fromImage(rows_, static_cast<int>(index), fields_[index].type);
}

void ForwardRecordset::Close() {
  rows_ = {};
  open_ = false;
}

FileRecordset::FileRecordset(std::shared_ptr<Session> session, Origin origin, std::uint32_t page)
    : SequentialRecordset(session, std::move(origin), tableFields(session->image().definition(page))),
      page_(page) {
  rewind();
  start();
}

void FileRecordset::rewind() {
  rows_.emplace(session_->image(), page_);
}

runtime::Variant FileRecordset::fieldValue(std::size_t index) const {
  requireRecord();
  return rows_->value(index);
}

void FileRecordset::Close() {
  rows_.reset();
  open_ = false;
}

}  // namespace jet::dao
