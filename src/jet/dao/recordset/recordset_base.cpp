#include "jet/dao/recordset/recordset_base.h"

#include "jet/dao/design/table_field.h"
#include "jet/dao/values.h"
#include "jet/file/errors.h"

namespace jet::dao {

namespace {

FieldInfo fieldInfo(const file::TableDefinition& table, const file::Column& column) {
  FieldInfo info{column.name,
                 sql::typeOf(column.type),
                 fieldSize(column),
                 fieldAttributes(column),
                 table.name,
                 column.name,
                 {},
                 column.number};
  return info;
}

}  // namespace

/// Recordset.Fields
class RecordsetFields : public CollectionSource<Field> {
 public:
  explicit RecordsetFields(std::shared_ptr<RecordsetBase> recordset) : recordset_(std::move(recordset)) {}
  const char* title() const override { return source::Fields; }
  std::size_t count() const override { return recordset_->fields_.size(); }
  Field at(std::size_t position) const override { return Field(recordset_, position); }
  std::optional<std::size_t> find(std::string_view name) const override {
    return recordset_->findField(name);
  }

 private:
  std::shared_ptr<RecordsetBase> recordset_;
};

double Recordset::PercentPosition() const {
  const auto records = RecordCount();
  return records > 0 ? 100.0 * static_cast<double>(AbsolutePosition()) / static_cast<double>(records) : 0;
}

std::vector<std::vector<runtime::Variant>> Recordset::GetRows(std::size_t rows) {
  if (atEnd()) MoveNext();  // tells that there is no record
  std::vector<std::vector<runtime::Variant>> result(Fields().Count());
  for (std::size_t row = 0; row < rows && !atEnd(); ++row, MoveNext())
    for (std::size_t field = 0; field < result.size(); ++field)
      result[field].push_back(Fields(field).Value());
  return result;
}

FieldCollection RecordsetBase::Fields() {
  requireOpen();
  return FieldCollection(std::make_shared<RecordsetFields>(shared_from_this()));
}

Field RecordsetBase::Fields(std::size_t index) {
  requireOpen();
  if (index >= fields_.size()) throw errorOf(ItemNotFound, source::Fields, std::to_string(index));
  return Field(shared_from_this(), index);
}

Field RecordsetBase::Fields(std::string_view name) {
  requireOpen();
  if (const auto index = findField(name)) return Field(shared_from_this(), *index);
  throw errorOf(ItemNotFound, source::Fields, std::string(name));
}

std::optional<std::size_t> RecordsetBase::findField(std::string_view name) const {
  // Most names come as they are written in the table.
  for (std::size_t i = 0; i < fields_.size(); ++i)
    if (fields_[i].name == name) return i;
  for (std::size_t i = 0; i < fields_.size(); ++i)
    if (file::sameName(fields_[i].name, name)) return i;
  return std::nullopt;
}

runtime::Variant RecordsetBase::fieldItem(std::size_t index, FieldItem item) const {
  const auto& field = fields_[index];
  switch (item) {
    case FieldItem::Name:
      return field.name;
    case FieldItem::Type:
      return dataType(field.type);
    case FieldItem::Size:
      return field.size;
    case FieldItem::Attributes:
      return field.attributes;
    case FieldItem::OrdinalPosition:
      return static_cast<std::int32_t>(index);
    case FieldItem::SourceTable:
      return field.sourceTable;
    case FieldItem::SourceField:
      return field.sourceField;
    case FieldItem::ForeignName:
      invalidOperation();
    default:
      return sourceFieldItem(session_, field.sourceTable, field.sourceField, item);
  }
}

void RecordsetBase::setFieldItem(std::size_t, FieldItem, const runtime::Variant&) {
  invalidOperation();
}

void RecordsetBase::setFieldValue(std::size_t, const runtime::Variant&) {
  unsupported();
}

PropertyCollection RecordsetBase::fieldProperties(std::size_t index) {
  return sourceFieldProperties(session_, fields_[index].sourceTable, fields_[index].sourceField);
}

void RecordsetBase::requireOpen() const {
  if (!open_ || session_->released() || session_->closed)
    throw errorOf(ObjectInvalid, source::Recordset, "il recordset è chiuso");
}

void RecordsetBase::stepRows(std::int64_t rows) {
  bool first = true;
  for (; rows > 0 && (first || !atEnd()); --rows, first = false) MoveNext();
  for (; rows < 0 && (first || !BOF()); ++rows, first = false) MovePrevious();
}

void RecordsetBase::noCurrentRecord() {
  throw errorOf(NoCurrentRecord, source::Recordset);
}

void RecordsetBase::recordDeleted() {
  throw errorOf(RecordDeleted, source::Recordset);
}

void RecordsetBase::invalidOperation() const {
  requireOpen();
  throw errorOf(InvalidOperation, source::Recordset);
}

void RecordsetBase::invalidBookmark() {
  throw errorOf(InvalidBookmark, source::Recordset);
}

void RecordsetBase::unsupported() const {
  requireOpen();
  throw errorOf(NotSupported, source::Recordset);
}

void RecordsetBase::readOnlyRecordset() {
  throw errorOf(ReadOnly, source::Recordset, "recordset di sola lettura");
}

std::vector<FieldInfo> resultFields(const sql::RowStatement& plan, const sql::Schema& schema) {
  std::vector<FieldInfo> fields;
  for (const auto& column : plan.columns) {
    FieldInfo info{column.name, column.type, 0, 0, {}, {}, {}, 0};
    const auto* table = column.sourceTable.empty() ? nullptr : schema.findTable(column.sourceTable);
    if (const auto position = table ? table->find(column.sourceColumn) : std::nullopt) {
      info = fieldInfo(*table, table->columns[*position]);
      info.name = column.name;
      if (column.table && *column.table < plan.rowKeys) info.part = column.table;
    }
    fields.push_back(std::move(info));
  }
  return fields;
}

std::vector<FieldInfo> tableFields(const file::TableDefinition& table) {
  std::vector<FieldInfo> fields;
  for (const auto position : table.displayOrder()) {
    fields.push_back(fieldInfo(table, table.columns[position]));
    fields.back().part = 0;
  }
  return fields;
}

}  // namespace jet::dao
