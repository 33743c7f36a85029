// The scratch database in SQLite: settings, orders, statements, errors.
#include "jet/image/connection.h"

#include <charconv>

#include "jet/file/errors.h"
#include "jet/file/text/text_key.h"
#include "jet/image/decimal.h"

namespace jet::image {

namespace {

// Cache of the scratch database; what is larger goes to a temporary file.
constexpr char Settings[] =
    "PRAGMA cache_size = -24576; PRAGMA synchronous = OFF; PRAGMA temp_store = FILE;"
    "PRAGMA foreign_keys = OFF; PRAGMA recursive_triggers = ON;";

/// SQLite's words for what goes beyond one of its limits or a number's range.
struct Limit {
  std::string_view words;
  int number;
  const char* description;
};

constexpr Limit Limits[] = {
    {"parser stack overflow", TooComplex, "Espressione troppo complessa"},
    {"Expression tree is too large", TooComplex, "Espressione troppo complessa"},
    {"too many", TooComplex, "Espressione troppo complessa"},
    {"at most 64 tables", TooComplex, "Espressione troppo complessa"},
    {"integer overflow", runtime::Overflow, "Overflow"},
    {"cannot open savepoint", TableInUse, "Tabella non ancora letta, e un'istruzione di modifica è in corso"},
};

// Bits of SQLite's mask of optimisations, as its tests name them: the filter before an automatic index, and
// its use further outside. It hashes a text by its bytes, or by how many there are, so that under a collation
// equal texts miss each other: 'alfa' and 'alfa ', a Decimal's 1 and 1.00.
constexpr int BloomFilter = 0x80000, BloomPulldown = 0x100000;
// One row if a join over an automatic index finds the text that is equal and longer.
constexpr char EqualTextsMeet[] =
    "SELECT 1 FROM (SELECT name AS a FROM sqlite_master WHERE 0 UNION ALL SELECT 'a') AS x CROSS JOIN "
    "(SELECT name AS b FROM sqlite_master WHERE 0 UNION ALL SELECT 'a ') AS y ON x.a COLLATE JET = y.b";

template <int (*compare)(std::string_view, std::string_view)>
int collate(void*, int lengthA, const void* a, int lengthB, const void* b) {
  return compare({static_cast<const char*>(a), static_cast<std::size_t>(lengthA)},
                 {static_cast<const char*>(b), static_cast<std::size_t>(lengthB)});
}

}  // namespace

runtime::Error errorFromSqlite(sqlite3* connection) {
  const std::string message = sqlite3_errmsg(connection);
  int number = 0;
  const auto [end, fault] = std::from_chars(message.data(), message.data() + message.size(), number);
  if (fault == std::errc() && end != message.data() + message.size() && *end == '|')
    return runtime::Error(number, source::Database, std::string(end + 1));
  switch (sqlite3_errcode(connection)) {
    case SQLITE_CONSTRAINT:
      return errorOf(DuplicateKey, source::Database);
    case SQLITE_FULL:
    case SQLITE_IOERR:
    case SQLITE_CANTOPEN:
      return errorOf(TemporarySpaceFull, source::Database);
    case SQLITE_NOMEM:
      return runtime::Error(7, source::Database, "Memoria esaurita");
    case SQLITE_TOOBIG:
      return runtime::Error(14, source::Database, "Spazio per le stringhe esaurito: un valore supera 1 GB");
    case SQLITE_LOCKED:
      return runtime::Error(TableInUse, source::Database, "Tabella in uso da un altro recordset");
    default:
      break;
  }
  for (const Limit& limit : Limits)
    if (message.find(limit.words) != std::string::npos)
      return runtime::Error(limit.number, source::Database, limit.description);
  return errorOf(ReservedError, source::Database,
                 "codice " + std::to_string(sqlite3_extended_errcode(connection)));
}

void registerOrders(sqlite3* connection) {
  sqlite3_create_collation_v2(connection, "JET", SQLITE_UTF8, nullptr, collate<file::compareText>, nullptr);
  sqlite3_create_collation_v2(connection, "JETDECIMAL", SQLITE_UTF8, nullptr, collate<compareDecimals>,
                              nullptr);
  sqlite3_test_control(SQLITE_TESTCTRL_OPTIMIZATIONS, connection, BloomFilter | BloomPulldown);
}

void requireOrders(sqlite3* connection) {
  if (!Statement(connection, EqualTextsMeet).step())
    throw runtime::Error(ReservedError, source::Database,
                         std::string("Errore riservato: SQLite ") + sqlite3_libversion() +
                             " non trova i testi uguali che hanno lunghezze diverse");
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
  requireBound(handle_.get(), sqlite3_bind_text64(handle_.get(), parameter, value.data() ? value.data() : "",
                                                  value.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
}

void requireBound(sqlite3_stmt* statement, int result) {
  if (result != SQLITE_OK && result != SQLITE_RANGE) throw errorFromSqlite(sqlite3_db_handle(statement));
}

std::string Statement::text(int column) const {
  const auto* data = reinterpret_cast<const char*>(sqlite3_column_text(handle_.get(), column));
  return data ? std::string(data, static_cast<std::size_t>(sqlite3_column_bytes(handle_.get(), column)))
              : std::string();
}

Connection::Connection() {
  sqlite3* connection = nullptr;
  const int result = sqlite3_open_v2(
      "", &connection, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr);
  handle_.reset(connection);
  if (result != SQLITE_OK) throw errorFromSqlite(connection);
  registerOrders(connection);
  // The same for all connections of a process; asked again after a failure.
  static const bool checked = (requireOrders(connection), true);
  static_cast<void>(checked);
  execute(Settings);
}

void Connection::execute(const std::string& sql) const {
  if (sqlite3_exec(handle_.get(), sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
    throw errorFromSqlite(handle_.get());
}

}  // namespace jet::image
