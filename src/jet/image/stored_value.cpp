// Sources and targets of values in the image's form: SQLite's calls for texts and bytes, and a value kept
// outside it.
#include "jet/image/stored_value.h"

#include <cmath>

#include "jet/image/connection.h"

namespace jet::image {

namespace {

std::string_view textAt(const unsigned char* data, int size) {
  if (!data) return "";
  return {reinterpret_cast<const char*>(data), static_cast<std::size_t>(size)};
}

std::span<const std::byte> bytesAt(const void* data, int size) {
  return {static_cast<const std::byte*>(data), static_cast<std::size_t>(size)};
}

}  // namespace

Storage storageOf(int sqliteType) {
  switch (sqliteType) {
    case SQLITE_INTEGER:
      return Storage::Integer;
    case SQLITE_FLOAT:
      return Storage::Real;
    case SQLITE_TEXT:
      return Storage::Text;
    case SQLITE_BLOB:
      return Storage::Bytes;
    default:
      return Storage::Null;
  }
}

// The size is asked for behind the text or bytes: it is that of the form asked for last.
std::string_view RowColumn::text() const {
  const auto* data = sqlite3_column_text(statement, column);
  return textAt(data, sqlite3_column_bytes(statement, column));
}

std::span<const std::byte> RowColumn::bytes() const {
  const auto* data = sqlite3_column_blob(statement, column);
  return bytesAt(data, sqlite3_column_bytes(statement, column));
}

std::string_view Argument::text() const {
  const auto* data = sqlite3_value_text(value);
  return textAt(data, sqlite3_value_bytes(value));
}

std::span<const std::byte> Argument::bytes() const {
  const auto* data = sqlite3_value_blob(value);
  return bytesAt(data, sqlite3_value_bytes(value));
}

// No pointer, or none to bytes, would be a Null.
void Parameter::text(std::string_view value) const {
  requireBound(statement, sqlite3_bind_text64(statement, number, value.data() ? value.data() : "",
                                              value.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
}

void Parameter::bytes(std::span<const std::byte> value) const {
  if (value.empty())
    requireBound(statement, sqlite3_bind_zeroblob(statement, number, 0));
  else
    requireBound(statement,
                 sqlite3_bind_blob64(statement, number, value.data(), value.size(), SQLITE_TRANSIENT));
}

void Result::text(std::string_view value) const {
  sqlite3_result_text64(context, value.data() ? value.data() : "", value.size(), SQLITE_TRANSIENT,
                        SQLITE_UTF8);
}

void Result::bytes(std::span<const std::byte> value) const {
  if (value.empty())
    sqlite3_result_zeroblob(context, 0);
  else
    sqlite3_result_blob64(context, value.data(), value.size(), SQLITE_TRANSIENT);
}

std::int64_t StoredValue::integer() const {
  const auto* value = std::get_if<std::int64_t>(&value_);
  return value ? *value : 0;
}

double StoredValue::real() const {
  const auto* value = std::get_if<double>(&value_);
  return value ? *value : static_cast<double>(integer());
}

std::string_view StoredValue::text() const {
  const auto* value = std::get_if<std::string>(&value_);
  return value ? std::string_view(*value) : std::string_view();
}

std::span<const std::byte> StoredValue::bytes() const {
  const auto* value = std::get_if<std::vector<std::byte>>(&value_);
  return value ? std::span<const std::byte>(*value) : std::span<const std::byte>();
}

void StoredValue::real(double value) {
  if (std::isnan(value))
    null();
  else
    value_ = value;
}

}  // namespace jet::image
