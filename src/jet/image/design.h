#pragma once

#include <string>
#include <vector>

#include "jet/file/definition.h"

/// Building a table's definition column by column, index by index.
namespace jet::image {

/// The last place that a column can have in the order of `*`.
inline constexpr int LastPosition = 0xFFFF;

/// A column of `type` as a new table gets it. `size`: characters of a Text, bytes of a Binary. `fixed`: each
/// value of a Text or Binary takes that much; the other types have it as they are.
file::Column newColumn(std::string name, file::ColumnType type, std::uint16_t size = 0, bool fixed = false);

/// Appends a column; its number, slot, offset and position follow from the table.
/// Error 3191 if the table has the name, 3190 beyond 255 columns, 3090 for a second auto-number.
void addColumn(file::TableDefinition& table, file::Column column);

struct IndexDesign {
  std::string name;
  std::vector<file::IndexColumn> columns;
  bool unique = false, primary = false, required = false, ignoreNulls = false;
};

/// Appends a real index with its name. Error 3284 if the table has the name, 3283 for a second primary key,
/// 3626 beyond 32 indexes, 3290 for a column that can't be indexed or more than ten.
void addIndex(file::TableDefinition& table, const IndexDesign& design);
/// Error 3372 if there is none, 3281 while a relation uses it; on the foreign side a relation goes on with an
/// index of its own.
void removeIndex(file::TableDefinition& table, std::string_view name);

/// Errors 3372, 3284, 3125, 3281 for a relation's own.
void renameIndex(file::TableDefinition& table, std::string_view name, const std::string& newName);
/// Removes the logical index at this position, and its real index if nothing else uses that.
void removeLogical(file::TableDefinition& table, std::size_t position);
/// Error 3626 beyond 32 indexes.
void requireRoomForIndex(const file::TableDefinition& table);
/// Error 3090 if the table has an auto-number.
void requireNoAutoNumber(const file::TableDefinition& table);
/// Error 3290 for a type that indexes can't have.
void checkIndexable(const file::Column& column);

/// A name of real index `real`, for messages.
std::string indexNameOf(const file::TableDefinition& table, std::size_t real);
/// True if a real index has the column.
bool isIndexed(const file::TableDefinition& table, std::uint16_t columnNumber);
/// Error 3125 for a name that is empty, longer than 64 characters, or holds . ! ` [ ] or a control character.
void checkName(std::string_view name);

}  // namespace jet::image
