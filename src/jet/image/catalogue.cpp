// Objects of the file and their properties, relations and links, as the catalogue tells of them.
#include "jet/image/catalogue.h"

#include "jet/file/errors.h"
#include "jet/image/catalogue_rows.h"
#include "jet/image/design.h"
#include "jet/image/transaction.h"

namespace jet::image {

namespace {

constexpr std::uint32_t LinkFlags = 0x200000;

}  // namespace

Catalogue::Catalogue(Tables& tables, Rows& rows)
    : tables_(tables), rows_(rows), connection_(tables.connection()) {}

std::vector<file::CatalogueObject> Catalogue::objects(file::ObjectType type) {
  rows_.load(tables_.at(file::CatalogueTable));
  const auto dated = readObjects(connection_, type);
  return {dated.begin(), dated.end()};
}

std::optional<file::CatalogueObject> Catalogue::findObject(std::string_view name, std::uint32_t container) {
  rows_.load(tables_.at(file::CatalogueTable));
  return readObject(connection_, name, container);
}

std::uint32_t Catalogue::createObject(const std::string& name, file::ObjectType type, std::uint32_t flags) {
  tables_.requireWritable();
  checkName(name);
  const bool relation = type == file::ObjectType::Relation;
  const auto container = relation ? file::RelationshipsContainer : file::TablesContainer;
  if (findObject(name, container)) throw errorOf(ObjectExists, source::Database, name);
  changeSystemTable(file::CatalogueTable);
  changeSystemTable(file::PermissionsTable);
  const auto id = freeObjectId(connection_);
  insertObject(connection_, {id, container, name, type, flags});
  return id;
}

void Catalogue::changeObject(std::uint32_t id, const std::string& name, std::uint32_t flags) {
  tables_.requireWritable();
  const auto other = findObject(name);
  if (other && other->id != id) throw errorOf(ObjectExists, source::Database, name);
  Transaction whole(tables_);
  renameObject(id, name);
  setObjectFlags(connection_, id, flags);
  whole.keep();
}

void Catalogue::renameObject(std::uint32_t id, const std::string& newName) {
  checkName(newName);
  const auto other = findObject(newName);
  if (other && other->id != id)
    throw runtime::Error(other->type == file::ObjectType::Table ? TableExists : ObjectExists,
                         source::Database, "Oggetto già presente: " + newName);
  changeSystemTable(file::CatalogueTable);
  image::renameObject(connection_, id, newName);
  touchObject(connection_, id);
}

void Catalogue::dropObject(std::uint32_t id) {
  tables_.requireWritable();
  changeSystemTable(file::CatalogueTable);
  changeSystemTable(file::PermissionsTable);
  deleteObject(connection_, id);
  tables_.properties().erase(id);
}

void Catalogue::changeSystemTable(std::uint32_t page) {
  tables_.endGeneration();
  auto& system = tables_.at(page);
  rows_.load(system);
  system.note(Unsaved::Rows);
}

const file::PropertyBlock& Catalogue::properties(std::uint32_t id) {
  auto& known = tables_.properties()[id];
  if (!known) {
    rows_.load(tables_.at(file::CatalogueTable));
    const auto& source = tables_.source();
    known = std::make_shared<const file::PropertyBlock>(
        readProperties(connection_, source.format(), source.header().codePage, id));
  }
  return *known;
}

void Catalogue::changeProperties(std::uint32_t id, file::PropertyBlock block) {
  changeSystemTable(file::CatalogueTable);
  writeProperties(connection_, id, block);
  touchObject(connection_, id);
  tables_.properties()[id] = std::make_shared<const file::PropertyBlock>(std::move(block));
  // Rules may be among them.
  for (auto& owner : tables_.all())
    if (owner.page == id) rows_.dropTriggers(owner);
}

void Catalogue::setProperty(std::uint32_t id, std::string_view column, const file::PropertyItem& item) {
  tables_.requireWritable();
  Transaction whole(tables_);
  auto block = properties(id);
  block.set(column, item);
  changeProperties(id, std::move(block));
  whole.keep();
}

void Catalogue::removeProperty(std::uint32_t id, std::string_view column, std::string_view name) {
  tables_.requireWritable();
  if (!properties(id).find(column, name)) return;
  Transaction whole(tables_);
  auto block = properties(id);
  block.remove(column, name);
  changeProperties(id, std::move(block));
  whole.keep();
}

std::vector<RelationDesign> Catalogue::relations() {
  rows_.load(tables_.at(file::RelationshipsTable));
  return readRelations(connection_);
}

void Catalogue::linkTable(const std::string& name, const Link& link) {
  Transaction whole(tables_);
  const auto id = createObject(name, file::ObjectType::LinkedTable, LinkFlags);
  writeLink(connection_, id, link);
  Table added;
  added.name = name;
  added.page = id;
  added.flags = LinkFlags;
  added.link = true;
  tables_.add(std::move(added));
  whole.keep();
}

}  // namespace jet::image
