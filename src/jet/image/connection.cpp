#include "jet/image/connection.h"

#include <charconv>

#include "jet/file/text_key.h"

namespace jet::image {

namespace {

constexpr char Source[] = "DAO.Database";
// Cache of the scratch database; what is larger goes to a temporary file.
constexpr char Settings[] =
    "PRAGMA cache_size = -24576; PRAGMA synchronous = OFF; PRAGMA temp_store = FILE;"
    "PRAGMA foreign_keys = OFF; PRAGMA recursive_triggers = OFF;";

/// SQLite's words for what goes beyond one of its limits or a number's range.
struct Limit {
  std::string_view words;
  int number;
  const char* description;
};

constexpr Limit Limits[] = {
    {"parser stack overflow", 3360, "Espressione troppo complessa"},
    {"Expression tree is too large", 3360, "Espressione troppo complessa"},
    {"too many", 3360, "Espressione troppo complessa"},
    {"at most 64 tables", 3360, "Espressione troppo complessa"},
    {"integer overflow", runtime::Overflow, "Overflow"},
};

int compareJet(void*, int lengthA, const void* a, int lengthB, const void* b) {
  return file::compareText({static_cast<const char*>(a), static_cast<std::size_t>(lengthA)},
                           {static_cast<const char*>(b), static_cast<std::size_t>(lengthB)});
}

}  // namespace

runtime::Error errorFromSqlite(sqlite3* connection) {
  const std::string message = sqlite3_errmsg(connection);
  int number = 0;
  const auto [end, error] = std::from_chars(message.data(), message.data() + message.size(), number);
  if (error == std::errc() && end != message.data() + message.size() && *end == '|')
    return runtime::Error(number, Source, std::string(end + 1));
  switch (sqlite3_errcode(connection)) {
    case SQLITE_CONSTRAINT:
      return runtime::Error(3022, Source, "Valore doppio in un indice che non ammette duplicati");
    case SQLITE_FULL:
    case SQLITE_IOERR:
    case SQLITE_CANTOPEN:
      return runtime::Error(3183, Source, "Spazio insufficiente sul disco temporaneo");
    case SQLITE_NOMEM:
      return runtime::Error(7, Source, "Memoria esaurita");
    case SQLITE_LOCKED:
      return runtime::Error(3211, Source, "Tabella in uso da un altro recordset");
    default:
      break;
  }
  for (const Limit& limit : Limits)
    if (message.find(limit.words) != std::string::npos)
      return runtime::Error(limit.number, Source, limit.description);
  return runtime::Error(3000, Source, "Errore riservato: " + message);
}

void registerTextOrder(sqlite3* connection) {
  sqlite3_create_collation_v2(connection, "JET", SQLITE_UTF8, nullptr, compareJet, nullptr);
}

Statement::Statement(sqlite3* connection, std::string_view sql) {
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(connection, sql.data(), static_cast<int>(sql.size()), &statement, nullptr) !=
      SQLITE_OK)
    throw errorFromSqlite(connection);
  handle_.reset(statement);
}

bool Statement::step() {
  switch (sqlite3_step(handle_.get())) {
    case SQLITE_ROW:
      return true;
    case SQLITE_DONE:
      return false;
    default: {
      auto error = errorFromSqlite(sqlite3_db_handle(handle_.get()));
      sqlite3_reset(handle_.get());
      throw error;
    }
  }
}

void Statement::run() {
  while (step()) {
  }
  reset();
}

void Statement::bind(int parameter, std::string_view value) {
  sqlite3_bind_text64(handle_.get(), parameter, value.data() ? value.data() : "", value.size(),
                      SQLITE_TRANSIENT, SQLITE_UTF8);
}

Connection::Connection() {
  sqlite3* connection = nullptr;
  const int result = sqlite3_open_v2(
      "", &connection, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr);
  handle_.reset(connection);
  if (result != SQLITE_OK) throw errorFromSqlite(connection);
  registerTextOrder(connection);
  execute(Settings);
}

void Connection::execute(const std::string& sql) const {
  if (sqlite3_exec(handle_.get(), sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
    throw errorFromSqlite(handle_.get());
}

}  // namespace jet::image
