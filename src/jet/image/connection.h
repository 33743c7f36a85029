#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "jet/image/stored_value.h"
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

  /// Where a codec puts a value, and where it takes one from.
  Parameter parameter(int number) const { return {handle_.get(), number}; }
  RowColumn column(int number) const { return {handle_.get(), number}; }
  int parameters() const { return sqlite3_bind_parameter_count(handle_.get()); }

  void bind(int number, std::int64_t value) { parameter(number).integer(value); }
  void bind(int number, double value) { parameter(number).real(value); }
  void bind(int number, std::string_view value) { parameter(number).text(value); }
  void bind(int number, std::span<const std::byte> value) { parameter(number).bytes(value); }
  void bindNull(int number) { parameter(number).null(); }

  std::int64_t integer(int number) const { return column(number).integer(); }
  double real(int number) const { return column(number).real(); }
  std::string text(int number) const { return std::string(column(number).text()); }
  std::span<const std::byte> bytes(int number) const { return column(number).bytes(); }
  bool null(int number) const { return column(number).storage() == Storage::Null; }

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
  /// Drops what may be gone already, or may be in use: then it goes with the connection.
  void dropIfPossible(const std::string& sql) const noexcept;
  /// Rows that the last statement has changed, and those that all of them have, with what triggers did.
  std::int64_t changes() const { return sqlite3_changes64(handle_.get()); }
  std::int64_t totalChanges() const { return sqlite3_total_changes64(handle_.get()); }
  std::int64_t lastInsertedRow() const { return sqlite3_last_insert_rowid(handle_.get()); }

 private:
  struct Close {
    void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
  };
  std::unique_ptr<sqlite3, Close> handle_;
};

}  // namespace jet::image
