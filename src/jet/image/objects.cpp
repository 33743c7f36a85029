// Objects of the catalogue and their properties.
#include "jet/file/errors.h"
#include "jet/image/catalogue_rows.h"
#include "jet/image/image.h"

namespace jet::image {

namespace {

// Columns of MSysObjects (t2): c0 Id, c1 ParentId, c2 Name, c3 Type, c7 Flags; of MSysQueries (t4): c0
// ObjectId.
constexpr char ObjectsOfType[] = "SELECT c0, c1, c2, c3, c7 FROM t2 WHERE c3 = ?1 ORDER BY rowid";
constexpr char ObjectNamed[] = "SELECT c0, c1, c2, c3, c7 FROM t2 WHERE c1 = ?1 AND c2 = ?2";

file::CatalogueObject readObject(const Statement& row) {
  file::CatalogueObject object;
  object.id = static_cast<std::uint32_t>(row.integer(0));
  object.parent = static_cast<std::uint32_t>(row.integer(1));
  object.name = row.text(2);
  object.type = static_cast<file::ObjectType>(row.integer(3));
  object.flags = static_cast<std::uint32_t>(row.integer(4));
  return object;
}

}  // namespace

std::vector<file::CatalogueObject> Image::objects(file::ObjectType type) {
  load(table(file::CatalogueTable));
  std::vector<file::CatalogueObject> found;
  auto rows = connection_.prepare(ObjectsOfType);
  rows.bind(1, static_cast<std::int64_t>(type));
  while (rows.step()) found.push_back(readObject(rows));
  return found;
}

std::optional<file::CatalogueObject> Image::findObject(std::string_view name, std::uint32_t container) {
  load(table(file::CatalogueTable));
  auto row = connection_.prepare(ObjectNamed);
  row.bind(1, signedId(container));
  row.bind(2, name);
  if (!row.step()) return std::nullopt;
  return readObject(row);
}

std::uint32_t Image::createObject(const std::string& name, file::ObjectType type, std::uint32_t flags) {
  requireWritable();
  checkName(name);
  const bool relation = type == file::ObjectType::Relation;
  const auto container = relation ? file::RelationshipsContainer : file::TablesContainer;
  if (findObject(name, container)) throw errorOf(ObjectExists, source::Database, name);
  changeSystemTable(file::CatalogueTable);
  changeSystemTable(file::PermissionsTable);
  // Objects without a page count upwards from the lowest negative number. One that a dropped object has left
  // is taken first: a relation that is made anew leaves no gap.
  auto query = connection_.prepare("SELECT c0 FROM t2 WHERE c0 < 0 ORDER BY c0");
  std::int64_t next = INT32_MIN;
  while (query.step() && query.integer(0) <= next) next = query.integer(0) + 1;
  query.reset();
  const auto id = static_cast<std::uint32_t>(static_cast<std::int32_t>(next));
  insertObject(connection_, {id, container, name, type, flags});
  return id;
}

void Image::changeObject(std::uint32_t id, const std::string& name, std::uint32_t flags) {
  requireWritable();
  const auto other = findObject(name);
  if (other && other->id != id) throw errorOf(ObjectExists, source::Database, name);
  Transaction whole(*this);
  renameObject(id, name);
  auto update = connection_.prepare("UPDATE t2 SET c7 = ?2 WHERE c0 = ?1");
  update.bind(1, signedId(id));
  update.bind(2, signedId(flags));
  update.run();
  whole.keep();
}

void Image::dropObject(std::uint32_t id) {
  requireWritable();
  removeObject(id);
}

void Image::renameObject(std::uint32_t id, const std::string& newName) {
  checkName(newName);
  const auto other = findObject(newName);
  if (other && other->id != id)
    throw runtime::Error(other->type == file::ObjectType::Table ? TableExists : ObjectExists,
                         source::Database, "Oggetto già presente: " + newName);
  changeSystemTable(file::CatalogueTable);
  auto update = connection_.prepare("UPDATE t2 SET c2 = ?2 WHERE c0 = ?1");
  update.bind(1, signedId(id));
  update.bind(2, std::string_view(newName));
  update.run();
  touchObject(connection_, id);
}

void Image::removeObject(std::uint32_t id) {
  changeSystemTable(file::CatalogueTable);
  changeSystemTable(file::PermissionsTable);
  deleteObject(connection_, id);
  state_.properties.erase(id);
}

void Image::changeSystemTable(std::uint32_t page) {
  ++generation_;
  auto& system = table(page);
  load(system);
  system.rowsChanged = true;
}

const file::PropertyBlock& Image::properties(std::uint32_t id) {
  auto& known = state_.properties[id];
  if (!known) {
    load(table(file::CatalogueTable));
    known = std::make_shared<const file::PropertyBlock>(
        readProperties(connection_, source_->format(), source_->header().codePage, id));
  }
  return *known;
}

void Image::changeProperties(std::uint32_t id, file::PropertyBlock block) {
  changeSystemTable(file::CatalogueTable);
  writeProperties(connection_, id, block);
  touchObject(connection_, id);
  state_.properties[id] = std::make_shared<const file::PropertyBlock>(std::move(block));
  // Rules may be among them.
  for (auto& owner : state_.tables)
    if (owner.page == id) dropTriggers(owner);
}

void Image::setProperty(std::uint32_t id, std::string_view column, const file::PropertyItem& item) {
  requireWritable();
  Transaction whole(*this);
  auto block = properties(id);
  block.set(column, item);
  changeProperties(id, std::move(block));
  whole.keep();
}

void Image::removeProperty(std::uint32_t id, std::string_view column, std::string_view name) {
  requireWritable();
  if (!properties(id).find(column, name)) return;
  Transaction whole(*this);
  auto block = properties(id);
  block.remove(column, name);
  changeProperties(id, std::move(block));
  whole.keep();
}

}  // namespace jet::image
