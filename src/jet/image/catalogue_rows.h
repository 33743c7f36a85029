#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "jet/file/properties.h"
#include "jet/file/read/catalogue.h"
#include "jet/image/connection.h"
#include "jet/image/linked_table.h"
#include "jet/image/relation_design.h"
#include "runtime/variant.h"

/// Rows of the system tables that tell of an object, changed in the image like any rows. The system tables
/// they name must be loaded; the caller marks them as changed.
namespace jet::image {

/// An object's id, or a word of bits, as the image keeps a Long.
inline std::int64_t signedId(std::uint32_t id) {
  return static_cast<std::int32_t>(id);
}

/// An object and the times of its making and of its last change of design.
struct DatedObject : file::CatalogueObject {
  runtime::Date created, updated;
};
/// The column of MSysObjects by which an object of a name is looked for.
constexpr std::uint16_t ObjectParentColumn = 1;
/// All objects of a type in the order of the rows, or the one of them that has the name or the id.
std::vector<DatedObject> readObjects(const Connection& connection, file::ObjectType type);
std::optional<DatedObject> readObject(const Connection& connection, file::ObjectType type,
                                      std::uint32_t container, std::string_view name);
std::optional<DatedObject> readObject(const Connection& connection, file::ObjectType type, std::uint32_t id);
/// The object of any type that has the name in this container.
std::optional<DatedObject> readObject(const Connection& connection, std::string_view name,
                                      std::uint32_t container);

/// The lowest free id for an object without a page: they count upwards from the lowest negative number. One
/// that a dropped object has left is taken first: a relation that is made anew leaves no gap.
std::uint32_t freeObjectId(const Connection& connection);
/// Adds an object with its permissions, as its container hands them down.
void insertObject(const Connection& connection, const file::CatalogueObject& object);
/// Removes an object and its permissions.
void deleteObject(const Connection& connection, std::uint32_t id);
void renameObject(const Connection& connection, std::uint32_t id, std::string_view newName);
void setObjectFlags(const Connection& connection, std::uint32_t id, std::uint32_t flags);
/// Sets the time of the object's last change of design.
void touchObject(const Connection& connection, std::uint32_t id);

/// What the object of a linked table leads to.
std::optional<Link> readLink(const Connection& connection, std::uint32_t id);
void writeLink(const Connection& connection, std::uint32_t id, const Link& link);

/// The object's property block; empty if it has none.
file::PropertyBlock readProperties(const Connection& connection, const file::Format& format,
                                   std::uint16_t codePage, std::uint32_t id);
void writeProperties(const Connection& connection, std::uint32_t id, const file::PropertyBlock& properties);

/// All relations in the order in which they were made.
std::vector<RelationDesign> readRelations(const Connection& connection);
void insertRelation(const Connection& connection, const RelationDesign& relation);
void deleteRelation(const Connection& connection, const std::string& name);
/// Renames a column, or a table, in the rows of the relations that name it.
void renameColumnInRelations(const Connection& connection, const std::string& table, std::string_view column,
                             const std::string& newName);
void renameTableInRelations(const Connection& connection, std::string_view table, const std::string& newName);

}  // namespace jet::image
