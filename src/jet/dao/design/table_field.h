#pragma once

#include <memory>
#include <optional>
#include <string>

#include "jet/dao/field.h"
#include "jet/dao/session/session.h"
#include "jet/file/properties.h"

namespace jet::dao {

/// A field of a TableDef: a design of its own until it is appended, then the column of the table.
class TableField : public FieldOwner, public std::enable_shared_from_this<TableField> {
 public:
  explicit TableField(std::shared_ptr<Session> session) : session_(std::move(session)) {}
  /// Column `number` of the table at `page`.
  TableField(std::shared_ptr<Session> session, std::uint32_t page, std::uint16_t number)
      : session_(std::move(session)), stored_(Stored{page, number}) {}

  runtime::Variant fieldItem(std::size_t, FieldItem item) const override;
  void setFieldItem(std::size_t, FieldItem item, const runtime::Variant& value) override;
  runtime::Variant fieldValue(std::size_t) const override;
  void setFieldValue(std::size_t, const runtime::Variant&) override;
  PropertyCollection fieldProperties(std::size_t) override;

  /// The column that the design makes. Error 3259 for a type or size that no column has.
  file::Column column() const;
  /// The properties that go with it.
  void writeProperties(file::PropertyBlock& properties) const;
  const std::string& name() const { return draft_.name; }
  /// Nothing where it wasn't told.
  std::optional<int> ordinalPosition() const { return draft_.ordinalPosition; }
  /// From now on it is this column.
  void attach(std::uint32_t page, std::uint16_t number) { stored_ = Stored{page, number}; }

 private:
  struct Draft {
    std::string name, defaultValue, validationRule, validationText;
    int type = 0, size = 0, attributes = 0;
    int precision = 18, scale = 0;  // of a Decimal
    std::optional<int> ordinalPosition;
    bool required = false, allowZeroLength = false;
  };
  struct Stored {
    std::uint32_t page;
    std::uint16_t number;
  };
  runtime::Variant draftItem(FieldItem item) const;
  void setDraftItem(FieldItem item, const runtime::Variant& value);
  void setStoredItem(FieldItem item, const runtime::Variant& value);
  const file::Column& storedColumn() const;

  std::shared_ptr<Session> session_;
  Draft draft_;
  std::optional<Stored> stored_;
};

/// The same items and properties for a field of a recordset, by its table and column; empty or false where it
/// has none.
runtime::Variant sourceFieldItem(const std::shared_ptr<Session>& session, const std::string& table,
                                 const std::string& column, FieldItem item);
PropertyCollection sourceFieldProperties(const std::shared_ptr<Session>& session, const std::string& table,
                                         const std::string& column);

}  // namespace jet::dao
