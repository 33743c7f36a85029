#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "jet/file/catalogue.h"
#include "jet/file/properties.h"
#include "jet/image/connection.h"

/// Rows of the system tables that tell of an object, changed in the image like any rows. The system tables
/// they name must be loaded; the caller marks them as changed.
namespace jet::image {

/// Adds an object with its permissions, as its container hands them down.
void insertObject(const Connection& connection, const file::CatalogueObject& object);
/// Removes an object and its permissions.
void deleteObject(const Connection& connection, std::uint32_t id);
/// Sets the time of the object's last change of design.
void touchObject(const Connection& connection, std::uint32_t id);

/// The object's property block; empty if it has none.
file::PropertyBlock readProperties(const Connection& connection, const file::Format& format,
                                   std::uint32_t id);
void writeProperties(const Connection& connection, std::uint32_t id, const file::PropertyBlock& properties);

/// Renames a column in the rows of the relations that name it.
void renameInRelations(const Connection& connection, const std::string& table, std::string_view column,
                       const std::string& newName);

}  // namespace jet::image
