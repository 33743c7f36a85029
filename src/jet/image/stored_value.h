#pragma once

#include <sqlite3.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// Where a value in the image's form is taken from and where it goes. Every source has storage(), integer(),
/// real(), text() and bytes(), every target null(), integer(), real(), text() and bytes(): a codec is written
/// once for all of them.
namespace jet::image {

enum class Storage { Null, Integer, Real, Text, Bytes };

Storage storageOf(int sqliteType);

/// A column of a statement's current row; what it gives is valid until the statement goes on.
struct RowColumn {
  sqlite3_stmt* statement;
  int column;
  Storage storage() const { return storageOf(sqlite3_column_type(statement, column)); }
  std::int64_t integer() const { return sqlite3_column_int64(statement, column); }
  double real() const { return sqlite3_column_double(statement, column); }
  std::string_view text() const;
  std::span<const std::byte> bytes() const;
};

/// An argument of a function; what it gives is valid as long as the value.
struct Argument {
  sqlite3_value* value;
  Storage storage() const { return storageOf(sqlite3_value_type(value)); }
  std::int64_t integer() const { return sqlite3_value_int64(value); }
  double real() const { return sqlite3_value_double(value); }
  std::string_view text() const;
  std::span<const std::byte> bytes() const;
};

/// A parameter of a statement; texts and bytes are copied. Error 7 where there is no memory for them.
struct Parameter {
  sqlite3_stmt* statement;
  int number;
  void null() const { sqlite3_bind_null(statement, number); }
  void integer(std::int64_t value) const { sqlite3_bind_int64(statement, number, value); }
  void real(double value) const { sqlite3_bind_double(statement, number, value); }
  void text(std::string_view value) const;
  void bytes(std::span<const std::byte> value) const;
};

/// The result of a function or of a virtual table's column; texts and bytes are copied.
struct Result {
  sqlite3_context* context;
  void null() const { sqlite3_result_null(context); }
  void integer(std::int64_t value) const { sqlite3_result_int64(context, value); }
  void real(double value) const { sqlite3_result_double(context, value); }
  void text(std::string_view value) const;
  void bytes(std::span<const std::byte> value) const;
};

/// A value that is kept outside SQLite: source and target in one.
class StoredValue {
 public:
  Storage storage() const { return static_cast<Storage>(value_.index()); }
  bool isNull() const { return storage() == Storage::Null; }
  std::int64_t integer() const;
  double real() const;
  std::string_view text() const;
  std::span<const std::byte> bytes() const;

  void null() { value_ = std::monostate(); }
  void integer(std::int64_t value) { value_ = value; }
  /// What is no number becomes a Null, as in SQLite.
  void real(double value);
  void text(std::string_view value) { value_ = std::string(value); }
  void bytes(std::span<const std::byte> value) {
    value_ = std::vector<std::byte>(value.begin(), value.end());
  }

 private:
  std::variant<std::monostate, std::int64_t, double, std::string, std::vector<std::byte>> value_;
};

template <typename Source, typename Target>
void copyValue(const Source& source, Target&& target) {
  switch (source.storage()) {
    case Storage::Null:
      return target.null();
    case Storage::Integer:
      return target.integer(source.integer());
    case Storage::Real:
      return target.real(source.real());
    case Storage::Text:
      return target.text(source.text());
    case Storage::Bytes:
      return target.bytes(source.bytes());
  }
}

}  // namespace jet::image
