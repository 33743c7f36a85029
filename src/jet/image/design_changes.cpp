// Changes of design: tables, indexes and columns made, renamed and dropped, with their catalogue rows.
#include "jet/image/catalogue_rows.h"
#include "jet/image/image.h"
#include "jet/image/row_codec.h"

namespace jet::image {

namespace {

[[noreturn]] void fail(int number, std::string description) {
  throw runtime::Error(number, "DAO.TableDefs", std::move(description));
}

file::PropertyItem requiredProperty() {
  return {"Required", file::ColumnType::Boolean, 1, {std::byte{1}}};
}

}  // namespace

void Image::changeSystemTable(std::uint32_t page) {
  auto& system = table(page);
  load(system);
  system.rowsChanged = true;
}

void Image::setDefinition(Table& changed, file::TableDefinition design) {
  changed.definition = std::make_shared<const file::TableDefinition>(std::move(design));
  changed.designChanged = true;
  changeSystemTable(file::CatalogueTable);
  touchObject(connection_, changed.page);
}

file::PropertyBlock Image::properties(std::uint32_t id) {
  load(table(file::CatalogueTable));
  return readProperties(connection_, source_->format(), id);
}

void Image::createTable(file::TableDefinition design, const std::vector<std::string>& required) {
  requireWritable();
  checkName(design.name);
  changeSystemTable(file::CatalogueTable);
  changeSystemTable(file::PermissionsTable);
  if (nameTaken(design.name)) fail(3010, "Tabella già presente: " + design.name);
  if (!freePages_) freePages_ = std::make_unique<file::FreePages>(*source_);
  design.page = freePages_->take();
  createRows(design);
  insertObject(connection_, {design.page, file::TablesContainer, design.name, file::ObjectType::Table, 0});
  if (!required.empty()) {
    file::PropertyBlock block;
    for (const auto& column : required) block.set(column, requiredProperty());
    writeProperties(connection_, design.page, block);
  }
  Table created;
  created.name = design.name;
  created.page = design.page;
  created.loaded = created.isNew = true;
  created.definition = std::make_shared<const file::TableDefinition>(std::move(design));
  state_.tables.push_back(std::move(created));
  indexNames();
}

std::uint32_t Image::createObject(const std::string& name, file::ObjectType type, std::uint32_t flags) {
  requireWritable();
  checkName(name);
  changeSystemTable(file::CatalogueTable);
  changeSystemTable(file::PermissionsTable);
  if (nameTaken(name)) fail(3012, "Oggetto già presente: " + name);
  // Objects without a page count upwards from the lowest negative number.
  auto query = connection_.prepare("SELECT max(c0) FROM t2 WHERE c0 < 0");
  query.step();
  const auto last = query.null(0) ? std::int64_t{INT32_MIN} - 1 : query.integer(0);
  query.reset();
  const auto id = static_cast<std::uint32_t>(static_cast<std::int32_t>(last + 1));
  insertObject(connection_, {id, file::TablesContainer, name, type, flags});
  return id;
}

void Image::changeObject(std::uint32_t id, const std::string& name, std::uint32_t flags) {
  requireWritable();
  checkName(name);
  changeSystemTable(file::CatalogueTable);
  if (nameTaken(name, id)) fail(3012, "Oggetto già presente: " + name);
  auto update = connection_.prepare("UPDATE t2 SET c2 = ?2, c7 = ?3 WHERE c0 = ?1");
  update.bind(1, std::int64_t{static_cast<std::int32_t>(id)});
  update.bind(2, std::string_view(name));
  update.bind(3, std::int64_t{static_cast<std::int32_t>(flags)});
  update.run();
  touchObject(connection_, id);
}

void Image::dropObject(std::uint32_t id) {
  requireWritable();
  changeSystemTable(file::CatalogueTable);
  changeSystemTable(file::PermissionsTable);
  deleteObject(connection_, id);
}

bool Image::nameTaken(std::string_view name, std::uint32_t except) {
  auto query = connection_.prepare("SELECT 1 FROM t2 WHERE c1 = ?1 AND c2 = ?2 AND c0 <> ?3");
  query.bind(3, std::int64_t{static_cast<std::int32_t>(except)});
  query.bind(1, static_cast<std::int64_t>(file::TablesContainer));
  query.bind(2, name);
  return query.step();
}

void Image::dropTable(std::string_view name) {
  requireWritable();
  auto& gone = tableNamed(name, 3376);
  const auto page = gone.page;
  if (gone.flags != 0) fail(3111, "Impossibile eliminare una tabella di sistema: " + gone.name);
  if (isRelated(definition(gone))) fail(3281, "La tabella " + gone.name + " è usata da una relazione");
  changeSystemTable(file::CatalogueTable);
  changeSystemTable(file::PermissionsTable);
  deleteObject(connection_, page);
  if (gone.scanned) connection_.execute("DROP TABLE temp." + tableName(page));
  if (gone.loaded) connection_.execute("DROP TABLE " + tableName(page));
  if (!gone.isNew) state_.dropped.push_back(page);
  state_.autoNumbers.erase(page);
  std::erase_if(state_.tables, [&](const Table& table) { return table.page == page; });
  indexNames();
}

void Image::createIndex(std::string_view tableName_, const IndexDesign& index) {
  requireWritable();
  auto& changed = tableNamed(tableName_, 3078);
  auto design = definition(changed);
  addIndex(design, index);
  load(changed);
  const auto& real = design.realIndexes.back();
  if (real.flags & file::RealIndex::Required) {
    for (const auto& part : real.columns) {
      auto query = connection_.prepare("SELECT 1 FROM " + image::tableName(changed.page) + " WHERE " +
                                       columnName(part.column) + " IS NULL LIMIT 1");
      if (query.step()) fail(3058, "L'indice " + index.name + " non ammette un valore Null");
    }
  }
  std::vector<std::uint16_t> none;
  makeIndexes(design, none, true);
  setDefinition(changed, std::move(design));
  changed.rowsChanged = true;
  changed.guarded = false;
}

void Image::dropIndex(std::string_view tableName_, std::string_view name) {
  requireWritable();
  auto& changed = tableNamed(tableName_, 3078);
  auto design = definition(changed);
  removeIndex(design, name);
  load(changed);
  dropRules(changed);
  setDefinition(changed, std::move(design));
  changed.rowsChanged = true;
}

void Image::dropRules(Table& changed) {
  std::vector<std::string> commands;
  auto query = connection_.prepare(
      "SELECT 'DROP ' || type || ' ' || name FROM sqlite_master WHERE tbl_name = ?1 AND "
      "type IN ('index', 'trigger')");
  query.bind(1, std::string_view(image::tableName(changed.page)));
  while (query.step())
    commands.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(query.handle(), 0)));
  query.reset();
  for (const auto& command : commands) connection_.execute(command);
  changed.guarded = false;
}

void Image::renameColumn(std::uint32_t page, std::string_view name, const std::string& newName) {
  requireWritable();
  checkName(newName);
  auto& changed = table(page);
  auto design = definition(changed);
  const auto position = design.find(name);
  if (!position) fail(3265, "Campo inesistente: " + std::string(name));
  const auto other = design.find(newName);
  if (other && other != position) fail(3191, "Campo già presente: " + newName);
  const std::string oldName = design.columns[*position].name;
  design.columns[*position].name = newName;

  changeSystemTable(file::CatalogueTable);
  changeSystemTable(file::RelationshipsTable);
  auto block = properties(page);
  block.renameOwner(oldName, newName);
  writeProperties(connection_, page, block);
  renameInRelations(connection_, changed.name, oldName, newName);
  setDefinition(changed, std::move(design));
}

void Image::dropColumn(std::uint32_t page, std::string_view name) {
  requireWritable();
  auto& changed = table(page);
  auto design = definition(changed);
  const auto position = design.find(name);
  if (!position) fail(3265, "Campo inesistente: " + std::string(name));
  const auto column = design.columns[*position];
  if (isIndexed(design, column.number)) fail(3280, "Il campo " + column.name + " fa parte di un indice");
  if (design.columns.size() == 1) fail(3264, "La tabella " + design.name + " deve avere almeno un campo");
  design.columns.erase(design.columns.begin() + static_cast<std::ptrdiff_t>(*position));

  load(changed);
  dropRules(changed);
  changeSystemTable(file::CatalogueTable);
  auto block = properties(page);
  block.removeOwner(column.name);
  writeProperties(connection_, page, block);
  setDefinition(changed, std::move(design));
  changed.rowsChanged = true;
}

}  // namespace jet::image
