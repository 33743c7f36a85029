// The empty database: page 0, the four system tables and their first rows, page by page as the engine lays
// them out.
#include "jet/file/write/empty_database.h"

#include <algorithm>
#include <array>

#include "jet/file/page/global_map.h"
#include "jet/file/page/header.h"
#include "jet/file/page/put_bytes.h"
#include "jet/file/read/catalogue.h"
#include "jet/file/read/page_use.h"
#include "jet/file/system_tables.h"
#include "jet/file/text/text.h"
#include "jet/file/write/table_writer.h"

namespace jet::file {

namespace {

using Bytes = std::vector<std::byte>;

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
  for (const FirstTable& table : firstTables()) {
    SystemRows rows(table.definition);
    if (table.definition.page == CatalogueTable) fillCatalogue(rows);
    if (table.definition.page == PermissionsTable) fillPermissions(rows);
    auto next = table.contentPages.begin();
    TableWriter writer(table.definition, out, [&] {
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
