#include "jet/dao/table_def.h"

#include <algorithm>

#include "jet/dao/design/object_properties.h"
#include "jet/dao/design/table_collections.h"
#include "jet/dao/design/table_field.h"
#include "jet/dao/recordset/open_rows.h"
#include "jet/file/errors.h"
#include "jet/image/row_codec.h"

namespace jet::dao {

namespace {

constexpr std::string_view DatabaseKey = ";DATABASE=";

/// The path in ";DATABASE=path"; whatever else follows a semicolon is left out.
std::string linkedPath(const std::string& connect) {
  if (!file::sameName(connect.substr(0, DatabaseKey.size()), DatabaseKey))
    throw runtime::Error(ExternalDatabase, source::TableDef,
                         "Origine di una tabella collegata non disponibile: " + connect);
  return connect.substr(DatabaseKey.size(), connect.find(';', 1) - DatabaseKey.size());
}

}  // namespace

TableDef::TableDef(std::shared_ptr<Session> session, std::string name) : session_(std::move(session)) {
  draft_.name = std::move(name);
}

TableDef::TableDef(std::shared_ptr<Session> session, std::uint32_t page)
    : session_(std::move(session)), page_(page) {}

TableDef::Draft& TableDef::draft() {
  if (page_) throw errorOf(InvalidOperation, source::TableDef, "la tabella fa già parte del database");
  return draft_;
}

const image::Table& TableDef::stored() const {
  for (const auto& table : session_->image().tables())
    if (table.page == *page_) return table;
  throw errorOf(ObjectInvalid, source::TableDef, "la tabella non esiste più");
}

const file::TableDefinition& TableDef::design() const {
  stored();
  return session_->image().definition(*page_);
}

std::string TableDef::Name() const {
  return page_ ? stored().name : draft_.name;
}

void TableDef::setName(const std::string& name) {
  if (page_)
    session_->image().renameTable(Name(), name);
  else
    draft_.name = name;
}

int TableDef::Attributes() const {
  if (!page_) return draft_.connect.empty() ? 0 : dbAttachedTable;
  const auto& table = stored();
  return table.link ? dbAttachedTable : static_cast<int>(table.flags) & (dbSystemObject | dbHiddenObject);
}

std::string TableDef::Connect() const {
  if (!page_) return draft_.connect;
  const auto link = session_->image().link(*page_);
  return link ? link->connect + std::string(DatabaseKey) + link->path : "";
}

void TableDef::setConnect(const std::string& connect) {
  draft().connect = connect;
}

std::string TableDef::SourceTableName() const {
  if (!page_) return draft_.sourceTableName;
  const auto link = session_->image().link(*page_);
  return link ? link->sourceTable : "";
}

void TableDef::setSourceTableName(const std::string& name) {
  draft().sourceTableName = name;
}

std::int64_t TableDef::RecordCount() const {
  if (!page_) return 0;
  const auto& table = stored();
  if (table.link) return -1;
  auto& image = session_->image();
  if (!table.loaded()) return image.definition(*page_).rows;
  auto query = image.connection().prepare("SELECT count(*) FROM " + image::tableName(*page_));
  query.step();
  return query.integer(0);
}

FieldCollection TableDef::Fields() {
  return FieldCollection(std::make_shared<TableFields>(shared_from_this()));
}

IndexCollection TableDef::Indexes() {
  return IndexCollection(std::make_shared<TableIndexes>(shared_from_this()));
}

PropertyCollection TableDef::Properties() {
  if (!page_)
    throw runtime::Error(InvalidOperation, source::TableDef,
                         "Operazione non valida prima di Append: " + Name());
  return tableProperties(session_, *page_, shared_from_this());
}

Field TableDef::CreateField(const std::string& name, int type, int size) const {
  const Field field(std::make_shared<TableField>(session_), 0);
  field.setName(name);
  field.setType(type);
  field.setSize(size);
  return field;
}

IndexPtr TableDef::CreateIndex(const std::string& name) const {
  return std::make_shared<Index>(session_, name);
}

Property TableDef::CreateProperty(const std::string& name, int type, const runtime::Variant& value) const {
  return Property(name, type, value);
}

RecordsetPtr TableDef::OpenRecordset(RecordsetType type, int options) {
  if (!page_)
    throw runtime::Error(InvalidOperation, source::TableDef,
                         "Operazione non valida prima di Append: " + Name());
  return openTable(session_, Name(), type, options);
}

void TableDef::append() {
  image::Transaction whole(session_->image());
  if (draft().connect.empty())
    makeTable();
  else
    makeLink();
  whole.keep();
}

void TableDef::makeTable() {
  if (draft_.fields.empty())
    throw runtime::Error(NoFieldDefined, source::TableDef, "Tabella senza campi: " + draft_.name);
  auto& image = session_->image();
  file::TableDefinition design;
  design.name = draft_.name;
  file::PropertyBlock properties;
  for (const auto& field : draft_.fields) {
    image::addColumn(design, field->column());
    field->writeProperties(properties);
  }
  // Those of the same OrdinalPosition stand in the order in which they were appended.
  std::vector<std::size_t> order(draft_.fields.size());
  for (std::size_t i = 0; i < order.size(); ++i) order[i] = i;
  std::stable_sort(order.begin(), order.end(), [this](std::size_t a, std::size_t b) {
    return draft_.fields[a]->ordinalPosition().value_or(0) < draft_.fields[b]->ordinalPosition().value_or(0);
  });
  for (std::size_t i = 0; i < order.size(); ++i)
    design.columns[order[i]].position = static_cast<std::uint16_t>(i);
  for (const auto& index : draft_.indexes) image::addIndex(design, index->designFor(design));

  image.createTable(std::move(design), properties);
  const auto& made = *image.definition(draft_.name);
  page_ = made.page;
  for (const auto& field : draft_.fields)
    field->attach(made.page, made.columns[*made.find(field->name())].number);
  for (const auto& index : draft_.indexes)
    for (const auto& logical : made.logicalIndexes)
      if (file::sameName(logical.name, index->Name())) index->attach(made.page, logical.number);
}

void TableDef::makeLink() {
  auto& image = session_->image();
  image.linkTable(draft_.name, {linkedPath(draft_.connect), draft_.sourceTableName, ""});
  // The design is read so that a link to nothing is refused now.
  page_ = image.definition(draft_.name)->page;
}

}  // namespace jet::dao
