#pragma once

#include <memory>
#include <string>
#include <vector>

#include "jet/dao/recordset.h"
#include "jet/dao/session.h"

namespace jet::dao {

/// What a recordset tells of one of its fields.
struct FieldInfo {
  std::string name;
  sql::Type type = sql::Type::Variant;
  int size = 0, attributes = 0;
};

/// Fields and state that all recordsets share; the cursor is the derived classes' business. Those that can't
/// be changed refuse every edit.
class RecordsetBase : public Recordset,
                      public FieldOwner,
                      public std::enable_shared_from_this<RecordsetBase> {
 public:
  RecordsetBase(std::shared_ptr<Session> session, std::vector<FieldInfo> fields)
      : session_(std::move(session)), fields_(std::move(fields)) {}

  std::size_t fieldCount() const override { return fields_.size(); }
  Field Fields(std::size_t index) override;
  Field Fields(std::string_view name) override;

  std::string fieldName(std::size_t index) const override { return fields_[index].name; }
  void renameField(std::size_t index, const std::string& name) override;
  int fieldType(std::size_t index) const override;
  int fieldSize(std::size_t index) const override { return fields_[index].size; }
  int fieldAttributes(std::size_t index) const override { return fields_[index].attributes; }
  void setFieldValue(std::size_t index, const runtime::Variant& value) override;

  void Edit() override { refuseChange(); }
  void AddNew() override { refuseChange(); }
  void Update() override { refuseChange(); }
  void CancelUpdate() override { refuseChange(); }
  void Delete() override { refuseChange(); }

 protected:
  /// Error 3420 once the recordset or its database is closed.
  void requireOpen() const;
  [[noreturn]] static void noCurrentRecord();
  [[noreturn]] static void invalidOperation();
  /// Error 3027.
  [[noreturn]] void refuseChange() const;

  std::shared_ptr<Session> session_;
  std::vector<FieldInfo> fields_;
  bool open_ = true;
};

/// Fields of a query's result.
std::vector<FieldInfo> resultFields(const sql::RowStatement& plan, const sql::Schema& schema);
/// Fields of a table in display order; `order` receives their positions in the definition.
std::vector<FieldInfo> tableFields(const file::TableDefinition& table, std::vector<std::size_t>& order);

}  // namespace jet::dao
