#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "runtime/error.h"

namespace jet::image {

/// What SQLite says went wrong, as a numbered error: one that a registered function raised
/// ("number|description") as it is; a duplicate key 3022, a full scratch disk 3183, a table in use 3211, no
/// memory 7, a value over 1 GB 14, a statement beyond SQLite's limits 3360, an overflow 6, anything else
/// 3000.
runtime::Error errorFromSqlite(sqlite3* connection);

/// Registers the collations JET, the order of texts in the file's keys, and JETDECIMAL, that of the image's
/// decimal digits, and switches off what in SQLite takes equal values to be equal in bytes.
void registerOrders(sqlite3* connection);
/// Error 3000 if the SQLite at hand does so nonetheless: its joins would lose rows.
void requireOrders(sqlite3* connection);

/// Throws errorFromSqlite where the `result` of binding a value tells of a parameter that has stayed Null,
/// for want of memory. A parameter that the statement doesn't have is none.
void requireBound(sqlite3_stmt* statement, int result);

/// One prepared statement. Parameters count from 1, columns from 0, as SQLite counts them.
class Statement {
 public:
  Statement() = default;
  Statement(sqlite3* connection, std::string_view sql);

  /// True while there is a row; false at the end. Throws errorFromSqlite.
  bool step();
  void reset() { sqlite3_reset(handle_.get()); }
  /// Runs a statement without rows and makes it ready for the next bindings.
  void run();

  void bind(int parameter, std::int64_t value) { sqlite3_bind_int64(handle_.get(), parameter, value); }
  /// The text is copied.
  void bind(int parameter, std::string_view value);
  void bindNull(int parameter) { sqlite3_bind_null(handle_.get(), parameter); }

  std::int64_t integer(int column) const { return sqlite3_column_int64(handle_.get(), column); }
  std::string text(int column) const;
  bool null(int column) const { return sqlite3_column_type(handle_.get(), column) == SQLITE_NULL; }

  sqlite3_stmt* handle() const { return handle_.get(); }
  explicit operator bool() const { return handle_ != nullptr; }

 private:
  struct Finalize {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
  };
  std::unique_ptr<sqlite3_stmt, Finalize> handle_;
};

/// The scratch database behind an open file: private, on disk only where it outgrows its cache, gone at the
/// end. Its orders are JET and JETDECIMAL.
class Connection {
 public:
  Connection();

  sqlite3* handle() const { return handle_.get(); }
  Statement prepare(std::string_view sql) const { return Statement(handle_.get(), sql); }
  void execute(const std::string& sql) const;

 private:
  struct Close {
    void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
  };
  std::unique_ptr<sqlite3, Close> handle_;
};

}  // namespace jet::image
