// Changes of design that statements ask for.
#include "jet/dao/design/design_runner.h"

#include <algorithm>

#include "jet/file/errors.h"
#include "jet/image/property_values.h"
#include "jet/image/row_codec.h"

namespace jet::dao {

namespace {

using file::ColumnType;

// Digits and decimals of a Decimal column that is made for an expression.
constexpr std::uint8_t ExpressionPrecision = 28, ExpressionScale = 6;
constexpr std::uint16_t LongestText = 255;

file::Column columnOf(const sql::NewColumn& wanted) {
  auto column = image::newColumn(wanted.name, wanted.type, wanted.size);
  if (wanted.autoNumber) column.flags |= file::Column::AutoNumber;
  if (wanted.type == ColumnType::Numeric) {
    column.precision = wanted.precision;
    column.scale = wanted.scale;
  }
  return column;
}

/// What a column's rules are as properties.
std::vector<file::PropertyItem> rulesOf(const sql::NewColumn& column) {
  std::vector<file::PropertyItem> items;
  if (column.notNull) items.push_back(image::propertyItem("Required", ColumnType::Boolean, true));
  if (!column.defaultValue.empty())
    items.push_back(image::propertyItem("DefaultValue", ColumnType::Memo, column.defaultValue));
  return items;
}

image::IndexDesign indexDesign(const file::TableDefinition& table, const sql::CreateIndex& index) {
  image::IndexDesign design;
  design.name = index.name;
  design.unique = index.unique;
  design.primary = index.primary;
  design.required = index.disallowNull;
  design.ignoreNulls = index.ignoreNull;
  for (const auto& part : index.columns) {
    const auto position = table.find(part.column);
    if (!position) throw errorOf(UnknownIndexField, source::Database, part.column);
    design.columns.push_back({table.columns[*position].number, part.ascending});
  }
  return design;
}

const file::Column& columnNamed(const file::TableDefinition& table, const std::string& name) {
  const auto position = table.find(name);
  if (!position)
    throw runtime::Error(NoSuchReferencedField, source::Database,
                         "La tabella " + table.name + " non ha il campo " + name);
  return table.columns[*position];
}

/// Columns of the table's primary key.
std::vector<std::string> keyColumns(const file::TableDefinition& table) {
  std::vector<std::string> names;
  for (const auto& index : table.logicalIndexes)
    if (index.kind == file::LogicalIndex::Kind::Primary)
      for (const auto& part : table.realIndexes.at(index.real).columns)
        names.push_back(table.columns[*table.findNumber(part.column)].name);
  if (names.empty())
    throw runtime::Error(NoUniqueIndex, source::Database,
                         "La tabella " + table.name + " non ha una chiave primaria");
  return names;
}

bool variableOfSize(const file::Column& column) {
  return !column.fixed() && (column.type == ColumnType::Text || column.type == ColumnType::Binary);
}

}  // namespace

/// What is computed from Longs can lie beyond them: error 6 then.
void DesignRunner::requireLongs(std::uint32_t page, const file::Column& column) const {
  auto beyond = image_.connection().prepare("SELECT 1 FROM " + image::tableName(page) + " WHERE " +
                                            image::columnName(column.number) +
                                            " NOT BETWEEN -2147483648 AND 2147483647 LIMIT 1");
  if (beyond.step()) throw runtime::languageError(runtime::Overflow);
}

const file::TableDefinition& DesignRunner::table(const std::string& name) const {
  const auto* found = image_.definition(name);
  if (!found) throw runtime::Error(UnknownTable, source::Database, "Tabella inesistente: " + name);
  return *found;
}

void DesignRunner::run(const sql::CreateTable& wanted) {
  image::Transaction whole(image_);
  file::TableDefinition design;
  design.name = wanted.table;
  file::PropertyBlock properties;
  for (const auto& column : wanted.columns) {
    image::addColumn(design, columnOf(column));
    for (auto& item : rulesOf(column)) properties.set(column.name, std::move(item));
  }
  for (const auto& index : wanted.indexes) image::addIndex(design, indexDesign(design, index));
  image_.createTable(std::move(design), properties);
  for (const auto& relation : wanted.relations) relate(wanted.table, relation);
  whole.keep();
}

void DesignRunner::run(const sql::CreateIndex& index) {
  image_.createIndex(index.table, indexDesign(table(index.table), index));
}

void DesignRunner::run(const sql::CreateRelation& relation) {
  relate(relation.table, relation);
}

void DesignRunner::relate(const std::string& foreignTable, const sql::CreateRelation& wanted) {
  image::RelationDesign relation;
  relation.name = wanted.name;
  relation.table = wanted.parent;
  relation.foreignTable = foreignTable;
  if (wanted.cascadeUpdate) relation.attributes |= image::RelationDesign::UpdateCascade;
  if (wanted.cascadeDelete) relation.attributes |= image::RelationDesign::DeleteCascade;
  const auto parents = wanted.parentColumns.empty() ? keyColumns(table(wanted.parent)) : wanted.parentColumns;
  if (parents.size() != wanted.columns.size())
    throw runtime::Error(RelationTypesDiffer, source::Database,
                         "La relazione " + wanted.name + " lega un numero diverso di campi");
  for (std::size_t i = 0; i < parents.size(); ++i) relation.pairs.push_back({parents[i], wanted.columns[i]});
  image_.createRelation(relation);
}

void DesignRunner::setRules(std::uint32_t page, const sql::NewColumn& column) {
  for (const auto& item : rulesOf(column)) image_.setProperty(page, column.name, item);
}

void DesignRunner::run(const sql::AddColumn& added) {
  image::Transaction whole(image_);
  const auto page = table(added.table).page;
  image_.addColumn(page, columnOf(added.column));
  setRules(page, added.column);
  for (const auto& index : added.indexes)
    image_.createIndex(added.table, indexDesign(image_.definition(page), index));
  for (const auto& relation : added.relations) relate(added.table, relation);
  whole.keep();
}

void DesignRunner::run(const sql::AlterColumn& altered) {
  image::Transaction whole(image_);
  const auto shared = image_.sharedDefinition(table(altered.table).page);
  const auto& old = columnNamed(*shared, altered.column.name);
  const auto wanted = columnOf(altered.column);
  if (old.type == wanted.type && variableOfSize(old))
    image_.resizeColumn(shared->page, old.name,
                        old.type == ColumnType::Text ? wanted.length / 2 : wanted.length);
  else if (old.type != wanted.type || old.autoNumber() != wanted.autoNumber() ||
           old.length != wanted.length || old.precision != wanted.precision || old.scale != wanted.scale)
    convert(*shared, old, altered.column);
  auto rules = altered.column;
  rules.name = old.name;
  setRules(shared->page, rules);
  whole.keep();
}

/// The new column stands beside the old one while an UPDATE brings the values over.
void DesignRunner::convert(const file::TableDefinition& design, const file::Column& from,
                           const sql::NewColumn& to) {
  auto column = to;
  column.name = "~" + std::to_string(design.maxColumns);
  column.autoNumber = false;
  const auto page = design.page;
  image_.addColumn(page, columnOf(column));
  runner_.execute(
      runner_.compile("UPDATE [" + design.name + "] SET [" + column.name + "] = [" + from.name + "]"), {},
      true);
  image_.replaceColumn(page, from.name, column.name);
  if (to.autoNumber) image_.makeAutoNumber(page, from.name);
}

void DesignRunner::run(const sql::SetDefault& wanted) {
  const auto& design = table(wanted.table);
  const std::string column = columnNamed(design, wanted.column).name;
  if (wanted.defaultValue.empty())
    image_.removeProperty(design.page, column, "DefaultValue");
  else
    image_.setProperty(design.page, column,
                       image::propertyItem("DefaultValue", ColumnType::Memo, wanted.defaultValue));
}

void DesignRunner::run(const sql::DropColumn& dropped) {
  const auto& design = table(dropped.table);
  image_.dropColumn(design.page, columnNamed(design, dropped.column).name);
}

void DesignRunner::run(const sql::DropConstraint& dropped) {
  const auto& design = table(dropped.table);
  for (const auto& relation : image_.relations())
    if (file::sameName(relation.name, dropped.name) && file::sameName(relation.foreignTable, design.name))
      return image_.dropRelation(relation.name);
  image_.dropIndex(design.name, dropped.name);
}

void DesignRunner::run(const sql::DropTable& dropped) {
  image_.dropTable(dropped.table);
}

void DesignRunner::run(const sql::DropIndex& dropped) {
  image_.dropIndex(dropped.table, dropped.name);
}

std::int64_t DesignRunner::run(const sql::SelectInto& into, const Answers& answers) {
  image::Transaction whole(image_);
  file::TableDefinition design;
  design.name = into.table;
  for (const auto& shown : into.rows.columns) {
    auto column = image::newColumn(shown.name, sql::columnTypeOf(shown.type), 0);
    column.precision = ExpressionPrecision;
    column.scale = ExpressionScale;
    if (const auto* source = image_.definition(shown.sourceTable)) {
      const auto& like = columnNamed(*source, shown.sourceColumn);
      const bool counted = std::ranges::any_of(design.columns, &file::Column::autoNumber);
      if (column.type == like.type) {
        if (variableOfSize(column)) column.length = like.length;
        column.precision = like.precision;
        column.scale = like.scale;
        if (!counted) column.flags |= like.flags & file::Column::AutoNumber;
      }
    }
    image::addColumn(design, std::move(column));
  }
  std::string columns;
  for (const auto& column : design.columns)
    columns += (columns.empty() ? "" : ",") + image::columnName(column.number);
  image_.createTable(std::move(design));
  const auto page = image_.find(into.table)->page;
  image_.prepareToChange(page, {}, {image::RowChange::Kind::Insert, {}});
  auto insert =
      runner_.prepareInto("INSERT INTO " + image::tableName(page) + "(" + columns + ") ", into.rows, answers);
  insert.run();
  for (std::size_t i = 0; i < into.rows.columns.size(); ++i)
    if (into.rows.columns[i].type == sql::Type::Long) requireLongs(page, image_.definition(page).columns[i]);
  const auto count = image_.connection().changes();
  image_.markChanged(page);
  whole.keep();
  return count;
}

}  // namespace jet::dao
