#include <algorithm>
#include <array>

#include "jet/file/catalogue.h"
#include "jet/file/database_writer.h"
#include "jet/file/global_map.h"
#include "jet/file/header.h"
#include "jet/file/page_use.h"
#include "jet/file/put_bytes.h"
#include "jet/file/table_writer.h"
#include "jet/file/text.h"

/// The empty database: page 0, the four system tables and their first rows, page by page as the engine lays
/// them out.
namespace jet::file {

namespace {

using Bytes = std::vector<std::byte>;

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

/// Rows kept in memory, by column name.
class SystemRows : public RowSource {
 public:
  explicit SystemRows(const TableDefinition& table) : table_(table) {}

  void begin() { rows_.emplace_back(table_.columns.size()); }
  void set(const char* column, Bytes value) { rows_.back()[*table_.find(column)] = std::move(value); }
  void setLong(const char* column, std::uint32_t value) {
    Bytes bytes;
    appendU32(bytes, value);
    set(column, std::move(bytes));
  }
  bool next(Row& row) override {
    if (next_ == rows_.size()) return false;
    row.clear();
    for (const std::optional<Bytes>& value : rows_[next_])
      row.push_back(value ? FieldBytes{false, *value} : FieldBytes{});
    ++next_;
    return true;
  }

 private:
  const TableDefinition& table_;
  std::vector<std::vector<std::optional<Bytes>>> rows_;
  std::size_t next_ = 0;
};

// Creation date of the file and the mask of its security ids, which go together; and the date of its objects.
constexpr std::array<std::uint8_t, 8> FileDate = {0x3E, 0x85, 0xD3, 0x3B, 0x3E, 0xAB, 0xE4, 0x40};
constexpr std::array<std::uint8_t, 8> ObjectDate = {0x4E, 0xFB, 0xD3, 0x3B, 0x3E, 0xAB, 0xE4, 0x40};
constexpr std::array<std::uint8_t, 2> IdentityMask = {0x67, 0x8A};

using Identity = std::array<std::uint8_t, 2>;
constexpr Identity Admin = {3, 1}, Users = {2, 1}, Engine = {2, 3}, Creator = {2, 4};

Bytes stored(Identity identity) {
  return {std::byte(identity[0] ^ IdentityMask[0]), std::byte(identity[1] ^ IdentityMask[1])};
}

template <std::size_t Size>
Bytes toBytes(const std::array<std::uint8_t, Size>& values) {
  Bytes bytes;
  for (const std::uint8_t value : values) appendU8(bytes, value);
  return bytes;
}

constexpr std::uint32_t Root = 0x0F000000, DatabasesContainer = 0x0F000002, SystemFlag = 0x80000000;

struct FirstObject {
  std::uint32_t id, parent;
  const char* name;
  ObjectType type;
  Identity owner = Engine;
};

constexpr FirstObject FirstObjects[] = {
    {TablesContainer, Root, "Tables", ObjectType::Container},
    {DatabasesContainer, Root, "Databases", ObjectType::Container},
    {RelationshipsContainer, Root, "Relationships", ObjectType::Container},
    {DatabaseObject, DatabasesContainer, "MSysDb", ObjectType::Database, Admin},
    {CatalogueTable, TablesContainer, "MSysObjects", ObjectType::Table},
    {PermissionsTable, TablesContainer, "MSysACEs", ObjectType::Table},
    {QueriesTable, TablesContainer, "MSysQueries", ObjectType::Table},
    {RelationshipsTable, TablesContainer, "MSysRelationships", ObjectType::Table},
};

struct FirstPermission {
  std::uint32_t object;
  Identity identity;
  std::uint32_t rights;
  bool inheritable = false;
};

constexpr FirstPermission FirstPermissions[] = {
    {CatalogueTable, Admin, 0x60000},
    {PermissionsTable, Admin, 0x60000},
    {QueriesTable, Admin, 0x60000},
    {RelationshipsTable, Admin, 0xE0000},
    {TablesContainer, Creator, 0xF00FE, true},
    {TablesContainer, Admin, 0x60001},
    {RelationshipsContainer, Creator, 0xF00FE, true},
    {RelationshipsContainer, Admin, 0x60001},
    {DatabasesContainer, Admin, 0x60000},
    {DatabaseObject, Admin, 0x6000E},
    {DatabaseObject, Users, 0x0000E},
    {QueriesTable, Users, 0x00014},
    {RelationshipsTable, Users, 0x00014},
    {CatalogueTable, Users, 0x00014},
    {TablesContainer, Users, 0xFFEFF, true},
    {RelationshipsContainer, Users, 0xFFFFF, true},
};

void fillCatalogue(SystemRows& rows) {
  for (const FirstObject& object : FirstObjects) {
    rows.begin();
    rows.setLong("Id", object.id);
    rows.setLong("ParentId", object.parent);
    Bytes name, type;
    encodeText(object.name, false, name);
    appendU16(type, static_cast<std::uint16_t>(object.type));
    rows.set("Name", std::move(name));
    rows.set("Type", std::move(type));
    rows.set("DateCreate", toBytes(ObjectDate));
    rows.set("DateUpdate", toBytes(ObjectDate));
    rows.set("Owner", stored(object.owner));
    rows.setLong("Flags", SystemFlag);
  }
}

void fillPermissions(SystemRows& rows) {
  for (const FirstPermission& permission : FirstPermissions) {
    rows.begin();
    rows.setLong("ObjectId", permission.object);
    rows.set("SID", stored(permission.identity));
    rows.setLong("ACM", permission.rights);
    rows.set("FInheritable", {std::byte{permission.inheritable}});
  }
}

/// Page 0, masked.
Bytes headerPage() {
  constexpr char Mark[] = "Standard Jet DB";
  constexpr char Release[] = "4.0";
  constexpr std::size_t VersionAt = 0x14, MaskedAt = 0x18, FirstTablesAt = 0x20, BuildAt = 0x6A,
                        ClearMarkAt = 0x98, ReleaseAt = 0x9C, CommitAt = 0xE00;
  Bytes page(Jet4.pageSize);
  const auto put = [&page](std::size_t at, const auto& bytes) {
    std::ranges::transform(bytes, page.begin() + static_cast<std::ptrdiff_t>(at),
                           [](auto byte) { return static_cast<std::byte>(byte); });
  };
  putU16(&page[0], 0x0100);
  put(4, Mark);
  putU32(&page[VersionAt], 1);
  put(MaskedAt, std::array<std::uint8_t, 8>{0, 1, 0, 0, 1, 1, 0, 0});
  for (std::uint32_t table = CatalogueTable; table <= RelationshipsTable; ++table)
    putU32(&page[FirstTablesAt + 4 * (table - CatalogueTable)], table);
  putU16(&page[Jet4.codePageAt], 1252);
  putU16(&page[BuildAt], 0x261C);
  putU16(&page[Jet4.sortOrderAt], 1033);
  put(Jet4.creationDateAt, FileDate);
  maskPassword(Jet4, page);
  maskHeader(Jet4, page);
  putU32(&page[ClearMarkAt], 1620);
  put(ReleaseAt, Release);
  for (std::size_t at = CommitAt; at < page.size(); at += 2) putU16(&page[at], 0x0100);
  page[CommitAt] = std::byte{1};
  return page;
}

}  // namespace

void writeEmptyDatabase(platform::File& file) {
  constexpr std::uint32_t MapPage = 6;
  PageOutput out(file);
  PageSpace space;
  for (std::uint32_t page = 0; page <= MapPage; ++page) space.use(page);
  MapPages maps(out, [] { return MapPage; });
  for (const SystemTable& table : systemTables()) {
    const TableDefinition definition = makeDefinition(table);
    SystemRows rows(definition);
    if (table.page == CatalogueTable) fillCatalogue(rows);
    if (table.page == PermissionsTable) fillPermissions(rows);
    auto next = table.contentPages.begin();
    TableWriter writer(definition, out, [&] {
      space.use(*next);
      return *next++;
    });
    writer.writeRows(rows);
    writer.writeIndexes();
    writer.writeMaps(maps);
    writer.writeDefinitionPages();
  }
  maps.finish();
  out.write(0, headerPage());
  writeGlobalMap(space, std::vector<std::byte>(EmptyMapLength), out);
  out.finish(space.pageCount());
}

}  // namespace jet::file
