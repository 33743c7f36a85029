#pragma once

#include "jet/dao/recordset_base.h"

namespace jet::dao {

/// A recordset whose records have places 0..n-1 that can be gone to directly.
class PositionedRecordset : public RecordsetBase {
 public:
  using RecordsetBase::RecordsetBase;

  bool BOF() const override { return requireOpen(), position_ < 0 || count() == 0; }
  bool atEnd() const override { return requireOpen(), position_ >= count(); }
  void MoveFirst() override;
  void MoveNext() override;
  void MovePrevious() override;
  void MoveLast() override;
  std::int64_t RecordCount() const override { return requireOpen(), count(); }

 protected:
  virtual std::int64_t count() const = 0;
  /// The cursor has come to another record, or to none.
  virtual void moved() = 0;
  /// Stands at the first record of a newly filled recordset.
  void restart();
  /// True on a record that is there.
  bool onRecord() const { return !gone_ && position_ >= 0 && position_ < count(); }

  std::int64_t position_ = 0;
  /// The current record was deleted: position_ already names the one behind it.
  bool gone_ = false;

 private:
  void moveTo(std::int64_t position);
};

/// Rows kept as they were when the query ran.
class SnapshotRecordset : public PositionedRecordset {
 public:
  SnapshotRecordset(std::shared_ptr<Session> session, sql::RowStatement plan, Answers answers);
  ~SnapshotRecordset() override;
  runtime::Variant fieldValue(std::size_t index) const override;
  void Requery() override;
  void Close() override;

 private:
  std::int64_t count() const override { return count_; }
  void moved() override;
  void fill();
  void drop();

  sql::RowStatement plan_;
  Answers answers_;
  std::string table_;  // of the image, holds the rows
  image::Statement fetch_;
  std::int64_t count_ = 0;
};

/// Rows of one table by their keys: each is read when the cursor comes to it, and can be changed.
class KeysetRecordset : public PositionedRecordset {
 public:
  /// `plan` was compiled with row keys and yields columns of one table only.
  KeysetRecordset(std::shared_ptr<Session> session, sql::RowStatement plan, Answers answers, bool readOnly);
  runtime::Variant fieldValue(std::size_t index) const override;
  void setFieldValue(std::size_t index, const runtime::Variant& value) override;
  void Edit() override;
  void AddNew() override;
  void Update() override;
  void CancelUpdate() override;
  void Delete() override;
  void Requery() override;
  void Close() override;

 private:
  enum class Mode { Browse, Edit, Add };

  std::int64_t count() const override { return static_cast<std::int64_t>(keys_.size()); }
  void moved() override;
  void fill();
  /// Reads the current record; error 3167 if it was deleted, 3021 if there is none.
  void fetch() const;
  void requireChangeable() const;
  /// Writes the edits of the fields `given` into the current record, or as a new one.
  void store(const std::vector<std::size_t>& given);
  std::string updateSql(const std::vector<std::size_t>& given) const;
  std::string insertSql(const std::vector<std::size_t>& given) const;
  std::uint32_t page() const { return plan_.tables[0].page; }
  const file::Column& column(std::size_t field) const;

  sql::RowStatement plan_;
  Answers answers_;
  bool readOnly_;
  std::vector<std::uint16_t> columns_;  // Column::number of each field
  std::vector<std::int64_t> keys_;
  mutable image::Statement fetch_;
  mutable bool fetched_ = false;
  Mode mode_ = Mode::Browse;
  Answers edits_;  // by field
};

/// True if `plan` yields plain columns of one table, each row by its key.
bool hasKeyset(const sql::RowStatement& plan);

}  // namespace jet::dao
