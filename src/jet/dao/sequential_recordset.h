#pragma once

#include <optional>

#include "jet/dao/recordset_base.h"
#include "jet/file/table_reader.h"

namespace jet::dao {

/// A recordset that is read from the first record onward. Going back is error 3219.
class SequentialRecordset : public RecordsetBase {
 public:
  using RecordsetBase::RecordsetBase;

  bool BOF() const override { return requireOpen(), visited_ == 0; }
  bool atEnd() const override { return requireOpen(), !onRecord_; }
  void MoveFirst() override;
  void MoveNext() override;
  void MovePrevious() override { invalidOperation(); }
  void MoveLast() override;
  std::int64_t RecordCount() const override { return requireOpen(), visited_; }
  void Requery() override;

 protected:
  /// Goes to the next record; false behind the last.
  virtual bool step() = 0;
  virtual void rewind() = 0;
  void start();

  bool onRecord_ = false;
  std::int64_t visited_ = 0;
};

/// The result of a query as the image yields it.
class ForwardRecordset : public SequentialRecordset {
 public:
  ForwardRecordset(std::shared_ptr<Session> session, sql::RowStatement plan, const Answers& answers);
  runtime::Variant fieldValue(std::size_t index) const override;
  void Close() override;

 private:
  bool step() override { return rows_.statement.step(); }
  void rewind() override { rows_.statement.reset(); }

  PreparedRows rows_;
};

/// A table of a read-only database straight from the file, never loaded.
class FileRecordset : public SequentialRecordset {
 public:
  FileRecordset(std::shared_ptr<Session> session, std::uint32_t page);
  runtime::Variant fieldValue(std::size_t index) const override;
  void MovePrevious() override;
  void MoveLast() override;
  std::int64_t RecordCount() const override { return requireOpen(), table_->rows; }
  void Close() override;

 private:
  bool step() override { return reader_->next(row_); }
  void rewind() override;

  std::shared_ptr<const file::TableDefinition> table_;
  std::vector<std::size_t> order_;  // positions in the definition, by field
  std::optional<file::TableReader> reader_;
  file::Row row_;
};

}  // namespace jet::dao
