#pragma once

#include <string>

#include "jet/file/definition.h"
#include "jet/image/connection.h"
#include "jet/sql/type.h"
#include "runtime/variant.h"

/// Values on their way between the image and the data access objects.
namespace jet::dao {

/// Column `column` of the current row, as a value of its Jet type.
runtime::Variant fromImage(const image::Statement& row, int column, sql::Type type);
/// Binds a value as the image keeps `type`; Variant binds it as what it is. Error 3421 if it doesn't convert.
void bindValue(image::Statement& statement, int parameter, const runtime::Variant& value, sql::Type type);
/// The same value outside a statement.
image::StoredValue storedValue(const runtime::Variant& value, sql::Type type);
/// The same for a field of a table: 3163 for a text or bytes that are too long, 6 for too many digits.
void bindField(image::Statement& statement, int parameter, const runtime::Variant& value,
               const file::Column& column, const std::string& table);
/// What the field will give back of the value; errors as bindField.
runtime::Variant asStored(const runtime::Variant& value, const file::Column& column,
                          const std::string& table);

/// DataType of a column's type, and what Field.Size and Field.Attributes say of a column.
int dataType(file::ColumnType type);
int dataType(sql::Type type);
int fieldSize(const file::Column& column);
int fieldAttributes(const file::Column& column);

}  // namespace jet::dao
