// Columns and indexes put into a table's definition, and taken out.
#include "jet/image/design.h"

#include <algorithm>

#include "jet/file/errors.h"
#include "jet/file/text/text.h"
#include "runtime/error.h"

namespace jet::image {

namespace {

using file::Column;
using file::ColumnType;
using file::LogicalIndex;
using file::RealIndex;

constexpr std::size_t MaxColumns = 255, MaxIndexes = 32, MaxIndexColumns = 10, MaxNameLength = 64;
constexpr std::uint16_t DefaultTextSize = 255, DefaultBinarySize = 510;

/// Bytes that the definition gives as a column's length.
std::uint16_t definitionLength(ColumnType type, std::uint16_t size) {
  if (type == ColumnType::Text) return static_cast<std::uint16_t>(2 * (size == 0 ? DefaultTextSize : size));
  if (type == ColumnType::Binary) return size == 0 ? DefaultBinarySize : size;
  return static_cast<std::uint16_t>(file::valueSize(type));
}

bool isVariable(ColumnType type) {
  return type == ColumnType::Text || type == ColumnType::Binary || file::isLongValue(type);
}

std::vector<LogicalIndex>::iterator indexNamed(file::TableDefinition& table, std::string_view name) {
  const auto found =
      std::find_if(table.logicalIndexes.begin(), table.logicalIndexes.end(),
                   [&](const LogicalIndex& index) { return file::sameName(index.name, name); });
  if (found == table.logicalIndexes.end())
    throw runtime::Error(NoSuchIndex, source::TableDef, "Indice inesistente: " + std::string(name));
  return found;
}

}  // namespace

Column newColumn(std::string name, ColumnType type, std::uint16_t size, bool fixed) {
  Column column;
  column.name = std::move(name);
  column.type = type;
  column.length = definitionLength(type, size);
  const bool inPlace = !isVariable(type) || (fixed && !file::isLongValue(type));
  column.flags = static_cast<std::uint8_t>(Column::Updatable | (inPlace ? Column::Fixed : 0));
  if (type == ColumnType::Text && !inPlace) column.extraFlags = Column::Compressed;
  return column;
}

void addColumn(file::TableDefinition& table, Column column) {
  checkName(column.name);
  if (table.find(column.name)) throw errorOf(DuplicateField, source::TableDef, column.name);
  if (column.autoNumber()) requireNoAutoNumber(table);
  if (table.maxColumns >= MaxColumns)
    throw runtime::Error(TooManyFields, source::TableDef, "Troppi campi nella tabella " + table.name);
  column.number = table.maxColumns++;
  column.position = column.number;
  for (const auto& other : table.columns)
    column.position = std::max<std::uint16_t>(
        column.position, static_cast<std::uint16_t>(std::min(other.position + 1, LastPosition)));
  column.slot = table.variableColumns;
  if (!column.fixed())
    ++table.variableColumns;
  else if (column.type != ColumnType::Boolean)
    column.fixedOffset = table.fixedLength();
  table.columns.push_back(std::move(column));
}

void addIndex(file::TableDefinition& table, const IndexDesign& design) {
  checkName(design.name);
  requireRoomForIndex(table);
  if (design.columns.empty() || design.columns.size() > MaxIndexColumns)
    throw runtime::Error(CreateTableSyntax, source::TableDef,
                         "Numero di campi non valido nell'indice " + design.name);
  for (const auto& part : design.columns) checkIndexable(table.columns[*table.findNumber(part.column)]);
  std::uint32_t number = 0;
  for (const auto& index : table.logicalIndexes) {
    if (file::sameName(index.name, design.name)) throw errorOf(IndexExists, source::TableDef, design.name);
    if (design.primary && index.kind == LogicalIndex::Kind::Primary)
      throw runtime::Error(SecondPrimaryKey, source::TableDef,
                           "Chiave primaria già presente nella tabella " + table.name);
    number = std::max(number, index.number + 1);
  }
  RealIndex real;
  real.columns = design.columns;
  real.flags = static_cast<std::uint8_t>(RealIndex::Jet4Mark |
                                         (design.unique || design.primary ? RealIndex::Unique : 0) |
                                         (design.required || design.primary ? RealIndex::Required : 0) |
                                         (design.ignoreNulls ? RealIndex::IgnoreNulls : 0));
  LogicalIndex logical;
  logical.name = design.name;
  logical.number = number;
  logical.real = static_cast<std::uint32_t>(table.realIndexes.size());
  logical.kind = design.primary ? LogicalIndex::Kind::Primary : LogicalIndex::Kind::Ordinary;
  table.realIndexes.push_back(std::move(real));
  table.logicalIndexes.push_back(std::move(logical));
}

void removeIndex(file::TableDefinition& table, std::string_view name) {
  const auto found = indexNamed(table, name);
  const auto real = found->real;
  bool onlyForeign = found->kind != LogicalIndex::Kind::Relation, shared = false;
  for (const auto& index : table.logicalIndexes) {
    if (index.real != real || &index == &*found) continue;
    shared = true;
    if (index.kind == LogicalIndex::Kind::Relation && index.side == LogicalIndex::Side::Primary)
      onlyForeign = false;
  }
  if (!onlyForeign)
    throw runtime::Error(IndexInRelation, source::TableDef,
                         "L'indice " + found->name + " è usato da una relazione");
  removeLogical(table, static_cast<std::size_t>(found - table.logicalIndexes.begin()));
  const auto ordinary = [&](const LogicalIndex& index) {
    return index.real == real && index.kind != LogicalIndex::Kind::Relation;
  };
  // A relation alone asks of its foreign side neither that values are unique nor that there are any.
  if (shared && std::ranges::none_of(table.logicalIndexes, ordinary))
    table.realIndexes[real].flags = RealIndex::Jet4Mark;
}

void removeLogical(file::TableDefinition& table, std::size_t position) {
  const auto real = table.logicalIndexes[position].real;
  table.logicalIndexes.erase(table.logicalIndexes.begin() + static_cast<std::ptrdiff_t>(position));
  if (std::ranges::find(table.logicalIndexes, real, &LogicalIndex::real) != table.logicalIndexes.end())
    return;
  table.realIndexes.erase(table.realIndexes.begin() + real);
  for (auto& index : table.logicalIndexes)
    if (index.real > real) --index.real;
}

void renameIndex(file::TableDefinition& table, std::string_view name, const std::string& newName) {
  checkName(newName);
  const auto renamed = indexNamed(table, name);
  if (renamed->kind == LogicalIndex::Kind::Relation)
    throw runtime::Error(IndexInRelation, source::TableDef,
                         "L'indice " + renamed->name + " è di una relazione");
  for (const auto& index : table.logicalIndexes)
    if (&index != &*renamed && file::sameName(index.name, newName))
      throw errorOf(IndexExists, source::TableDef, newName);
  renamed->name = newName;
}

void requireRoomForIndex(const file::TableDefinition& table) {
  if (table.realIndexes.size() >= MaxIndexes)
    throw runtime::Error(TooManyIndexes, source::TableDef, "Troppi indici nella tabella " + table.name);
}

void checkIndexable(const Column& column) {
  if (column.type == ColumnType::Ole || column.type == ColumnType::Raw)
    throw runtime::Error(CreateTableSyntax, source::TableDef,
                         "Il campo " + column.name + " non può stare in un indice");
}

void requireNoAutoNumber(const file::TableDefinition& table) {
  if (std::ranges::any_of(table.columns, &Column::autoNumber))
    throw runtime::Error(SecondAutoNumber, source::TableDef,
                         "La tabella " + table.name + " può avere un solo contatore");
}

std::string indexNameOf(const file::TableDefinition& table, std::size_t real) {
  for (const auto& index : table.logicalIndexes)
    if (index.real == real) return index.name;
  return {};
}

bool isIndexed(const file::TableDefinition& table, std::uint16_t columnNumber) {
  return std::any_of(table.realIndexes.begin(), table.realIndexes.end(), [&](const RealIndex& index) {
    return std::any_of(index.columns.begin(), index.columns.end(),
                       [&](const file::IndexColumn& part) { return part.column == columnNumber; });
  });
}

void checkName(std::string_view name) {
  constexpr std::string_view Forbidden = ".!`[]";
  const bool bad =
      name.empty() || name.front() == ' ' || file::utf16Length(name) > MaxNameLength ||
      std::any_of(name.begin(), name.end(), [&](char c) {
        return static_cast<unsigned char>(c) < 0x20 || Forbidden.find(c) != std::string_view::npos;
      });
  if (bad) throw errorOf(InvalidName, source::TableDef, std::string(name));
}

}  // namespace jet::image
