// Definitions and pages of the four system tables of a new database.
#include "jet/file/system_tables.h"

#include <algorithm>
#include <array>

#include "jet/file/read/catalogue.h"

namespace jet::file {

namespace {

struct SystemColumn {
  const char* name;
  ColumnType type;
  std::uint16_t number;
  std::uint16_t place;  // slot of a variable column, offset of a fixed one
  std::uint16_t length;
  std::uint8_t extraFlag = 0;
};

struct SystemIndex {
  const char* name;
  std::vector<std::uint16_t> columns;
  std::uint8_t flags;
  LogicalIndex::Kind kind;
  std::uint32_t number;  // of the logical index
};

using Kind = LogicalIndex::Kind;
constexpr std::uint8_t UniqueIndex = RealIndex::Jet4Mark | RealIndex::Unique,
                       RequiredIndex = RealIndex::Jet4Mark | RealIndex::Required,
                       IgnoreNullsIndex = RealIndex::Jet4Mark | RealIndex::IgnoreNulls;

struct SystemTable {
  std::uint32_t page;
  const char* name;
  std::vector<SystemColumn> columns;        // by name, as the file has them
  std::vector<SystemIndex> indexes;         // real ones in order
  std::vector<std::uint32_t> contentPages;  // of its rows, then of its indexes
};

const std::array<SystemTable, 4>& systemTables() {
  using enum ColumnType;
  constexpr std::uint8_t Owner = Column::OwnerColumn;
  static const std::array<SystemTable, 4> tables = {{
      {CatalogueTable,
       "MSysObjects",
       {{"Connect", Memo, 9, 3, 0},
        {"Database", Memo, 8, 2, 0},
        {"DateCreate", Date, 4, 10, 8},
        {"DateUpdate", Date, 5, 18, 8},
        {"Flags", Long, 7, 26, 4},
        {"ForeignName", Text, 10, 4, 510},
        {"Id", Long, 0, 0, 4},
        {"Lv", Ole, 13, 7, 0},
        {"LvExtra", Ole, 16, 10, 0},
        {"LvModule", Ole, 15, 9, 0},
        {"LvProp", Ole, 14, 8, 0},
        {"Name", Text, 2, 0, 510},
        {"Owner", Binary, 6, 1, 510, Owner},
        {"ParentId", Long, 1, 4, 4},
        {"RmtInfoLong", Ole, 12, 6, 0},
        {"RmtInfoShort", Binary, 11, 5, 510},
        {"Type", Integer, 3, 8, 2}},
       {{"ParentIdName", {1, 2}, UniqueIndex, Kind::Ordinary, 0}, {"Id", {0}, UniqueIndex, Kind::Primary, 1}},
       {14, 7, 8}},
      {PermissionsTable,
       "MSysACEs",
       {{"ACM", Long, 2, 4, 4},
        {"FInheritable", Boolean, 3, 0, 1},
        {"ObjectId", Long, 0, 0, 4},
        {"SID", Binary, 1, 0, 510, Owner}},
       {{"ObjectId", {0}, RequiredIndex, Kind::Ordinary, 0}},
       {15, 9}},
      {QueriesTable,
       "MSysQueries",
       {{"Attribute", Byte, 1, 4, 1},
        {"Expression", Memo, 5, 3, 0},
        {"Flag", Integer, 6, 5, 2},
        {"LvExtra", Long, 7, 7, 4},
        {"Name1", Text, 3, 1, 510},
        {"Name2", Text, 4, 2, 510},
        {"ObjectId", Long, 0, 0, 4},
        {"Order", Binary, 2, 0, 510}},
       {{"ObjectIdAttribute", {0, 1, 2}, UniqueIndex, Kind::Primary, 0}},
       {10}},
      {RelationshipsTable,
       "MSysRelationships",
       {{"ccolumn", Long, 2, 4, 4},
        {"grbit", Long, 1, 0, 4},
        {"icolumn", Long, 3, 8, 4},
        {"szColumn", Text, 5, 2, 510},
        {"szObject", Text, 4, 1, 510},
        {"szReferencedColumn", Text, 7, 4, 510},
        {"szReferencedObject", Text, 6, 3, 510},
        {"szRelationship", Text, 0, 0, 510}},
       {{"szRelationship", {0}, IgnoreNullsIndex, Kind::Ordinary, 0},
        {"szObject", {4}, IgnoreNullsIndex, Kind::Ordinary, 1},
        {"szReferencedObject", {6}, IgnoreNullsIndex, Kind::Ordinary, 2}},
       {11, 12, 13}},
  }};
  return tables;
}

bool isFixed(ColumnType type) {
  return type != ColumnType::Text && type != ColumnType::Binary && !isLongValue(type);
}

Column makeColumn(const SystemColumn& column, const SystemTable& table) {
  Column made;
  made.name = column.name;
  made.type = column.type;
  made.number = column.number;
  made.length = column.length;
  made.flags = static_cast<std::uint8_t>(Column::SystemColumn | Column::Updatable | column.extraFlag);
  if (!isFixed(column.type)) {
    made.slot = column.place;
    return made;
  }
  made.flags |= Column::Fixed;
  made.fixedOffset = column.place;
  // A fixed column names the variable ones before it.
  made.slot = static_cast<std::uint16_t>(std::ranges::count_if(table.columns, [&](const SystemColumn& other) {
    return !isFixed(other.type) && other.number < column.number;
  }));
  return made;
}

TableDefinition makeDefinition(const SystemTable& table) {
  TableDefinition definition;
  definition.page = table.page;
  definition.name = table.name;
  definition.system = true;
  definition.maxColumns = static_cast<std::uint16_t>(table.columns.size());
  for (const SystemColumn& column : table.columns) {
    definition.columns.push_back(makeColumn(column, table));
    if (!isFixed(column.type)) ++definition.variableColumns;
  }
  for (const SystemIndex& index : table.indexes) {
    RealIndex real;
    for (const std::uint16_t column : index.columns) real.columns.push_back({column});
    real.flags = index.flags;
    LogicalIndex logical;
    logical.name = index.name;
    logical.number = index.number;
    logical.real = static_cast<std::uint32_t>(definition.realIndexes.size());
    logical.kind = index.kind;
    definition.realIndexes.push_back(std::move(real));
    definition.logicalIndexes.push_back(std::move(logical));
  }
  return definition;
}

}  // namespace

std::vector<FirstTable> firstTables() {
  std::vector<FirstTable> tables;
  for (const SystemTable& table : systemTables())
    tables.push_back({makeDefinition(table), table.contentPages});
  return tables;
}

}  // namespace jet::file
