#pragma once

#include <optional>

#include "jet/dao/recordset/file_rows.h"
#include "jet/dao/recordset/recordset_base.h"

namespace jet::dao {

/// A recordset that is read once, from the first record onward. Going back is error 3219.
class SequentialRecordset : public RecordsetBase {
 public:
  using RecordsetBase::RecordsetBase;

  bool BOF() const override { return requireOpen(), visited_ == 0; }
  bool atEnd() const override { return requireOpen(), !onRecord_; }
  void MoveFirst() override { invalidOperation(); }
  void MoveNext() override;
  void MovePrevious() override { invalidOperation(); }
  void MoveLast() override { invalidOperation(); }
  void Move(std::int64_t rows) override;
  std::int64_t RecordCount() const override { return requireOpen(), visited_; }
  void Requery() override;

 protected:
  /// Goes to the next record; false behind the last.
  virtual bool step() = 0;
  virtual void rewind() = 0;
  void start();
  void requireRecord() const;

 private:
  bool onRecord_ = false;
  std::int64_t visited_ = 0;
};

/// The result of a query as the image yields it.
class ForwardRecordset : public SequentialRecordset {
 public:
  ForwardRecordset(std::shared_ptr<Session> session, Origin origin, sql::RowStatement plan, Answers answers);
  runtime::Variant fieldValue(std::size_t index) const override;
  void Close() override;

 private:
  bool step() override { return rows_.step(); }
  void rewind() override;

  sql::RowStatement plan_;
  Answers answers_;
  image::Statement rows_;
};

/// A table of a read-only database straight from the file, never loaded.
class FileRecordset : public SequentialRecordset {
 public:
  FileRecordset(std::shared_ptr<Session> session, Origin origin, std::uint32_t page);
  runtime::Variant fieldValue(std::size_t index) const override;
  void Close() override;

 private:
  bool step() override { return rows_->next(); }
  void rewind() override;

  std::uint32_t page_;
  std::optional<FileRows> rows_;
};

}  // namespace jet::dao
