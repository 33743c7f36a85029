#include "jet/image/image.h"

#include <algorithm>

#include "jet/file/errors.h"
#include "jet/file/read/table_reader.h"
#include "jet/image/file_scan.h"
#include "jet/image/linked_table.h"
#include "jet/image/row_codec.h"

namespace jet::image {

namespace {

// Tables with fewer rows are loaded even where one pass over the file would do.
constexpr std::uint32_t SmallTable = 2000;

/// A savepoint that is taken back unless kept.
class Savepoint {
 public:
  Savepoint(const Connection& connection, std::string name)
      : connection_(connection), name_(std::move(name)) {
    connection_.execute("SAVEPOINT " + name_);
  }
  ~Savepoint() {
    if (kept_) return;
    // Nothing more can be done about a failure here, and the error under way says what happened.
    sqlite3_exec(connection_.handle(), ("ROLLBACK TO " + name_ + "; RELEASE " + name_).c_str(), nullptr,
                 nullptr, nullptr);
  }
  Savepoint(const Savepoint&) = delete;
  Savepoint& operator=(const Savepoint&) = delete;
  void keep() {
    connection_.execute("RELEASE " + name_);
    kept_ = true;
  }

 private:
  const Connection& connection_;
  std::string name_;
  bool kept_ = false;
};

std::string columnNames(const file::TableDefinition& design) {
  std::string names;
  for (const auto& column : design.columns) names += (names.empty() ? "" : ",") + columnName(column.number);
  return names;
}

std::string levelName(std::size_t level) {
  return "level" + std::to_string(level);
}

}  // namespace

Image::Image(std::unique_ptr<file::PageFile> source) : source_(std::move(source)) {
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
  sqlite3_create_function_v2(connection_.handle(), "jet_auto_number", 2, SQLITE_UTF8, this,
                             &Image::autoNumber, nullptr, nullptr, nullptr);
  sqlite3_create_function_v2(connection_.handle(), "jet_identity", 0, SQLITE_UTF8, this, &Image::identity,
                             nullptr, nullptr, nullptr);
  sqlite3_create_function_v2(connection_.handle(), "jet_cascaded", 1, SQLITE_UTF8, this, &Image::cascaded,
                             nullptr, nullptr, nullptr);
  registerFileScan(*this);
}

Image::~Image() = default;

void Image::indexNames() {
  state_.names.clear();
  for (std::size_t i = 0; i < state_.tables.size(); ++i)
    state_.names.emplace(file::nameKey(state_.tables[i].name), i);
}

const Table* Image::find(std::string_view name) const {
  const auto found = state_.names.find(file::nameKey(name));
  return found == state_.names.end() ? nullptr : &state_.tables[found->second];
}

Table& Image::table(std::uint32_t page) {
  for (auto& table : state_.tables)
    if (table.page == page) return table;
  throw runtime::Error(UnknownTable, source::Database, "Tabella inesistente: numero " + std::to_string(page));
}

Table& Image::tableNamed(std::string_view name, int errorNumber) {
  const Table* found = find(name);
  if (!found)
    throw runtime::Error(errorNumber, source::Database, "Tabella inesistente: " + std::string(name));
  return const_cast<Table&>(*found);
}

const file::TableDefinition& Image::definition(Table& table) {
  if (table.link) return linkedDefinition(table);
  if (!table.definition)
    table.definition =
        std::make_shared<const file::TableDefinition>(file::readDefinition(*source_, table.page, table.name));
  return *table.definition;
}

const file::TableDefinition* Image::definition(std::string_view name) {
  const Table* found = find(name);
  return found ? &definition(const_cast<Table&>(*found)) : nullptr;
}

const file::TableDefinition& Image::definition(std::uint32_t page) {
  return definition(table(page));
}

std::shared_ptr<const file::TableDefinition> Image::sharedDefinition(std::uint32_t page) {
  auto& wanted = table(page);
  definition(wanted);
  return wanted.definition;
}

void Image::requireWritable() const {
  if (source_->readOnly())
    throw errorOf(ReadOnly, source::Database, "database di sola lettura - " + source_->path());
}

void Image::makeRows(Table& table) {
  if (table.made) return;
  const auto& design = definition(table);
  if (design.columns.empty())
    throw runtime::Error(UnrecognizedFormat, source::Database, "Tabella senza campi: " + design.name);
  std::string sql = "CREATE TABLE main." + tableName(table.page) + "(";
  for (const auto& column : design.columns)
    sql += columnName(column.number) + " " + columnDeclaration(column.type) + ",";
  sql.back() = ')';
  connection_.execute(sql);
  table.made = true;
}

void Image::load(Table& table) {
  if (table.loaded) return;
  const auto& design = definition(table);
  const bool made = table.made;
  Savepoint savepoint(connection_, "load");
  try {
    if (table.scanned) connection_.execute("DROP TABLE temp." + tableName(table.page));
    makeRows(table);
    if (table.link)
      loadFrom(openLinked(table.linked->path), table.linked->source, table);
    else
      loadFromFile(design);
  } catch (...) {
    table.made = made;
    throw;
  }
  savepoint.keep();
  table.loaded = true;
  table.scanned = false;
}

/// One statement over the virtual table takes half the time of one for each row.
void Image::loadFromFile(const file::TableDefinition& design) {
  const std::string columns = columnNames(design);
  connection_.execute("CREATE VIRTUAL TABLE temp.loading USING jet_file(" + std::to_string(design.page) +
                      ")");
  connection_.execute("INSERT INTO main." + tableName(design.page) + "(" + columns + ") SELECT " + columns +
                      " FROM temp.loading");
  connection_.execute("DROP TABLE temp.loading");
}

void Image::loadFrom(const file::PageFile& pages, const file::TableDefinition& design, const Table& table) {
  std::string values = "?";
  for (std::size_t i = 1; i < design.columns.size(); ++i) values += ",?";
  auto insert = connection_.prepare("INSERT INTO main." + tableName(table.page) + "(" + columnNames(design) +
                                    ") VALUES (" + values + ")");
  FieldBinder binder(pages, design);
  file::TableReader reader(pages, design);
  for (file::Row row; reader.next(row);) {
    binder.bind(insert.handle(), row);
    insert.run();
  }
}

void Image::dropScan(Table& table) {
  ++generation_;
  if (table.scanned) connection_.execute("DROP TABLE temp." + tableName(table.page));
  table.scanned = false;
}

void Image::dropRows(Table& table) {
  ++generation_;
  dropScan(table);
  if (table.made) connection_.execute("DROP TABLE main." + tableName(table.page));
  table.made = table.loaded = table.guarded = false;
}

void Image::makeIndexes(const file::TableDefinition& design, const std::vector<std::uint16_t>& compared,
                        bool changing) {
  const auto wanted = [&](const file::RealIndex& index) {
    if (index.columns.empty()) return false;
    return (changing && index.flags & file::RealIndex::Unique) ||
           std::find(compared.begin(), compared.end(), index.columns.front().column) != compared.end();
  };
  for (std::size_t i = 0; i < design.realIndexes.size(); ++i) {
    const auto& index = design.realIndexes[i];
    if (!wanted(index)) continue;
    std::string columns;
    for (const auto& part : index.columns) columns += (columns.empty() ? "" : ",") + columnName(part.column);
    const bool unique = index.flags & file::RealIndex::Unique;
    // The name tells the columns, so that an index dropped and made anew in the design gets its own.
    std::string name = "i" + std::to_string(design.page) + (unique ? "u" : "n");
    for (const auto& part : index.columns) name += "_" + std::to_string(part.column);
    connection_.execute((unique ? "CREATE UNIQUE INDEX IF NOT EXISTS " : "CREATE INDEX IF NOT EXISTS ") +
                        name + " ON " + tableName(design.page) + "(" + columns + ")");
  }
}

void Image::prepareToRead(std::uint32_t page, const std::vector<std::uint16_t>& compared) {
  auto& wanted = table(page);
  load(wanted);
  makeIndexes(*wanted.definition, compared, false);
}

void Image::prepareToScan(std::uint32_t page) {
  auto& wanted = table(page);
  if (wanted.loaded || wanted.scanned) return;
  if (definition(wanted).rows < SmallTable || wanted.link) return load(wanted);
  connection_.execute("CREATE VIRTUAL TABLE temp." + tableName(page) + " USING jet_file(" +
                      std::to_string(page) + ")");
  wanted.scanned = true;
}

void Image::prepareToChange(std::uint32_t page, const std::vector<std::uint16_t>& compared,
                            const RowChange& change) {
  requireWritable();
  auto& wanted = table(page);
  if (wanted.link)
    throw runtime::Error(ReadOnly, source::Database,
                         "Impossibile aggiornare una tabella collegata: " + wanted.name);
  if (wanted.system()) throw errorOf(SystemTable, source::Database, wanted.name);
  cascaded_.clear();
  std::vector<Readied> done;
  readyChange(wanted, compared, change, done);
}

void Image::readyChange(Table& wanted, const std::vector<std::uint16_t>& compared, const RowChange& change,
                        std::vector<Readied>& done) {
  load(wanted);
  makeIndexes(*wanted.definition, compared, true);
  if (!wanted.guarded) guard(wanted);
  readyPartners(wanted, change, done);
}

void Image::markChanged(std::uint32_t page) {
  // What a statement does to these rows changes designs as well.
  if (page == file::CatalogueTable || page == file::QueriesTable) ++generation_;
  table(page).rowsChanged = true;
  for (const auto other : cascaded_) table(other).rowsChanged = true;
  cascaded_.clear();
}

void Image::begin() {
  connection_.execute("SAVEPOINT " + levelName(saved_.size()));
  saved_.push_back(state_);
}

void Image::commit() {
  connection_.execute("RELEASE " + levelName(saved_.size() - 1));
  saved_.pop_back();
}

void Image::rollback() {
  ++generation_;
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

bool Image::changed() const {
  return !state_.dropped.empty() ||
         std::any_of(state_.tables.begin(), state_.tables.end(), [](const Table& table) {
           return table.rowsChanged || table.designChanged || table.isNew;
         });
}

void Image::write(platform::File& out) {
  file::Changes changes;
  changes.dropped = state_.dropped;
  for (auto& table : state_.tables) {
    if (!table.rowsChanged && !table.designChanged && !table.isNew) continue;
    file::TableChange change{definition(table), nullptr};
    const auto number = state_.autoNumbers.find(table.page);
    if (number != state_.autoNumbers.end()) change.definition.autoNumber = number->second;
    if (table.rowsChanged || table.isNew)
      change.rows = std::make_unique<ImageRows>(connection_, change.definition);
    changes.tables.push_back(std::move(change));
  }
  file::writeChanged(*source_, std::move(changes), out);
}

void Image::rebase(std::unique_ptr<file::PageFile> source) {
  ++generation_;
  source_ = std::move(source);
  freePages_.reset();
  state_.dropped.clear();
  for (auto& table : state_.tables) {
    if (table.rowsChanged || table.designChanged || table.isNew) table.definition.reset();
    table.rowsChanged = table.designChanged = table.isNew = false;
  }
}

}  // namespace jet::image
