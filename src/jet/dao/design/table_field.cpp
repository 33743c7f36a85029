#include "jet/dao/design/table_field.h"

#include "jet/dao/constants.h"
#include "jet/dao/design/object_properties.h"
#include "jet/dao/values.h"
#include "jet/file/errors.h"
#include "jet/image/property_values.h"

namespace jet::dao {

namespace {

using file::ColumnType;

constexpr int MostDigits = 28;  // of a Decimal

[[noreturn]] void notForTableFields() {
  throw runtime::Error(InvalidOperation, source::Field, "Operazione non valida per un campo di tabella");
}

/// An item of a field that the table keeps as a property of the column.
struct KeptItem {
  FieldItem item;
  const char* name;
  ColumnType type;
};
constexpr KeptItem KeptItems[] = {
    {FieldItem::Required, "Required", ColumnType::Boolean},
    {FieldItem::AllowZeroLength, "AllowZeroLength", ColumnType::Boolean},
    {FieldItem::DefaultValue, "DefaultValue", ColumnType::Memo},
    {FieldItem::ValidationRule, "ValidationRule", ColumnType::Memo},
    {FieldItem::ValidationText, "ValidationText", ColumnType::Text},
};

const KeptItem* keptItem(FieldItem item) {
  for (const auto& kept : KeptItems)
    if (kept.item == item) return &kept;
  return nullptr;
}

ColumnType columnType(int type, const std::string& name) {
  if (type == dbDecimal) return ColumnType::Numeric;
  constexpr int Known[] = {dbBoolean, dbByte,   dbInteger, dbLong, dbCurrency, dbSingle,    dbDouble,
                           dbDate,    dbBinary, dbText,    dbMemo, dbGUID,     dbLongBinary};
  for (const int known : Known)
    if (type == known) return static_cast<ColumnType>(type);
  throw runtime::Error(InvalidDataType, source::Field, "Tipo di dati non valido per il campo " + name);
}

runtime::Variant emptyItem(FieldItem item) {
  const auto* kept = keptItem(item);
  return kept && kept->type == ColumnType::Boolean ? runtime::Variant(false) : runtime::Variant("");
}

}  // namespace

const file::Column& TableField::storedColumn() const {
  const auto& table = session_->image().definition(stored_->page);
  const auto position = table.findNumber(stored_->number);
  if (!position) throw errorOf(ObjectInvalid, source::Field, "il campo non esiste più");
  return table.columns[*position];
}

runtime::Variant TableField::fieldItem(std::size_t, FieldItem item) const {
  if (!stored_) return draftItem(item);
  const auto& column = storedColumn();
  if (const auto* kept = keptItem(item)) {
    const auto& properties = session_->image().properties(stored_->page);
    if (kept->type != ColumnType::Boolean) return image::textProperty(properties, column.name, kept->name);
    // A text column whose table doesn't say otherwise takes empty texts.
    const bool absent = item == FieldItem::AllowZeroLength && file::isText(column.type);
    return image::booleanProperty(properties, column.name, kept->name, absent);
  }
  switch (item) {
    case FieldItem::Name:
    case FieldItem::SourceField:
      return column.name;
    case FieldItem::SourceTable:
      return session_->image().definition(stored_->page).name;
    case FieldItem::Type:
      return dataType(column.type);
    case FieldItem::Size:
      return fieldSize(column);
    case FieldItem::Attributes:
      return fieldAttributes(column);
    case FieldItem::OrdinalPosition:
      return static_cast<std::int32_t>(column.position);
    case FieldItem::Precision:
      return static_cast<std::int32_t>(column.precision);
    case FieldItem::Scale:
      return static_cast<std::int32_t>(column.scale);
    default:
      notForTableFields();
  }
}

runtime::Variant TableField::draftItem(FieldItem item) const {
  switch (item) {
    case FieldItem::Name:
      return draft_.name;
    case FieldItem::Type:
      return draft_.type;
    case FieldItem::Size:
      return draft_.type == 0 ? draft_.size : fieldSize(column());
    case FieldItem::Attributes:
      return draft_.attributes;
    case FieldItem::Required:
      return draft_.required;
    case FieldItem::AllowZeroLength:
      return draft_.allowZeroLength;
    case FieldItem::DefaultValue:
      return draft_.defaultValue;
    case FieldItem::ValidationRule:
      return draft_.validationRule;
    case FieldItem::ValidationText:
      return draft_.validationText;
    case FieldItem::OrdinalPosition:
      return draft_.ordinalPosition.value_or(0);
    case FieldItem::Precision:
      return draft_.type == dbDecimal ? draft_.precision : 0;
    case FieldItem::Scale:
      return draft_.type == dbDecimal ? draft_.scale : 0;
    default:
      notForTableFields();
  }
}

void TableField::setFieldItem(std::size_t, FieldItem item, const runtime::Variant& value) {
  if (stored_)
    setStoredItem(item, value);
  else
    setDraftItem(item, value);
}

void TableField::setDraftItem(FieldItem item, const runtime::Variant& value) {
  switch (item) {
    case FieldItem::Name:
      draft_.name = value.toText();
      return;
    case FieldItem::Type:
      draft_.type = value.toLong();
      return;
    case FieldItem::Size:
      draft_.size = value.toLong();
      return;
    case FieldItem::Attributes:
      draft_.attributes = value.toLong();
      return;
    case FieldItem::Required:
      draft_.required = value.toBoolean();
      return;
    case FieldItem::AllowZeroLength:
      draft_.allowZeroLength = value.toBoolean();
      return;
    case FieldItem::DefaultValue:
      draft_.defaultValue = value.toText();
      return;
    case FieldItem::ValidationRule:
      draft_.validationRule = value.toText();
      return;
    case FieldItem::ValidationText:
      draft_.validationText = value.toText();
      return;
    case FieldItem::OrdinalPosition:
      draft_.ordinalPosition = value.toLong();
      return;
    case FieldItem::Precision:
      draft_.precision = value.toLong();
      return;
    case FieldItem::Scale:
      draft_.scale = value.toLong();
      return;
    default:
      notForTableFields();
  }
}

void TableField::setStoredItem(FieldItem item, const runtime::Variant& value) {
  auto& image = session_->image();
  const std::string name = storedColumn().name;
  if (item == FieldItem::Name) return image.renameColumn(stored_->page, name, value.toText());
  if (item == FieldItem::OrdinalPosition) return image.moveColumn(stored_->page, name, value.toLong());
  const auto* kept = keptItem(item);
  if (!kept) notForTableFields();
  if (kept->type != ColumnType::Boolean && value.toText().empty())
    image.removeProperty(stored_->page, name, kept->name);
  else
    image.setProperty(stored_->page, name, image::propertyItem(kept->name, kept->type, value));
}

file::Column TableField::column() const {
  const auto type = columnType(draft_.type, draft_.name);
  const int size = draft_.size == 0 && type == ColumnType::Text ? 255 : draft_.size;
  const bool sized = type == ColumnType::Text || type == ColumnType::Binary;
  if (sized && (size < 1 || size > 510 || (type == ColumnType::Text && size > 255)))
    throw runtime::Error(InvalidDataType, source::Field, "Dimensione non valida per il campo " + draft_.name);
  auto column = image::newColumn(draft_.name, type, static_cast<std::uint16_t>(sized ? size : 0),
                                 draft_.attributes & dbFixedField);
  if (type == ColumnType::Numeric) {
    if (draft_.precision < 1 || draft_.precision > MostDigits || draft_.scale < 0 ||
        draft_.scale > draft_.precision)
      throw runtime::Error(InvalidDataType, source::Field,
                           "Numero di cifre non valido per il campo " + draft_.name);
    column.precision = static_cast<std::uint8_t>(draft_.precision);
    column.scale = static_cast<std::uint8_t>(draft_.scale);
  }
  if (draft_.attributes & dbAutoIncrField) {
    if (type != ColumnType::Long)
      throw runtime::Error(InvalidDataType, source::Field,
                           "Il contatore " + draft_.name + " deve essere di tipo Long");
    column.flags |= file::Column::AutoNumber;
  }
  if (draft_.attributes & dbHyperlinkField && type == ColumnType::Memo)
    column.flags |= file::Column::Hyperlink;
  return column;
}

void TableField::writeProperties(file::PropertyBlock& properties) const {
  for (const auto& kept : KeptItems) {
    const auto value = draftItem(kept.item);
    const bool textOnly = kept.item == FieldItem::AllowZeroLength;
    if (textOnly && draft_.type != dbText && draft_.type != dbMemo) continue;
    const bool absent =
        kept.type == ColumnType::Boolean ? !textOnly && !value.toBoolean() : value.toText().empty();
    if (!absent) properties.set(draft_.name, image::propertyItem(kept.name, kept.type, value));
  }
}

runtime::Variant TableField::fieldValue(std::size_t) const {
  notForTableFields();
}

void TableField::setFieldValue(std::size_t, const runtime::Variant&) {
  notForTableFields();
}

PropertyCollection TableField::fieldProperties(std::size_t) {
  if (!stored_) notForTableFields();
  return columnProperties(session_, stored_->page, stored_->number, Field(shared_from_this(), 0));
}

runtime::Variant sourceFieldItem(const std::shared_ptr<Session>& session, const std::string& table,
                                 const std::string& column, FieldItem item) {
  const auto* definition = table.empty() ? nullptr : session->image().definition(table);
  const auto position = definition ? definition->find(column) : std::nullopt;
  if (!position) return emptyItem(item);
  return TableField(session, definition->page, definition->columns[*position].number).fieldItem(0, item);
}

PropertyCollection sourceFieldProperties(const std::shared_ptr<Session>& session, const std::string& table,
                                         const std::string& column) {
  const auto* definition = table.empty() ? nullptr : session->image().definition(table);
  const auto position = definition ? definition->find(column) : std::nullopt;
  if (!position) throw errorOf(InvalidOperation, source::Field, "il campo è un'espressione");
  return std::make_shared<TableField>(session, definition->page, definition->columns[*position].number)
      ->fieldProperties(0);
}

}  // namespace jet::dao
