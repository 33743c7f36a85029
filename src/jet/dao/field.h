#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include "runtime/variant.h"

namespace jet::dao {

/// What a Field stands on: a column of a recordset, or of a table's definition.
class FieldOwner {
 public:
  virtual ~FieldOwner() = default;
  virtual std::string fieldName(std::size_t index) const = 0;
  virtual void renameField(std::size_t index, const std::string& name) = 0;
  virtual int fieldType(std::size_t index) const = 0;  // DataType
  /// Text: characters; binary: bytes; otherwise bytes of the type.
  virtual int fieldSize(std::size_t index) const = 0;
  virtual int fieldAttributes(std::size_t index) const = 0;  // FieldAttribute bits
  virtual runtime::Variant fieldValue(std::size_t index) const = 0;
  virtual void setFieldValue(std::size_t index, const runtime::Variant& value) = 0;
};

/// One field of a Recordset or a TableDef. Valid as long as its owner is open.
class Field {
 public:
  Field(std::shared_ptr<FieldOwner> owner, std::size_t index) : owner_(std::move(owner)), index_(index) {}

  std::string Name() const { return owner_->fieldName(index_); }
  /// Renames the column of a TableDef. Error 3191 if the table has the name, 3219 in a Recordset.
  void setName(const std::string& name) { owner_->renameField(index_, name); }
  int Type() const { return owner_->fieldType(index_); }
  int Size() const { return owner_->fieldSize(index_); }
  int Attributes() const { return owner_->fieldAttributes(index_); }
  /// Value in the current record. Error 3021 without one, 3219 in a TableDef.
  runtime::Variant Value() const { return owner_->fieldValue(index_); }
  /// Sets it in the record that is edited or added. Error 3020 without Edit or AddNew, 3421 if it doesn't
  /// convert.
  void setValue(const runtime::Variant& value) { owner_->setFieldValue(index_, value); }

 private:
  std::shared_ptr<FieldOwner> owner_;
  std::size_t index_;
};

}  // namespace jet::dao
