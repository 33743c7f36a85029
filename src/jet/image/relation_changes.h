#pragma once

#include "jet/image/table_changes.h"

namespace jet::image {

/// Relations made and dropped: rows of MSysRelationships, the catalogue object, the indexes of both tables.
class RelationChanges {
 public:
  RelationChanges(Tables& tables, Rows& rows, Catalogue& catalogue, TableChanges& tableChanges);

  /// Error 3012 if the name is taken, 3078 unknown table, 3265 unknown column; 3366 without columns; where it
  /// is enforced also 3368 types that differ, 3609 no unique index over just the parent's columns, 3201 rows
  /// without a parent, 3057 a linked table, 3284 an index of the foreign table has the name.
  void create(const RelationDesign& design);
  /// Error 3265 if there is none.
  void drop(std::string_view name);

 private:
  void enforce(const RelationDesign& relation, std::uint32_t parent, std::uint32_t child);
  void checkPartners(const RelationDesign& relation, Table& parent, Table& child);
  void release(const RelationDesign& relation);

  Tables& tables_;
  Rows& rows_;
  Catalogue& catalogue_;
  TableChanges& tableChanges_;
  const Connection& connection_;
};

}  // namespace jet::image
