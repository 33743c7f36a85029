#include "jet/dao/recordset_base.h"

#include "jet/dao/values.h"

namespace jet::dao {

namespace {

constexpr char Source[] = "DAO.Recordset";

FieldInfo fieldInfo(const file::Column& column) {
  return {column.name, sql::typeOf(column.type), fieldSize(column), fieldAttributes(column)};
}

}  // namespace

Field RecordsetBase::Fields(std::size_t index) {
  requireOpen();
  if (index >= fields_.size())
    throw runtime::Error(3265, "DAO.Fields", "Elemento inesistente nell'insieme: " + std::to_string(index));
  return Field(shared_from_this(), index);
}

Field RecordsetBase::Fields(std::string_view name) {
  requireOpen();
  for (std::size_t i = 0; i < fields_.size(); ++i)
    if (file::sameName(fields_[i].name, name)) return Field(shared_from_this(), i);
  throw runtime::Error(3265, "DAO.Fields", "Elemento inesistente nell'insieme: " + std::string(name));
}

void RecordsetBase::renameField(std::size_t, const std::string&) {
  invalidOperation();
}

int RecordsetBase::fieldType(std::size_t index) const {
  return dataType(fields_[index].type);
}

void RecordsetBase::setFieldValue(std::size_t, const runtime::Variant&) {
  refuseChange();
}

void RecordsetBase::requireOpen() const {
  if (!open_ || session_->released() || session_->closed)
    throw runtime::Error(3420, Source, "Oggetto non valido: il recordset è chiuso");
}

void RecordsetBase::noCurrentRecord() {
  throw runtime::Error(3021, Source, "Nessun record corrente");
}

void RecordsetBase::invalidOperation() {
  throw runtime::Error(3219, Source, "Operazione non valida");
}

void RecordsetBase::refuseChange() const {
  requireOpen();
  throw runtime::Error(3027, Source, "Impossibile aggiornare: recordset di sola lettura");
}

std::vector<FieldInfo> resultFields(const sql::RowStatement& plan, const sql::Schema& schema) {
  std::vector<FieldInfo> fields;
  for (const auto& column : plan.columns) {
    FieldInfo info{column.name, column.type, 0, 0};
    if (const auto* table = column.sourceTable.empty() ? nullptr : schema.findTable(column.sourceTable)) {
      if (const auto position = table->find(column.sourceColumn)) {
        info.size = fieldSize(table->columns[*position]);
        info.attributes = fieldAttributes(table->columns[*position]);
      }
    }
    fields.push_back(std::move(info));
  }
  return fields;
}

std::vector<FieldInfo> tableFields(const file::TableDefinition& table, std::vector<std::size_t>& order) {
  order = table.displayOrder();
  std::vector<FieldInfo> fields;
  for (const auto position : order) fields.push_back(fieldInfo(table.columns[position]));
  return fields;
}

}  // namespace jet::dao
