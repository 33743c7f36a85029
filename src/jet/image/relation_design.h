#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "jet/file/definition.h"

/// Relations between tables, and the indexes in which the tables' definitions keep them.
namespace jet::image {

/// A relation: rows of `foreignTable` point at rows of `table`.
struct RelationDesign {
  // Bits of `attributes`; others are kept as they are.
  static constexpr std::uint32_t Unique = 0x1, DontEnforce = 0x2, Inherited = 0x4, UpdateCascade = 0x100,
                                 DeleteCascade = 0x1000, LeftJoin = 0x01000000, RightJoin = 0x02000000;
  struct Pair {
    std::string column, foreignColumn;
  };

  std::string name, table, foreignTable;
  std::uint32_t attributes = 0;
  std::vector<Pair> pairs;

  bool enforced() const { return (attributes & DontEnforce) == 0; }
};

/// Column numbers on one side of a relation, in the order of its pairs. Error 3265 for a column that the
/// table doesn't have.
std::vector<std::uint16_t> parentColumns(const file::TableDefinition& parent, const RelationDesign& relation);
std::vector<std::uint16_t> foreignColumns(const file::TableDefinition& child, const RelationDesign& relation);

/// Writes the columns of a relation as the tables write them. Error 3265 for one that a table doesn't have.
void spellColumns(RelationDesign& relation, const file::TableDefinition& parent,
                  const file::TableDefinition& child);

/// Puts the two ends of an enforced relation into the tables' indexes; the foreign one shares an index over
/// the same columns or gets one. A self relation gives the same table twice. Errors 3368, 3609, 3284, 3626.
void addRelationEnds(file::TableDefinition& parent, file::TableDefinition& child,
                     const RelationDesign& relation);
/// Takes them out again, and the foreign index if nothing else uses it. False if there are none.
bool removeRelationEnds(file::TableDefinition& parent, file::TableDefinition& child,
                        const std::string& relation);

}  // namespace jet::image
