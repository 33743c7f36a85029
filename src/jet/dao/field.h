#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include "jet/dao/collection.h"
#include "runtime/variant.h"

namespace jet::dao {

class Property;
using PropertyCollection = Collection<Property>;

/// What a field's design says, by name; see the accessors of Field.
enum class FieldItem {
  Name,
  Type,
  Size,
  Attributes,
  Required,
  AllowZeroLength,
  DefaultValue,
  ValidationRule,
  ValidationText,
  OrdinalPosition,
  ForeignName,
  SourceTable,
  SourceField,
  Precision,
  Scale
};

/// What Fields stand on: the columns of a recordset, the column of a table, a part of an index or relation.
class FieldOwner {
 public:
  virtual ~FieldOwner() = default;
  /// Error 3219 for an item that this kind of field doesn't have or that can't be changed.
  virtual runtime::Variant fieldItem(std::size_t index, FieldItem item) const = 0;
  virtual void setFieldItem(std::size_t index, FieldItem item, const runtime::Variant& value) = 0;
  virtual runtime::Variant fieldValue(std::size_t index) const = 0;
  virtual void setFieldValue(std::size_t index, const runtime::Variant& value) = 0;
  virtual PropertyCollection fieldProperties(std::size_t index) = 0;
};

/// One field of a Recordset, a TableDef, an Index or a Relation. Valid as long as its owner is open.
/// A setter fails with 3219 where the field can't be changed: everything of a field that is not appended yet
/// can; of a table's stored field Name, Required, AllowZeroLength, DefaultValue, ValidationRule,
/// ValidationText and OrdinalPosition; of a recordset's nothing.
class Field {
 public:
  Field(std::shared_ptr<FieldOwner> owner, std::size_t index) : owner_(std::move(owner)), index_(index) {}

  std::string Name() const { return text(FieldItem::Name); }
  /// Error 3191 if the table has the name.
  void setName(const std::string& name) const { set(FieldItem::Name, name); }
  /// DataType. A text gets 255 characters where no size is told.
  int Type() const { return number(FieldItem::Type); }
  void setType(int type) const { set(FieldItem::Type, type); }
  /// Text: characters; binary: bytes; otherwise bytes of the type. Ignored for types that have their own.
  int Size() const { return number(FieldItem::Size); }
  void setSize(int size) const { set(FieldItem::Size, size); }
  /// FieldAttribute bits. In an index dbDescending.
  int Attributes() const { return number(FieldItem::Attributes); }
  void setAttributes(int attributes) const { set(FieldItem::Attributes, attributes); }
  bool Required() const { return item(FieldItem::Required).toBoolean(); }
  void setRequired(bool required) const { set(FieldItem::Required, required); }
  /// Text and Memo.
  bool AllowZeroLength() const { return item(FieldItem::AllowZeroLength).toBoolean(); }
  void setAllowZeroLength(bool allow) const { set(FieldItem::AllowZeroLength, allow); }
  /// An expression; empty for none.
  std::string DefaultValue() const { return text(FieldItem::DefaultValue); }
  void setDefaultValue(const std::string& expression) const { set(FieldItem::DefaultValue, expression); }
  /// A condition on the value, and what the error says when it fails.
  std::string ValidationRule() const { return text(FieldItem::ValidationRule); }
  void setValidationRule(const std::string& condition) const { set(FieldItem::ValidationRule, condition); }
  std::string ValidationText() const { return text(FieldItem::ValidationText); }
  void setValidationText(const std::string& message) const { set(FieldItem::ValidationText, message); }
  int OrdinalPosition() const { return number(FieldItem::OrdinalPosition); }
  void setOrdinalPosition(int position) const { set(FieldItem::OrdinalPosition, position); }
  /// Of a relation: the field of the foreign table.
  std::string ForeignName() const { return text(FieldItem::ForeignName); }
  void setForeignName(const std::string& name) const { set(FieldItem::ForeignName, name); }
  /// Of a recordset: the table and column that it shows; empty for an expression.
  std::string SourceTable() const { return text(FieldItem::SourceTable); }
  std::string SourceField() const { return text(FieldItem::SourceField); }

  /// Digits of a dbDecimal, in all and behind the point; 0 for other types. A new one has 18 and 0; Append
  /// gives error 3259 beyond 28 and where more stand behind the point than in all.
  int precision() const { return number(FieldItem::Precision); }
  void setPrecision(int digits) const { set(FieldItem::Precision, digits); }
  int scale() const { return number(FieldItem::Scale); }
  void setScale(int digits) const { set(FieldItem::Scale, digits); }

  /// Value in the current record. Error 3021 without one, 3219 in a TableDef.
  runtime::Variant Value() const { return owner_->fieldValue(index_); }
  /// Sets it in the record that is edited or added. Error 3020 without Edit or AddNew, 3421 if it doesn't
  /// convert, 3163 for a text that is too long, 3164 for a field that can't be changed.
  void setValue(const runtime::Variant& value) const { owner_->setFieldValue(index_, value); }

  PropertyCollection Properties() const;
  /// A property that isn't the field's until it is appended to Properties.
  Property CreateProperty(const std::string& name, int type, const runtime::Variant& value) const;

  const std::shared_ptr<FieldOwner>& owner() const { return owner_; }

 private:
  runtime::Variant item(FieldItem which) const { return owner_->fieldItem(index_, which); }
  std::string text(FieldItem which) const { return item(which).toText(); }
  int number(FieldItem which) const { return item(which).toLong(); }
  void set(FieldItem which, const runtime::Variant& value) const {
    owner_->setFieldItem(index_, which, value);
  }

  std::shared_ptr<FieldOwner> owner_;
  std::size_t index_;
};
using FieldCollection = Collection<Field>;

}  // namespace jet::dao
