// Tables and indexes made, renamed and dropped, with their catalogue rows.
#include "jet/file/errors.h"
#include "jet/image/catalogue_rows.h"
#include "jet/image/image.h"
#include "jet/image/row_codec.h"

namespace jet::image {

Table& Image::changeable(std::uint32_t page) {
  requireWritable();
  auto& wanted = table(page);
  if (wanted.link) throw errorOf(NotForLinkedTables, source::TableDefs, wanted.name);
  if (wanted.system()) throw errorOf(SystemTable, source::TableDefs, wanted.name);
  return wanted;
}

Table& Image::changeable(std::string_view name) {
  return changeable(tableNamed(name, UnknownTable).page);
}

void Image::setDefinition(Table& changed, file::TableDefinition design) {
  ++generation_;
  changed.definition = std::make_shared<const file::TableDefinition>(std::move(design));
  changed.designChanged = true;
  changeSystemTable(file::CatalogueTable);
  touchObject(connection_, changed.page);
}

void Image::createTable(file::TableDefinition design, const file::PropertyBlock& block) {
  requireWritable();
  checkName(design.name);
  if (const auto* other = find(design.name); other && other->system())
    throw errorOf(SystemTable, source::TableDefs, other->name);
  if (const auto other = findObject(design.name))
    throw runtime::Error(other->type == file::ObjectType::Table ? TableExists : ObjectExists,
                         source::TableDefs, "Tabella già presente: " + design.name);
  Transaction whole(*this);
  changeSystemTable(file::CatalogueTable);
  changeSystemTable(file::PermissionsTable);
  if (!freePages_) freePages_ = std::make_unique<file::FreePages>(*source_);
  design.page = freePages_->take();
  insertObject(connection_, {design.page, file::TablesContainer, design.name, file::ObjectType::Table, 0});
  if (!block.empty()) writeProperties(connection_, design.page, block);
  Table created;
  created.name = design.name;
  created.page = design.page;
  created.isNew = true;
  created.definition = std::make_shared<const file::TableDefinition>(std::move(design));
  makeRows(created);
  created.loaded = true;
  state_.tables.push_back(std::move(created));
  indexNames();
  whole.keep();
}

void Image::dropTable(std::string_view name) {
  requireWritable();
  auto& gone = tableNamed(name, NoSuchTable);
  if (gone.system())
    throw runtime::Error(SystemTable, source::TableDefs,
                         "Impossibile eliminare una tabella di sistema: " + gone.name);
  for (const auto& relation : relations())
    if (file::sameName(relation.table, gone.name) || file::sameName(relation.foreignTable, gone.name))
      throw runtime::Error(IndexInRelation, source::TableDefs,
                           "La tabella " + gone.name + " è usata dalla relazione " + relation.name);
  Transaction whole(*this);
  const auto page = gone.page;
  removeObject(page);
  dropRows(gone);
  if (!gone.isNew && !gone.link) state_.dropped.push_back(page);
  state_.autoNumbers.erase(page);
  std::erase_if(state_.tables, [&](const Table& table) { return table.page == page; });
  indexNames();
  whole.keep();
}

void Image::renameTable(std::string_view name, const std::string& newName) {
  requireWritable();
  auto& renamed = tableNamed(name, UnknownTable);
  if (renamed.system()) throw errorOf(SystemTable, source::TableDefs, renamed.name);
  Transaction whole(*this);
  renameObject(renamed.page, newName);
  changeSystemTable(file::RelationshipsTable);
  renameTableInRelations(connection_, renamed.name, newName);
  dropTriggersAround(renamed);
  renamed.name = newName;
  if (renamed.definition) {
    auto design = *renamed.definition;
    design.name = newName;
    renamed.definition = std::make_shared<const file::TableDefinition>(std::move(design));
  }
  indexNames();
  whole.keep();
}

void Image::checkRows(Table& changed, const file::TableDefinition& design, std::size_t index) {
  const auto& real = design.realIndexes[index];
  if (!(real.flags & (file::RealIndex::Required | file::RealIndex::Unique))) return;
  load(changed);
  if (real.flags & file::RealIndex::Required) {
    for (const auto& part : real.columns) {
      auto query = connection_.prepare("SELECT 1 FROM " + tableName(changed.page) + " WHERE " +
                                       columnName(part.column) + " IS NULL LIMIT 1");
      if (query.step())
        throw runtime::Error(NullInIndex, source::TableDefs,
                             "L'indice " + indexNameOf(design, index) + " non ammette un valore Null");
    }
  }
  makeIndexes(design, {}, true);
}

void Image::createIndex(std::string_view table, const IndexDesign& index) {
  auto& changed = changeable(table);
  auto design = definition(changed);
  addIndex(design, index);
  Transaction whole(*this);
  checkRows(changed, design, design.realIndexes.size() - 1);
  dropTriggers(changed);
  setDefinition(changed, std::move(design));
  whole.keep();
}

void Image::dropIndex(std::string_view table, std::string_view name) {
  auto& changed = changeable(table);
  auto design = definition(changed);
  removeIndex(design, name);
  Transaction whole(*this);
  dropRules(changed);
  setDefinition(changed, std::move(design));
  whole.keep();
}

void Image::renameIndex(std::string_view table, std::string_view name, const std::string& newName) {
  auto& changed = changeable(table);
  auto design = definition(changed);
  image::renameIndex(design, name, newName);
  Transaction whole(*this);
  dropTriggers(changed);
  setDefinition(changed, std::move(design));
  whole.keep();
}

}  // namespace jet::image
