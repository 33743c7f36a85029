// Tables and indexes made, renamed and dropped, with their catalogue rows.
#include "jet/image/table_changes.h"

#include "jet/file/errors.h"
#include "jet/image/catalogue_rows.h"
#include "jet/image/row_codec.h"
#include "jet/image/transaction.h"

namespace jet::image {

TableChanges::TableChanges(Tables& tables, Rows& rows, Catalogue& catalogue)
    : tables_(tables), rows_(rows), catalogue_(catalogue), connection_(tables.connection()) {}

void TableChanges::setDefinition(Table& changed, file::TableDefinition design) {
  tables_.endGeneration();
  changed.definition = std::make_shared<const file::TableDefinition>(std::move(design));
  changed.note(Unsaved::Design);
  catalogue_.changeSystemTable(file::CatalogueTable);
  touchObject(connection_, changed.page);
}

void TableChanges::create(file::TableDefinition design, const file::PropertyBlock& block) {
  tables_.requireWritable();
  checkName(design.name);
  if (const auto* other = tables_.find(design.name); other && other->system())
    throw errorOf(SystemTable, source::TableDefs, other->name);
  if (const auto other = catalogue_.findObject(design.name))
    throw runtime::Error(other->type == file::ObjectType::Table ? TableExists : ObjectExists,
                         source::TableDefs, "Tabella già presente: " + design.name);
  Transaction whole(tables_);
  catalogue_.changeSystemTable(file::CatalogueTable);
  catalogue_.changeSystemTable(file::PermissionsTable);
  design.page = tables_.newPage();
  insertObject(connection_, {design.page, file::TablesContainer, design.name, file::ObjectType::Table, 0});
  if (!block.empty()) writeProperties(connection_, design.page, block);
  Table created;
  created.name = design.name;
  created.page = design.page;
  created.unsaved = Unsaved::Table;
  created.definition = std::make_shared<const file::TableDefinition>(std::move(design));
  rows_.makeNew(created);
  tables_.add(std::move(created));
  whole.keep();
}

void TableChanges::drop(std::string_view name) {
  tables_.requireWritable();
  auto& gone = tables_.named(name, NoSuchTable);
  if (gone.system())
    throw runtime::Error(SystemTable, source::TableDefs,
                         "Impossibile eliminare una tabella di sistema: " + gone.name);
  for (const auto& relation : catalogue_.relations())
    if (file::sameName(relation.table, gone.name) || file::sameName(relation.foreignTable, gone.name))
      throw runtime::Error(IndexInRelation, source::TableDefs,
                           "La tabella " + gone.name + " è usata dalla relazione " + relation.name);
  Transaction whole(tables_);
  const auto page = gone.page;
  catalogue_.dropObject(page);
  rows_.drop(gone);
  tables_.remove(page);
  whole.keep();
}

void TableChanges::rename(std::string_view name, const std::string& newName) {
  tables_.requireWritable();
  auto& renamed = tables_.named(name, UnknownTable);
  if (renamed.system()) throw errorOf(SystemTable, source::TableDefs, renamed.name);
  Transaction whole(tables_);
  catalogue_.renameObject(renamed.page, newName);
  // Their messages tell the name.
  rows_.dropTriggers(renamed);
  dropTriggersAround(renamed);
  catalogue_.changeSystemTable(file::RelationshipsTable);
  renameTableInRelations(connection_, renamed.name, newName);
  if (renamed.definition) {
    auto design = *renamed.definition;
    design.name = newName;
    renamed.definition = std::make_shared<const file::TableDefinition>(std::move(design));
  }
  tables_.rename(renamed, newName);
  whole.keep();
}

void TableChanges::dropTriggersAround(const Table& table) {
  for (const auto& relation : catalogue_.relations()) {
    if (!file::sameName(relation.table, table.name) && !file::sameName(relation.foreignTable, table.name))
      continue;
    for (const auto& name : {relation.table, relation.foreignTable})
      if (tables_.find(name)) rows_.dropTriggers(tables_.named(name, UnknownTable));
  }
}

void TableChanges::checkRows(Table& changed, const file::TableDefinition& design, std::size_t index) {
  const auto& real = design.realIndexes[index];
  if (!(real.flags & (file::RealIndex::Required | file::RealIndex::Unique))) return;
  rows_.load(changed);
  if (real.flags & file::RealIndex::Required) {
    for (const auto& part : real.columns) {
      auto query = connection_.prepare("SELECT 1 FROM " + tableName(changed.page) + " WHERE " +
                                       columnName(part.column) + " IS NULL LIMIT 1");
      if (query.step())
        throw runtime::Error(NullInIndex, source::TableDefs,
                             "L'indice " + indexNameOf(design, index) + " non ammette un valore Null");
    }
  }
  rows_.makeIndexes(design, {}, true);
}

void TableChanges::createIndex(std::string_view table, const IndexDesign& index) {
  auto& changed = tables_.changeable(table);
  auto design = rows_.definition(changed);
  addIndex(design, index);
  Transaction whole(tables_);
  checkRows(changed, design, design.realIndexes.size() - 1);
  rows_.dropTriggers(changed);
  setDefinition(changed, std::move(design));
  whole.keep();
}

void TableChanges::dropIndex(std::string_view table, std::string_view name) {
  auto& changed = tables_.changeable(table);
  auto design = rows_.definition(changed);
  removeIndex(design, name);
  Transaction whole(tables_);
  rows_.dropIndexesAndTriggers(changed);
  setDefinition(changed, std::move(design));
  whole.keep();
}

void TableChanges::renameIndex(std::string_view table, std::string_view name, const std::string& newName) {
  auto& changed = tables_.changeable(table);
  auto design = rows_.definition(changed);
  image::renameIndex(design, name, newName);
  Transaction whole(tables_);
  rows_.dropTriggers(changed);
  setDefinition(changed, std::move(design));
  whole.keep();
}

}  // namespace jet::image
