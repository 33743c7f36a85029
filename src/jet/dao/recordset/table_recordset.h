#pragma once

#include <optional>
#include <string>

#include "jet/dao/recordset/editable_recordset.h"
#include "jet/dao/recordset/file_rows.h"
#include "jet/dao/recordset/table_cursor.h"

namespace jet::dao {

/// A table itself. While a read-only one is only read onward, its rows come straight from the file.
class TableRecordset : public EditableRecordset<RecordsetBase> {
 public:
  TableRecordset(std::shared_ptr<Session> session, Origin origin, std::uint32_t page, bool readOnly);

  bool BOF() const override { return requireOpen(), place_ == Place::Before || place_ == Place::None; }
  bool atEnd() const override { return requireOpen(), place_ == Place::Behind || place_ == Place::None; }
  void MoveFirst() override;
  void MoveNext() override;
  void MovePrevious() override;
  void MoveLast() override;
  void Move(std::int64_t rows) override;
  std::int64_t RecordCount() const override;
  bool Bookmarkable() const override { return requireOpen(), true; }
  runtime::Bytes Bookmark() const override;
  void setBookmark(const runtime::Bytes& bookmark) override;
  runtime::Bytes LastModified() const override;
  std::string Index() const override { return requireOpen(), index_; }
  void setIndex(const std::string& name) override;
  void Seek(std::string_view comparison, std::span<const runtime::Variant> keys) override;
  using Recordset::Seek;
  RecordsetPtr OpenRecordset() override;
  RecordsetPtr Clone() override;

  void Delete() override;
  void Requery() override;
  void Close() override;

 private:
  enum class Place { None, Before, On, Deleted, Behind };

  /// Goes to the row, or to `otherwise`.
  void goTo(std::optional<std::int64_t> rowid, Place otherwise);
  std::int64_t requireRecord() const;
  std::int64_t currentRecord() const override { return requireRecord(); }
  bool readRecord(std::int64_t record) const override { return reader_.read(&record); }
  runtime::Variant storedValue(std::size_t index) const override;
  void insertRecord() override { lastModified_ = editor_.insert().second; }
  void changeRecord() override;
  /// From the file's rows to the image's.
  void leaveFile();
  void start();

  std::uint32_t page_;
  std::optional<FileRows> file_;
  TableCursor cursor_;
  std::string index_;
  Place place_ = Place::None;
  std::int64_t rowid_ = 0;  // on a record, or on a deleted one
  std::optional<std::int64_t> lastModified_;
  mutable std::int64_t count_ = 0;            // RecordCount,
  mutable std::int64_t countedChanges_ = -1;  // when the image had seen so many changes
};

}  // namespace jet::dao
