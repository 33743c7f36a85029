#pragma once

#include <string>
#include <string_view>

#include "jet/file/properties.h"
#include "jet/image/catalogue.h"
#include "jet/image/design.h"

/// Changes of design. Each is whole or not at all; error 3027 in a read-only database, 3057 where it is not
/// for links.
namespace jet::image {

/// Tables and indexes made, renamed and dropped, with their catalogue rows.
class TableChanges {
 public:
  TableChanges(Tables& tables, Rows& rows, Catalogue& catalogue);

  /// Adds a table of this design (page, rows and maps are the image's business) with the properties of itself
  /// and its columns. Error 3010 if the name is taken, 3012 by a query or link, 3111 by a system table.
  void create(file::TableDefinition design, const file::PropertyBlock& properties);
  /// Drops a table, or a link and not what it leads to. Error 3376 if there is none, 3281 while a relation
  /// stands on it, 3111 for a system table.
  void drop(std::string_view name);
  /// Renames a table or link, in relations too. Errors 3078, 3010 or 3012 if the name is taken, 3125.
  void rename(std::string_view name, const std::string& newName);

  /// Errors as addIndex; 3022 or 3058 if the rows don't allow it.
  void createIndex(std::string_view table, const IndexDesign& design);
  /// Errors as removeIndex.
  void dropIndex(std::string_view table, std::string_view name);
  void renameIndex(std::string_view table, std::string_view name, const std::string& newName);

  /// Gives the table a design that the file doesn't have yet.
  void setDefinition(Table& table, file::TableDefinition definition);
  /// Errors 3022 and 3058 if the rows don't allow the real index at this position of the design to come.
  void checkRows(Table& table, const file::TableDefinition& design, std::size_t index);

 private:
  /// Drops the triggers of the tables that relations join to this one.
  void dropTriggersAround(const Table& table);

  Tables& tables_;
  Rows& rows_;
  Catalogue& catalogue_;
  const Connection& connection_;
};

}  // namespace jet::image
