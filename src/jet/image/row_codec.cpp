// Fields from the file's form into the image's and back.
#include "jet/image/row_codec.h"

#include <cmath>
#include <cstring>
#include <limits>

#include "jet/file/errors.h"
#include "jet/file/text/text.h"
#include "jet/image/decimal.h"

namespace jet::image {

namespace {

using file::ColumnType;

// Memos that stay inside the row are compressed as the original engine does; longer ones lie outside and are
// plain.
constexpr std::size_t CompressedMemoLength = 32;

template <typename T>
T load(std::span<const std::byte> bytes) {
  T value;
  std::memcpy(&value, bytes.data(), sizeof value);
  return value;
}

template <typename T>
void store(std::vector<std::byte>& buffer, T value) {
  buffer.resize(sizeof value);
  std::memcpy(buffer.data(), &value, sizeof value);
}

void checkSize(const file::TableDefinition& table, const file::Column& column, std::size_t size) {
  const std::size_t expected = file::valueSize(column.type);
  if (expected != 0 && size != expected)
    throw runtime::Error(UnrecognizedFormat, source::Database,
                         "Valore di lunghezza errata - tabella " + table.name + " - campo " + column.name);
}

/// Where a decoded value goes: a parameter of a statement, or the result of a virtual table.
struct BindTarget {
  sqlite3_stmt* statement;
  int parameter;
  void null() { sqlite3_bind_null(statement, parameter); }
  void integer(std::int64_t v) { sqlite3_bind_int64(statement, parameter, v); }
  void real(double v) { sqlite3_bind_double(statement, parameter, v); }
  void text(const std::string& v) {
    requireBound(statement,
                 sqlite3_bind_text64(statement, parameter, v.data(), v.size(), SQLITE_STATIC, SQLITE_UTF8));
  }
  void blob(std::span<const std::byte> v) {
    if (v.empty())
      sqlite3_bind_zeroblob(statement, parameter, 0);
    else
      requireBound(statement, sqlite3_bind_blob64(statement, parameter, v.data(), v.size(), SQLITE_STATIC));
  }
};

struct ResultTarget {
  sqlite3_context* context;
  void null() { sqlite3_result_null(context); }
  void integer(std::int64_t v) { sqlite3_result_int64(context, v); }
  void real(double v) { sqlite3_result_double(context, v); }
  void text(const std::string& v) {
    sqlite3_result_text64(context, v.data(), v.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
  }
  void blob(std::span<const std::byte> v) {
    if (v.empty())
      sqlite3_result_zeroblob(context, 0);
    else
      sqlite3_result_blob64(context, v.data(), v.size(), SQLITE_TRANSIENT);
  }
};

/// What is no number would become a Null in SQLite: it keeps its bytes instead.
template <typename Target>
void giveReal(Target target, double value, std::span<const std::byte> bytes) {
  if (std::isnan(value)) return target.blob(bytes);
  target.real(value);
}

template <typename Target>
void give(Target target, const file::Header& header, const file::TableDefinition& table,
          const file::Column& column, const file::FieldBytes& field, std::string& text) {
  if (field.null) return target.null();
  checkSize(table, column, field.bytes.size());
  switch (column.type) {
    case ColumnType::Boolean:
      return target.integer(field.bytes[0] != std::byte{0} ? -1 : 0);
    case ColumnType::Byte:
      return target.integer(load<std::uint8_t>(field.bytes));
    case ColumnType::Integer:
      return target.integer(load<std::int16_t>(field.bytes));
    case ColumnType::Long:
      return target.integer(load<std::int32_t>(field.bytes));
    case ColumnType::Currency:
      return target.integer(load<std::int64_t>(field.bytes));
    case ColumnType::Single:
      return giveReal(target, load<float>(field.bytes), field.bytes);
    case ColumnType::Double:
    case ColumnType::Date:
      return giveReal(target, load<double>(field.bytes), field.bytes);
    case ColumnType::Numeric:
      text = decimalText(decimalFromBytes(field.bytes, column.scale));
      return target.text(text);
    case ColumnType::Text:
    case ColumnType::Memo:
      text.clear();
      file::appendText(*header.format, field.bytes, text, header.codePage);
      return target.text(text);
    case ColumnType::Binary:
    case ColumnType::Ole:
    case ColumnType::Guid:
    case ColumnType::Raw:
      return target.blob(field.bytes);
  }
}

[[noreturn]] void outOfRange(const file::TableDefinition& table, const file::Column& column) {
  auto error = runtime::languageError(runtime::Overflow);
  error.addPlace("tabella " + table.name + ", campo " + column.name);
  throw error;
}

template <typename T>
T narrowed(std::int64_t value, const file::TableDefinition& table, const file::Column& column) {
  if (value < std::numeric_limits<T>::min() || value > std::numeric_limits<T>::max())
    outOfRange(table, column);
  return static_cast<T>(value);
}

/// A number, or what is kept of one that is none.
template <typename Real>
Real realOf(sqlite3_stmt* statement, int column) {
  Real value;
  if (sqlite3_column_type(statement, column) == SQLITE_BLOB &&
      sqlite3_column_bytes(statement, column) == sizeof value) {
    std::memcpy(&value, sqlite3_column_blob(statement, column), sizeof value);
    return value;
  }
  return static_cast<Real>(sqlite3_column_double(statement, column));
}

}  // namespace

const char* columnDeclaration(ColumnType type) {
  switch (type) {
    case ColumnType::Boolean:
      return "INTEGER DEFAULT 0";  // never null
    case ColumnType::Single:
    case ColumnType::Double:
    case ColumnType::Date:
      return "REAL";
    case ColumnType::Text:
    case ColumnType::Memo:
      return "TEXT COLLATE JET";
    case ColumnType::Numeric:
      return "TEXT COLLATE JETDECIMAL";
    case ColumnType::Binary:
    case ColumnType::Ole:
    case ColumnType::Guid:
    case ColumnType::Raw:
      return "BLOB";
    default:
      return "INTEGER";
  }
}

void FieldBinder::bind(sqlite3_stmt* statement, const file::Row& row) {
  for (std::size_t i = 0; i < table_.columns.size(); ++i)
    give(BindTarget{statement, static_cast<int>(i + 1)}, header_, table_, table_.columns[i], row[i],
         texts_[i]);
}

void FieldBinder::result(sqlite3_context* context, const file::Row& row, std::size_t column) {
  give(ResultTarget{context}, header_, table_, table_.columns[column], row[column], texts_[column]);
}

ImageRows::ImageRows(const Connection& connection, file::TableDefinition table)
    : table_(std::move(table)), buffers_(table_.columns.size()) {
  std::string sql = "SELECT ";
  for (const auto& column : table_.columns) sql += columnName(column.number) + ",";
  sql.back() = ' ';
  statement_ = connection.prepare(sql + "FROM " + tableName(table_.page) + " ORDER BY rowid");
}

bool ImageRows::next(file::Row& row) {
  if (!statement_.step()) return false;
  row.resize(table_.columns.size());
  for (std::size_t i = 0; i < row.size(); ++i) row[i] = encode(i);
  return true;
}

file::FieldBytes ImageRows::encode(std::size_t index) {
  const auto& column = table_.columns[index];
  const int at = static_cast<int>(index);
  sqlite3_stmt* statement = statement_.handle();
  auto& buffer = buffers_[index];
  if (column.type == ColumnType::Boolean) {
    store(buffer, static_cast<std::uint8_t>(sqlite3_column_int64(statement, at) != 0 ? 1 : 0));
    return {false, buffer};
  }
  if (statement_.null(at)) return {};
  const auto text = [&] {
    const auto* data = reinterpret_cast<const char*>(sqlite3_column_text(statement, at));
    return std::string_view(data, static_cast<std::size_t>(sqlite3_column_bytes(statement, at)));
  };
  switch (column.type) {
    case ColumnType::Byte:
      store(buffer, narrowed<std::uint8_t>(statement_.integer(at), table_, column));
      break;
    case ColumnType::Integer:
      store(buffer, narrowed<std::int16_t>(statement_.integer(at), table_, column));
      break;
    case ColumnType::Long:
      store(buffer, narrowed<std::int32_t>(statement_.integer(at), table_, column));
      break;
    case ColumnType::Currency:
      store(buffer, statement_.integer(at));
      break;
    case ColumnType::Single:
      store(buffer, realOf<float>(statement, at));
      break;
    case ColumnType::Double:
    case ColumnType::Date:
      store(buffer, realOf<double>(statement, at));
      break;
    case ColumnType::Numeric:
      buffer.resize(17);
      decimalToBytes(parseDecimal(text(), column.scale, DecimalFieldDigits),
                     std::span<std::byte, 17>(buffer.data(), 17));
      break;
    case ColumnType::Text:
    case ColumnType::Memo: {
      const auto value = text();
      const bool compress = column.type == ColumnType::Text ? column.extraFlags & file::Column::Compressed
                                                            : value.size() <= CompressedMemoLength;
      buffer.clear();
      file::encodeText(value, compress, buffer);
      break;
    }
    default: {
      const auto* data = static_cast<const std::byte*>(sqlite3_column_blob(statement, at));
      buffer.assign(data, data + sqlite3_column_bytes(statement, at));
    }
  }
  return {false, buffer};
}

double realValue(sqlite3_stmt* statement, int column) {
  if (sqlite3_column_type(statement, column) == SQLITE_BLOB) return std::numeric_limits<double>::quiet_NaN();
  return sqlite3_column_double(statement, column);
}

std::string tableName(std::uint32_t page) {
  return "t" + std::to_string(page);
}

std::string columnName(std::uint16_t number) {
  return "c" + std::to_string(number);
}

}  // namespace jet::image
