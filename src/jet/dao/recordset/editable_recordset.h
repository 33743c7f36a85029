#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "jet/dao/recordset/recordset_base.h"
#include "jet/dao/recordset/row_editor.h"
#include "jet/dao/recordset/row_reader.h"

namespace jet::dao {

/// What a table and a dynaset have in common: a current record that is read when it is asked for, and changed
/// in the tables that its fields come from. `Base` walks the records.
template <typename Base>
class EditableRecordset : public Base {
 public:
  runtime::Variant fieldValue(std::size_t index) const override {
    this->requireOpen();
    if (const auto* value = editor_.value(index)) return *value;
    if (editor_.mode() == dbEditAdd) return runtime::Null{};
    return storedValue(index);
  }
  void setFieldValue(std::size_t index, const runtime::Variant& value) override {
    this->requireOpen();
    editor_.set(index, value);
  }
  bool Updatable() const override { return this->requireOpen(), !readOnly_; }
  EditModeType EditMode() const override { return this->requireOpen(), editor_.mode(); }
  void Edit() override {
    requireChangeable();
    fetch();
    editor_.edit();
  }
  void AddNew() override {
    requireChangeable();
    editor_.add();
  }
  void CancelUpdate() override {
    requireChangeable();
    editor_.cancel();
  }
  void Update() override {
    requireChangeable();
    editor_.requireEditing();
    leaveRecord();
    if (editor_.mode() == dbEditAdd)
      insertRecord();
    else
      changeRecord();
  }

 protected:
  /// `pages`: the tables, by part.
  EditableRecordset(std::shared_ptr<Session> session, typename Base::Origin origin,
                    std::vector<FieldInfo> fields, const std::vector<std::uint32_t>& pages, bool readOnly)
      : Base(session, std::move(origin), std::move(fields)),
        readOnly_(readOnly || session->readOnly()),
        reader_(session, pages, this->fields_),
        editor_(session, pages, this->fields_) {}

  /// Where the current record is: its place or its row. Error 3167 if it was deleted, 3021 if there is none.
  virtual std::int64_t currentRecord() const = 0;
  /// False if the record is gone.
  virtual bool readRecord(std::int64_t record) const = 0;
  /// The current record's value.
  virtual runtime::Variant storedValue(std::size_t index) const {
    fetch();
    return reader_.value(index);
  }
  virtual void insertRecord() = 0;
  virtual void changeRecord() = 0;

  /// Reads the current record where that is not done; errors as currentRecord.
  void fetch() const {
    const auto record = currentRecord();
    if (!fetched_ && !readRecord(record)) this->recordDeleted();
    fetched_ = true;
  }
  /// Lets the record's row go, so that its table can be changed; it is read again.
  void leaveRecord() const {
    fetched_ = false;
    reader_.release();
  }
  /// The cursor goes elsewhere: what was not updated is lost.
  void leaveEdited() {
    leaveRecord();
    if (editor_.mode() != dbEditNone) editor_.cancel();
  }
  void requireChangeable() const {
    this->requireOpen();
    if (readOnly_) this->readOnlyRecordset();
  }

  const bool readOnly_;
  mutable RowReader reader_;
  mutable bool fetched_ = false;
  RowEditor editor_;
};

}  // namespace jet::dao
