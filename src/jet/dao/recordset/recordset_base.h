#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "jet/dao/recordset.h"
#include "jet/dao/session/session.h"

namespace jet::dao {

/// What a recordset tells of one of its fields.
struct FieldInfo {
  std::string name;
  sql::Type type = sql::Type::Variant;
  int size = 0, attributes = 0;
  std::string sourceTable, sourceField;  // empty for an expression
  std::optional<std::size_t> part;       // which of the recordset's tables it is a column of
  std::uint16_t column = 0;              // Column::number there
};

/// Fields and state that all recordsets share; the cursor is the derived classes' business. What a kind
/// doesn't offer is refused here: it overrides what it does.
class RecordsetBase : public Recordset,
                      public FieldOwner,
                      public std::enable_shared_from_this<RecordsetBase> {
 public:
  /// Of what it was opened with: Name and Type.
  struct Origin {
    std::string name;
    RecordsetType type = dbOpenSnapshot;
  };
  RecordsetBase(std::shared_ptr<Session> session, Origin origin, std::vector<FieldInfo> fields)
      : session_(std::move(session)), origin_(std::move(origin)), fields_(std::move(fields)) {}

  const std::string& Name() const override { return origin_.name; }
  RecordsetType Type() const override { return origin_.type; }

  void MoveFirst() override { unsupported(); }
  void MovePrevious() override { unsupported(); }
  void MoveLast() override { unsupported(); }
  std::int64_t AbsolutePosition() const override { unsupported(); }
  void setAbsolutePosition(std::int64_t) override { unsupported(); }
  bool Bookmarkable() const override { return false; }
  runtime::Bytes Bookmark() const override { unsupported(); }
  void setBookmark(const runtime::Bytes&) override { unsupported(); }
  runtime::Bytes LastModified() const override { unsupported(); }
  void FindFirst(const std::string&) override { unsupported(); }
  void FindNext(const std::string&) override { unsupported(); }
  void FindPrevious(const std::string&) override { unsupported(); }
  void FindLast(const std::string&) override { unsupported(); }
  bool NoMatch() const override { return noMatch_; }
  std::string Index() const override { unsupported(); }
  void setIndex(const std::string&) override { unsupported(); }
  void Seek(std::string_view, std::span<const runtime::Variant>) override { unsupported(); }
  std::string Filter() const override { unsupported(); }
  void setFilter(const std::string&) override { unsupported(); }
  std::string Sort() const override { unsupported(); }
  void setSort(const std::string&) override { unsupported(); }
  RecordsetPtr OpenRecordset() override { unsupported(); }
  RecordsetPtr Clone() override { unsupported(); }

  FieldCollection Fields() override;
  Field Fields(std::size_t index) override;
  Field Fields(std::string_view name) override;
  runtime::Variant fieldItem(std::size_t index, FieldItem item) const override;
  void setFieldItem(std::size_t index, FieldItem item, const runtime::Variant& value) override;
  void setFieldValue(std::size_t index, const runtime::Variant& value) override;
  PropertyCollection fieldProperties(std::size_t index) override;

  bool Updatable() const override { return false; }
  EditModeType EditMode() const override { return dbEditNone; }
  void Edit() override { unsupported(); }
  void AddNew() override { unsupported(); }
  void Update() override { unsupported(); }
  void CancelUpdate() override { unsupported(); }
  void Delete() override { unsupported(); }

 protected:
  /// Error 3420 once the recordset or its database is closed.
  void requireOpen() const;
  /// Moves by so many records, past the last or the first one at most once.
  void stepRows(std::int64_t rows);
  [[noreturn]] static void noCurrentRecord();    // 3021
  [[noreturn]] static void recordDeleted();      // 3167
  [[noreturn]] void invalidOperation() const;    // 3219
  [[noreturn]] static void invalidBookmark();    // 3159
  [[noreturn]] void unsupported() const;         // 3251
  [[noreturn]] static void readOnlyRecordset();  // 3027

  std::shared_ptr<Session> session_;
  Origin origin_;
  std::vector<FieldInfo> fields_;
  bool open_ = true;
  bool noMatch_ = false;

 private:
  std::optional<std::size_t> findField(std::string_view name) const;
  friend class RecordsetFields;
};

/// Fields of a query's result; those of the plan's row keys belong to a part.
std::vector<FieldInfo> resultFields(const sql::RowStatement& plan, const sql::Schema& schema);
/// Fields of a table in display order.
std::vector<FieldInfo> tableFields(const file::TableDefinition& table);

}  // namespace jet::dao
