// The list of tables of an open file, and the transactions that take its changes back.
#include "jet/image/tables.h"

#include <algorithm>

#include "jet/file/errors.h"
#include "jet/file/read/catalogue.h"

namespace jet::image {

namespace {

std::string levelName(std::size_t level) {
  return "level" + std::to_string(level);
}

}  // namespace

Tables::Tables(std::unique_ptr<file::PageFile> source) : source_(std::move(source)) {
  for (auto& object : file::readCatalogue(*source_)) {
    const bool link =
        object.type == file::ObjectType::LinkedTable || object.type == file::ObjectType::OdbcTable;
    if (!link && object.type != file::ObjectType::Table) continue;
    Table table;
    table.link = link;
    table.name = std::move(object.name);
    table.page = object.id;
    table.flags = object.flags;
    state_.tables.push_back(std::move(table));
  }
  indexNames();
}

void Tables::requireWritable() const {
  if (source_->readOnly())
    throw errorOf(ReadOnly, source::Database, "database di sola lettura - " + source_->path());
}

void Tables::indexNames() {
  state_.names.clear();
  for (std::size_t i = 0; i < state_.tables.size(); ++i)
    state_.names.emplace(file::nameKey(state_.tables[i].name), i);
}

const Table* Tables::find(std::string_view name) const {
  const auto found = state_.names.find(file::nameKey(name));
  return found == state_.names.end() ? nullptr : &state_.tables[found->second];
}

Table& Tables::at(std::uint32_t page) {
  for (auto& table : state_.tables)
    if (table.page == page) return table;
  throw runtime::Error(UnknownTable, source::Database, "Tabella inesistente: numero " + std::to_string(page));
}

Table& Tables::named(std::string_view name, int errorNumber) {
  const auto found = state_.names.find(file::nameKey(name));
  if (found == state_.names.end())
    throw runtime::Error(errorNumber, source::Database, "Tabella inesistente: " + std::string(name));
  return state_.tables[found->second];
}

Table& Tables::changeable(std::uint32_t page) {
  requireWritable();
  auto& wanted = at(page);
  if (wanted.link) throw errorOf(NotForLinkedTables, source::TableDefs, wanted.name);
  if (wanted.system()) throw errorOf(SystemTable, source::TableDefs, wanted.name);
  return wanted;
}

Table& Tables::changeable(std::string_view name) {
  return changeable(named(name, UnknownTable).page);
}

Table& Tables::add(Table table) {
  state_.tables.push_back(std::move(table));
  indexNames();
  return state_.tables.back();
}

void Tables::remove(std::uint32_t page) {
  const auto& gone = at(page);
  if (gone.unsaved != Unsaved::Table && !gone.link) state_.dropped.push_back(page);
  state_.autoNumbers.erase(page);
  std::erase_if(state_.tables, [&](const Table& table) { return table.page == page; });
  indexNames();
}

void Tables::rename(Table& table, const std::string& newName) {
  table.name = newName;
  indexNames();
}

std::uint32_t Tables::newPage() {
  if (!freePages_) freePages_ = std::make_unique<file::FreePages>(*source_);
  return freePages_->take();
}

void Tables::begin() {
  connection_.execute("SAVEPOINT " + levelName(saved_.size()));
  saved_.push_back(state_);
}

void Tables::commit() {
  connection_.execute("RELEASE " + levelName(saved_.size() - 1));
  saved_.pop_back();
}

void Tables::rollback() {
  endGeneration();
  if (sqlite3_get_autocommit(connection_.handle())) {
    // Without memory or disk SQLite takes back all levels at once.
    for (auto& state : saved_) state = saved_.front();
  } else {
    const std::string level = levelName(saved_.size() - 1);
    connection_.execute("ROLLBACK TO " + level);
    connection_.execute("RELEASE " + level);
  }
  state_ = std::move(saved_.back());
  saved_.pop_back();
}

bool Tables::changed() const {
  return !state_.dropped.empty() || std::ranges::any_of(state_.tables, [](const Table& table) {
    return table.unsaved != Unsaved::Nothing;
  });
}

void Tables::rebase(std::unique_ptr<file::PageFile> source) {
  endGeneration();
  source_ = std::move(source);
  freePages_.reset();
  state_.dropped.clear();
  for (auto& table : state_.tables) {
    if (table.unsaved != Unsaved::Nothing) table.definition.reset();
    table.unsaved = Unsaved::Nothing;
  }
}

}  // namespace jet::image
