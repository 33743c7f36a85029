// The virtual table that gives the rows of a table as the pages of the file hold them.
#include "jet/image/file_scan.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "jet/file/read/table_reader.h"
#include "jet/image/row_codec.h"
#include "jet/image/rows.h"

namespace jet::image {

namespace {

// SQLite's mask of used columns: the last bit stands for all columns from it on.
constexpr std::size_t LastMaskBit = 63;

struct ScanTable : sqlite3_vtab {
  Rows* rows;
  std::uint32_t page;
};

struct ScanCursor : sqlite3_vtab_cursor {
  std::shared_ptr<const file::TableDefinition> design;
  std::optional<file::TableReader> reader;
  std::optional<FieldBinder> fields;
  file::Row row;
  bool atEnd = true;
  std::int64_t rowid = 0;
};

ScanTable& tableOf(sqlite3_vtab* table) {
  return *static_cast<ScanTable*>(table);
}
ScanCursor& cursorOf(sqlite3_vtab_cursor* cursor) {
  return *static_cast<ScanCursor*>(cursor);
}

/// Runs `work`; a numbered error becomes SQLite's, in the text form that errorFromSqlite reads.
template <typename Work>
int asResult(char** message, Work work) {
  try {
    work();
    return SQLITE_OK;
  } catch (const runtime::Error& error) {
    sqlite3_free(*message);
    *message = sqlite3_mprintf("%d|%s", error.number(), error.description().c_str());
  } catch (const std::bad_alloc&) {
    return SQLITE_NOMEM;
  }
  return SQLITE_ERROR;
}

int connect(sqlite3* connection, void* rows, int count, const char* const* arguments, sqlite3_vtab** result,
            char** message) {
  return asResult(message, [&] {
    auto table = std::make_unique<ScanTable>();
    table->rows = static_cast<Rows*>(rows);
    const std::string_view page = count > 3 ? arguments[3] : "";
    std::from_chars(page.data(), page.data() + page.size(), table->page);
    const auto design = table->rows->sharedDefinition(table->page);
    std::string sql = "CREATE TABLE x(";
    for (const auto& column : design->columns)
      sql += columnName(column.number) + " " + columnDeclaration(column.type) + ",";
    sql.back() = ')';
    if (sqlite3_declare_vtab(connection, sql.c_str()) != SQLITE_OK) throw errorFromSqlite(connection);
    *result = table.release();
  });
}

int disconnect(sqlite3_vtab* table) {
  delete &tableOf(table);
  return SQLITE_OK;
}

/// Hands the mask of the columns that are used on to filter, as text.
int bestIndex(sqlite3_vtab* vtab, sqlite3_index_info* info) {
  return asResult(&vtab->zErrMsg, [&] {
    auto& table = tableOf(vtab);
    const auto rows = table.rows->sharedDefinition(table.page)->rows;
    info->idxStr = sqlite3_mprintf("%llu", info->colUsed);
    info->needToFreeIdxStr = 1;
    info->estimatedRows = rows;
    info->estimatedCost = rows + 1.0;
  });
}

std::vector<std::size_t> usedColumns(const file::TableDefinition& design, std::string_view plan) {
  std::uint64_t mask = ~std::uint64_t{0};
  std::from_chars(plan.data(), plan.data() + plan.size(), mask);
  std::vector<std::size_t> used;
  for (std::size_t i = 0; i < design.columns.size(); ++i)
    if (mask >> std::min(i, LastMaskBit) & 1) used.push_back(i);
  return used;
}

int open(sqlite3_vtab*, sqlite3_vtab_cursor** result) {
  *result = new ScanCursor{};
  return SQLITE_OK;
}

int close(sqlite3_vtab_cursor* cursor) {
  delete &cursorOf(cursor);
  return SQLITE_OK;
}

void advance(ScanCursor& cursor) {
  cursor.atEnd = !cursor.reader->next(cursor.row);
  ++cursor.rowid;
}

int filter(sqlite3_vtab_cursor* base, int, const char* plan, int, sqlite3_value**) {
  return asResult(&base->pVtab->zErrMsg, [&] {
    auto& cursor = cursorOf(base);
    auto& table = tableOf(base->pVtab);
    cursor.reader.reset();
    cursor.design = table.rows->sharedDefinition(table.page);
    cursor.reader.emplace(table.rows->source(), *cursor.design,
                          usedColumns(*cursor.design, plan ? plan : ""));
    cursor.fields.emplace(table.rows->source(), *cursor.design);
    cursor.rowid = 0;
    advance(cursor);
  });
}

int next(sqlite3_vtab_cursor* base) {
  return asResult(&base->pVtab->zErrMsg, [&] { advance(cursorOf(base)); });
}

int atEnd(sqlite3_vtab_cursor* base) {
  return cursorOf(base).atEnd;
}

int column(sqlite3_vtab_cursor* base, sqlite3_context* context, int index) {
  return asResult(&base->pVtab->zErrMsg, [&] {
    auto& cursor = cursorOf(base);
    cursor.fields->result(context, cursor.row, static_cast<std::size_t>(index));
  });
}

int rowid(sqlite3_vtab_cursor* base, sqlite3_int64* result) {
  *result = cursorOf(base).rowid;
  return SQLITE_OK;
}

sqlite3_module scanModule() {
  sqlite3_module module{};
  module.xCreate = module.xConnect = connect;
  module.xDestroy = module.xDisconnect = disconnect;
  module.xBestIndex = bestIndex;
  module.xOpen = open;
  module.xClose = close;
  module.xFilter = filter;
  module.xNext = next;
  module.xEof = atEnd;
  module.xColumn = column;
  module.xRowid = rowid;
  return module;
}

const sqlite3_module Module = scanModule();

}  // namespace

void registerFileScan(const Connection& connection, Rows& rows) {
  sqlite3_create_module_v2(connection.handle(), "jet_file", &Module, &rows, nullptr);
}

}  // namespace jet::image
