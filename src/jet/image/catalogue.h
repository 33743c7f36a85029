#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "jet/file/properties.h"
#include "jet/file/read/catalogue.h"
#include "jet/image/relation_design.h"
#include "jet/image/rows.h"

namespace jet::image {

/// The objects of the file with their properties, and the relations, as rows of the system tables.
class Catalogue {
 public:
  Catalogue(Tables& tables, Rows& rows);

  /// Objects of this type in the order of the catalogue.
  std::vector<file::CatalogueObject> objects(file::ObjectType type);
  /// The table, link or query of this name, or what lies in another container.
  std::optional<file::CatalogueObject> findObject(std::string_view name,
                                                  std::uint32_t container = file::TablesContainer);
  /// Adds an object without a page of its own (a query) in the container of tables, a relation in its own,
  /// and gives its id, the lowest that is free. Error 3012 if the name is taken.
  std::uint32_t createObject(const std::string& name, file::ObjectType type, std::uint32_t flags);
  /// Sets name and flags of an object of the container of tables, and the time of its last change. Error 3012
  /// if another object has the name.
  void changeObject(std::uint32_t id, const std::string& name, std::uint32_t flags);
  /// Errors 3125; 3010 or 3012 if a table or another object has the name.
  void renameObject(std::uint32_t id, const std::string& newName);
  /// Removes an object with its permissions; its page, if it has one, is the caller's business.
  void dropObject(std::uint32_t id);
  /// Makes a system table ready for rows to be added with plain statements, and notes the change.
  void changeSystemTable(std::uint32_t page);

  /// Properties of an object by its id (a table's is its page) and of its columns; valid until a change.
  const file::PropertyBlock& properties(std::uint32_t id);
  /// Adds or replaces a property of the object (empty `column`) or of a column. It is kept as given: see
  /// property_values.h for the types.
  void setProperty(std::uint32_t id, std::string_view column, const file::PropertyItem& item);
  /// Nothing happens where there is none.
  void removeProperty(std::uint32_t id, std::string_view column, std::string_view name);
  void changeProperties(std::uint32_t id, file::PropertyBlock block);

  /// All relations of the file, in the order in which they were made.
  std::vector<RelationDesign> relations();

  /// Links table `sourceTable` of the file `path` under a name. The file is looked at when the link is used:
  /// 3024 no such file, 3044 no such folder, 3011 no such table in it, 3170 another kind of source. Error
  /// 3012 if the name is taken.
  void linkTable(const std::string& name, const Link& link);

 private:
  Tables& tables_;
  Rows& rows_;
  const Connection& connection_;
};

}  // namespace jet::image
