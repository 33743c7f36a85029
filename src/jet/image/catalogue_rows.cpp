// The one place that knows the columns of the system tables, and how permissions are handed down.
#include "jet/image/catalogue_rows.h"

#include <array>

#include "jet/file/page/format.h"
#include "platform/clock.h"

namespace jet::image {

namespace {

using Bytes = std::vector<std::byte>;

// Columns of MSysObjects (t2): c0 Id, c1 ParentId, c2 Name, c3 Type, c4 DateCreate, c5 DateUpdate, c6 Owner,
// c7 Flags, c8 Database, c9 Connect, c10 ForeignName, c14 LvProp. Of MSysACEs (t3): c0 ObjectId, c1 SID, c2
// ACM, c3 FInheritable. Of MSysRelationships (t5): c0 szRelationship, c1 grbit, c2 ccolumn, c3 icolumn, c4
// szObject, c5 szColumn, c6 szReferencedObject, c7 szReferencedColumn; "referenced" is the parent's side.
constexpr char ObjectsOfType[] = "SELECT c0, c1, c2, c3, c7, c4, c5 FROM t2 WHERE c3 = ?1 ORDER BY rowid";
constexpr char ObjectIn[] = "SELECT c0, c1, c2, c3, c7, c4, c5 FROM t2 WHERE c1 = ?1 AND c2 = ?2";
constexpr char ObjectNamed[] =
    "SELECT c0, c1, c2, c3, c7, c4, c5 FROM t2 WHERE c3 = ?1 AND c1 = ?2 AND c2 = ?3";
constexpr char ObjectById[] = "SELECT c0, c1, c2, c3, c7, c4, c5 FROM t2 WHERE c3 = ?1 AND c0 = ?2";
constexpr char ReadLink[] = "SELECT c8, c10, c9 FROM t2 WHERE c0 = ?1";
constexpr char WriteLink[] = "UPDATE t2 SET c8 = ?2, c10 = ?3, c9 = ?4 WHERE c0 = ?1";
constexpr char InsertObject[] =
    "INSERT INTO t2 (c0, c1, c2, c3, c4, c5, c6, c7) VALUES (?1, ?2, ?3, ?4, ?5, ?5, ?6, ?7)";
constexpr char InsertPermission[] = "INSERT INTO t3 (c0, c1, c2, c3) VALUES (?1, ?2, ?3, 0)";
constexpr char InheritedPermissions[] = "SELECT c1, c2 FROM t3 WHERE c0 = ?1 AND c3 <> 0 ORDER BY rowid";
constexpr char RelationRows[] =
    "SELECT c0, c6, c4, c1, c7, c5 FROM t5 ORDER BY min(rowid) OVER (PARTITION BY c0), c3";
constexpr char InsertRelation[] =
    "INSERT INTO t5 (c0, c1, c2, c3, c4, c5, c6, c7) VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8)";
constexpr char OwnerOfDatabase[] = "SELECT c6 FROM t2 WHERE c0 = ?1";

// The creator's id, 02 04, and the user Admin's, 03 01, are kept under one cipher of two bytes.
constexpr std::array CreatorFromAdmin = {std::byte{0x03 ^ 0x02}, std::byte{0x01 ^ 0x04}};

Bytes blob(const Statement& statement, int column) {
  const auto bytes = statement.bytes(column);
  return Bytes(bytes.begin(), bytes.end());
}

DatedObject datedObject(const Statement& row) {
  DatedObject object;
  object.id = static_cast<std::uint32_t>(row.integer(0));
  object.parent = static_cast<std::uint32_t>(row.integer(1));
  object.name = row.text(2);
  object.type = static_cast<file::ObjectType>(row.integer(3));
  object.flags = static_cast<std::uint32_t>(row.integer(4));
  object.created = {row.real(5)};
  object.updated = {row.real(6)};
  return object;
}

/// The user Admin's id as this file keeps it: the owner of the database object.
Bytes adminId(const Connection& connection) {
  auto query = connection.prepare(OwnerOfDatabase);
  query.bind(1, signedId(file::DatabaseObject));
  return query.step() ? blob(query, 0) : Bytes{};
}

Bytes creatorId(const Bytes& admin) {
  if (admin.size() != CreatorFromAdmin.size()) return {};
  return {admin[0] ^ CreatorFromAdmin[0], admin[1] ^ CreatorFromAdmin[1]};
}

struct Permission {
  Bytes id;
  std::int64_t mask;
};

/// What an object in `container` gets: the inheritable rows, the creator's going to the owner where Admin has
/// none.
std::vector<Permission> inherited(const Connection& connection, std::uint32_t container, const Bytes& admin) {
  std::vector<Permission> result;
  const Bytes creator = creatorId(admin);
  std::optional<std::int64_t> creatorMask;
  bool adminHasOwn = false;
  auto rows = connection.prepare(InheritedPermissions);
  rows.bind(1, signedId(container));
  while (rows.step()) {
    Bytes id = blob(rows, 0);
    if (id == creator) {
      creatorMask = rows.integer(1);
      continue;
    }
    adminHasOwn |= id == admin;
    result.push_back({std::move(id), rows.integer(1)});
  }
  if (creatorMask && !adminHasOwn) result.insert(result.begin(), {admin, *creatorMask});
  return result;
}

}  // namespace

std::vector<DatedObject> readObjects(const Connection& connection, file::ObjectType type) {
  std::vector<DatedObject> objects;
  auto rows = connection.prepare(ObjectsOfType);
  rows.bind(1, static_cast<std::int64_t>(type));
  while (rows.step()) objects.push_back(datedObject(rows));
  return objects;
}

std::optional<DatedObject> readObject(const Connection& connection, file::ObjectType type,
                                      std::uint32_t container, std::string_view name) {
  auto rows = connection.prepare(ObjectNamed);
  rows.bind(1, static_cast<std::int64_t>(type));
  rows.bind(2, signedId(container));
  rows.bind(3, name);
  return rows.step() ? std::optional(datedObject(rows)) : std::nullopt;
}

std::optional<DatedObject> readObject(const Connection& connection, file::ObjectType type, std::uint32_t id) {
  auto rows = connection.prepare(ObjectById);
  rows.bind(1, static_cast<std::int64_t>(type));
  rows.bind(2, signedId(id));
  return rows.step() ? std::optional(datedObject(rows)) : std::nullopt;
}

std::optional<DatedObject> readObject(const Connection& connection, std::string_view name,
                                      std::uint32_t container) {
  auto row = connection.prepare(ObjectIn);
  row.bind(1, signedId(container));
  row.bind(2, name);
  if (!row.step()) return std::nullopt;
  return datedObject(row);
}

std::uint32_t freeObjectId(const Connection& connection) {
  auto query = connection.prepare("SELECT c0 FROM t2 WHERE c0 < 0 ORDER BY c0");
  std::int64_t next = INT32_MIN;
  while (query.step() && query.integer(0) <= next) next = query.integer(0) + 1;
  return static_cast<std::uint32_t>(static_cast<std::int32_t>(next));
}

void insertObject(const Connection& connection, const file::CatalogueObject& object) {
  const Bytes admin = adminId(connection);
  auto insert = connection.prepare(InsertObject);
  insert.bind(1, signedId(object.id));
  insert.bind(2, signedId(object.parent));
  insert.bind(3, std::string_view(object.name));
  insert.bind(4, static_cast<std::int64_t>(object.type));
  insert.bind(5, platform::clock().now().days);
  insert.bind(6, admin);
  insert.bind(7, signedId(object.flags));
  insert.run();

  auto permit = connection.prepare(InsertPermission);
  for (const auto& permission : inherited(connection, object.parent, admin)) {
    permit.bind(1, signedId(object.id));
    permit.bind(2, permission.id);
    permit.bind(3, permission.mask);
    permit.run();
  }
}

void deleteObject(const Connection& connection, std::uint32_t id) {
  for (const char* sql : {"DELETE FROM t2 WHERE c0 = ?1", "DELETE FROM t3 WHERE c0 = ?1"}) {
    auto remove = connection.prepare(sql);
    remove.bind(1, signedId(id));
    remove.run();
  }
}

void renameObject(const Connection& connection, std::uint32_t id, std::string_view newName) {
  auto update = connection.prepare("UPDATE t2 SET c2 = ?2 WHERE c0 = ?1");
  update.bind(1, signedId(id));
  update.bind(2, newName);
  update.run();
}

void setObjectFlags(const Connection& connection, std::uint32_t id, std::uint32_t flags) {
  auto update = connection.prepare("UPDATE t2 SET c7 = ?2 WHERE c0 = ?1");
  update.bind(1, signedId(id));
  update.bind(2, signedId(flags));
  update.run();
}

void touchObject(const Connection& connection, std::uint32_t id) {
  auto update = connection.prepare("UPDATE t2 SET c5 = ?2 WHERE c0 = ?1");
  update.bind(1, signedId(id));
  update.bind(2, platform::clock().now().days);
  update.run();
}

std::optional<Link> readLink(const Connection& connection, std::uint32_t id) {
  auto query = connection.prepare(ReadLink);
  query.bind(1, signedId(id));
  if (!query.step()) return std::nullopt;
  return Link{query.text(0), query.text(1), query.text(2)};
}

void writeLink(const Connection& connection, std::uint32_t id, const Link& link) {
  auto update = connection.prepare(WriteLink);
  update.bind(1, signedId(id));
  update.bind(2, std::string_view(link.path));
  update.bind(3, std::string_view(link.sourceTable));
  if (link.connect.empty())
    update.bindNull(4);
  else
    update.bind(4, std::string_view(link.connect));
  update.run();
}

file::PropertyBlock readProperties(const Connection& connection, const file::Format& format,
                                   std::uint16_t codePage, std::uint32_t id) {
  auto query = connection.prepare("SELECT c14 FROM t2 WHERE c0 = ?1");
  query.bind(1, signedId(id));
  if (!query.step() || query.null(0)) return {};
  const Bytes block = blob(query, 0);
  return block.empty() ? file::PropertyBlock() : file::PropertyBlock(format, block, codePage);
}

void writeProperties(const Connection& connection, std::uint32_t id, const file::PropertyBlock& properties) {
  auto update = connection.prepare("UPDATE t2 SET c14 = ?2 WHERE c0 = ?1");
  update.bind(1, signedId(id));
  if (properties.empty())
    update.bindNull(2);
  else
    update.bind(2, properties.encode());
  update.run();
}

std::vector<RelationDesign> readRelations(const Connection& connection) {
  std::vector<RelationDesign> relations;
  auto rows = connection.prepare(RelationRows);
  while (rows.step()) {
    const std::string name = rows.text(0);
    if (relations.empty() || relations.back().name != name)
      relations.push_back(
          {name, rows.text(1), rows.text(2), static_cast<std::uint32_t>(rows.integer(3)), {}});
    relations.back().pairs.push_back({rows.text(4), rows.text(5)});
  }
  return relations;
}

void insertRelation(const Connection& connection, const RelationDesign& relation) {
  auto insert = connection.prepare(InsertRelation);
  for (std::size_t i = 0; i < relation.pairs.size(); ++i) {
    insert.bind(1, std::string_view(relation.name));
    insert.bind(2, signedId(relation.attributes));
    insert.bind(3, static_cast<std::int64_t>(relation.pairs.size()));
    insert.bind(4, static_cast<std::int64_t>(i));
    insert.bind(5, std::string_view(relation.foreignTable));
    insert.bind(6, std::string_view(relation.pairs[i].foreignColumn));
    insert.bind(7, std::string_view(relation.table));
    insert.bind(8, std::string_view(relation.pairs[i].column));
    insert.run();
  }
}

void deleteRelation(const Connection& connection, const std::string& name) {
  auto remove = connection.prepare("DELETE FROM t5 WHERE c0 = ?1");
  remove.bind(1, std::string_view(name));
  remove.run();
}

void renameColumnInRelations(const Connection& connection, const std::string& table, std::string_view column,
                             const std::string& newName) {
  for (const char* sql : {"UPDATE t5 SET c5 = ?3 WHERE c4 = ?1 AND c5 = ?2",
                          "UPDATE t5 SET c7 = ?3 WHERE c6 = ?1 AND c7 = ?2"}) {
    auto update = connection.prepare(sql);
    update.bind(1, std::string_view(table));
    update.bind(2, column);
    update.bind(3, std::string_view(newName));
    update.run();
  }
}

void renameTableInRelations(const Connection& connection, std::string_view table,
                            const std::string& newName) {
  for (const char* sql : {"UPDATE t5 SET c4 = ?2 WHERE c4 = ?1", "UPDATE t5 SET c6 = ?2 WHERE c6 = ?1"}) {
    auto update = connection.prepare(sql);
    update.bind(1, table);
    update.bind(2, std::string_view(newName));
    update.run();
  }
}

}  // namespace jet::image
