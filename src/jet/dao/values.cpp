// Values of fields and parameters by the engine's codec, and what the objects say of a column.
#include "jet/dao/values.h"

#include "jet/dao/constants.h"
#include "jet/file/errors.h"
#include "jet/sql/value_codec.h"
#include "runtime/error.h"

namespace jet::dao {

namespace {

/// What the codec does, with the name of what was assigned in its errors.
template <typename Encode>
void namingErrors(const std::string& name, Encode encode) {
  try {
    encode();
  } catch (runtime::Error& error) {
    if (error.number() == runtime::TypeMismatch) throw errorOf(ConversionFailed, source::Field, name);
    if (error.number() == FieldTooSmall) error.addPlace("campo " + name);
    throw;
  }
}

template <typename Target>
void encodeField(Target&& target, const runtime::Variant& value, const file::Column& column,
                 const std::string& table) {
  namingErrors(table + "." + column.name,
               [&] { sql::encodeAssigned(std::forward<Target>(target), value, sql::ruleOf(column)); });
}

}  // namespace

runtime::Variant fromImage(const image::Statement& row, int column, sql::Type type) {
  return sql::decodeValue(row.column(column), type);
}

void bindValue(image::Statement& statement, int parameter, const runtime::Variant& value, sql::Type type) {
  namingErrors(sql::typeName(type), [&] { sql::encodeValue(statement.parameter(parameter), value, type); });
}

image::StoredValue storedValue(const runtime::Variant& value, sql::Type type) {
  image::StoredValue stored;
  namingErrors(sql::typeName(type), [&] { sql::encodeValue(stored, value, type); });
  return stored;
}

void bindField(image::Statement& statement, int parameter, const runtime::Variant& value,
               const file::Column& column, const std::string& table) {
  encodeField(statement.parameter(parameter), value, column, table);
}

runtime::Variant asStored(const runtime::Variant& value, const file::Column& column,
                          const std::string& table) {
  image::StoredValue stored;
  encodeField(stored, value, column, table);
  return sql::decodeValue(stored, sql::typeOf(column.type));
}

int dataType(file::ColumnType type) {
  return type == file::ColumnType::Numeric ? static_cast<int>(dbDecimal) : static_cast<int>(type);
}

int dataType(sql::Type type) {
  return dataType(sql::columnTypeOf(type));
}

int fieldSize(const file::Column& column) {
  const bool twoBytes = column.codePage == 0;  // a code page of its own stands in Jet 3 alone
  return column.type == file::ColumnType::Text && twoBytes ? column.length / 2 : column.length;
}

int fieldAttributes(const file::Column& column) {
  return (column.fixed() ? dbFixedField : dbVariableField) | dbUpdatableField |
         (column.autoNumber() ? dbAutoIncrField : 0) |
         (column.flags & file::Column::Hyperlink ? dbHyperlinkField : 0);
}

}  // namespace jet::dao
