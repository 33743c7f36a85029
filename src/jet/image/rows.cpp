// Definitions and rows of tables on their way from the file, or a linked one, into the image, and out again.
#include "jet/image/rows.h"

#include <algorithm>

#include "jet/file/errors.h"
#include "jet/file/read/definition_reader.h"
#include "jet/file/read/table_reader.h"
#include "jet/image/catalogue_rows.h"
#include "jet/image/file_scan.h"
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

/// Drops what belongs to t<page> of these types.
void dropMatching(const Connection& connection, std::uint32_t page, const std::string& types) {
  std::vector<std::string> commands;
  auto query = connection.prepare(
      "SELECT 'DROP ' || type || ' ' || name FROM sqlite_master WHERE tbl_name = ?1 AND type IN (" + types +
      ")");
  query.bind(1, std::string_view(tableName(page)));
  while (query.step()) commands.push_back(query.text(0));
  query.reset();
  for (const auto& command : commands) connection.execute(command);
}

}  // namespace

Rows::Rows(Tables& tables) : tables_(tables), connection_(tables.connection()) {
  registerFileScan(connection_, *this);
}

const file::TableDefinition& Rows::definition(Table& table) {
  if (table.link) return linkedDefinition(table);
  if (!table.definition)
    table.definition =
        std::make_shared<const file::TableDefinition>(file::readDefinition(source(), table.page, table.name));
  return *table.definition;
}

std::shared_ptr<const file::TableDefinition> Rows::sharedDefinition(std::uint32_t page) {
  auto& wanted = tables_.at(page);
  definition(wanted);
  return wanted.definition;
}

std::optional<Link> Rows::link(const Table& table) {
  if (!table.link) return std::nullopt;
  load(tables_.at(file::CatalogueTable));
  return readLink(connection_, table.page);
}

const file::TableDefinition& Rows::linkedDefinition(Table& wanted) {
  if (wanted.linked && unchanged(*wanted.linked)) return *wanted.definition;
  const auto target = link(wanted);
  if (!target || !target->connect.empty())
    throw runtime::Error(ExternalDatabase, source::TableDef,
                         "Tabella collegata a un'origine non disponibile: " + wanted.name);
  auto found = findLinked(target->path, target->sourceTable);
  // The rows of the file as it was are of no use any more.
  drop(wanted);
  auto design = found.source;
  design.page = wanted.page;
  design.name = wanted.name;
  std::erase_if(design.logicalIndexes, [](const file::LogicalIndex& index) {
    return index.kind == file::LogicalIndex::Kind::Relation;
  });
  wanted.linked = std::make_shared<const LinkedTable>(std::move(found));
  wanted.definition = std::make_shared<const file::TableDefinition>(std::move(design));
  return *wanted.definition;
}

void Rows::createTable(const file::TableDefinition& design) const {
  if (design.columns.empty())
    throw runtime::Error(UnrecognizedFormat, source::Database, "Tabella senza campi: " + design.name);
  std::string sql = "CREATE TABLE main." + tableName(design.page) + "(";
  for (const auto& column : design.columns)
    sql += columnName(column.number) + " " + columnDeclaration(column.type) + ",";
  sql.back() = ')';
  connection_.execute(sql);
}

void Rows::makeTable(Table& table) {
  if (table.made()) return;
  createTable(definition(table));
  table.rows = table.scanned() ? RowState::EmptyScanned : RowState::Empty;
}

void Rows::makeNew(Table& table) {
  createTable(*table.definition);
  table.rows = RowState::Loaded;
}

void Rows::load(Table& table) {
  if (table.loaded()) return;
  const auto& design = definition(table);
  Savepoint savepoint(connection_, "load");
  if (table.scanned()) connection_.execute("DROP TABLE temp." + tableName(table.page));
  if (!table.made()) createTable(design);
  if (table.link)
    loadFromLink(openLinked(table.linked->path), table.linked->source, table);
  else
    loadFromFile(design);
  savepoint.keep();
  table.rows = RowState::Loaded;
}

/// One statement over the virtual table takes half the time of one for each row.
void Rows::loadFromFile(const file::TableDefinition& design) const {
  const std::string columns = columnNames(design);
  connection_.execute("CREATE VIRTUAL TABLE temp.loading USING jet_file(" + std::to_string(design.page) +
                      ")");
  connection_.execute("INSERT INTO main." + tableName(design.page) + "(" + columns + ") SELECT " + columns +
                      " FROM temp.loading");
  connection_.execute("DROP TABLE temp.loading");
}

void Rows::loadFromLink(const file::PageFile& pages, const file::TableDefinition& design,
                        const Table& table) const {
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

void Rows::scan(Table& table) {
  if (table.loaded() || table.scanned()) return;
  if (definition(table).rows < SmallTable || table.link) return load(table);
  connection_.execute("CREATE VIRTUAL TABLE temp." + tableName(table.page) + " USING jet_file(" +
                      std::to_string(table.page) + ")");
  table.rows = table.made() ? RowState::EmptyScanned : RowState::Scanned;
}

void Rows::makeIndexes(const file::TableDefinition& design, const std::vector<std::uint16_t>& compared,
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

void Rows::markConstrained(Table& table) {
  table.rows = RowState::Constrained;
}

void Rows::dropTriggers(Table& table) {
  tables_.endGeneration();
  if (table.rows != RowState::Constrained) return;
  dropMatching(connection_, table.page, "'trigger'");
  table.rows = RowState::Loaded;
}

void Rows::dropIndexesAndTriggers(Table& table) {
  tables_.endGeneration();
  if (table.made()) dropMatching(connection_, table.page, "'index', 'trigger'");
  if (table.rows == RowState::Constrained) table.rows = RowState::Loaded;
}

void Rows::dropScan(Table& table) {
  tables_.endGeneration();
  if (!table.scanned()) return;
  connection_.execute("DROP TABLE temp." + tableName(table.page));
  table.rows = table.made() ? RowState::Empty : RowState::InFile;
}

void Rows::drop(Table& table) {
  dropScan(table);
  if (table.made()) connection_.execute("DROP TABLE main." + tableName(table.page));
  table.rows = RowState::InFile;
}

}  // namespace jet::image
