// A relation's two ends in the indexes of its tables.
#include "jet/image/relation_design.h"

#include <algorithm>
#include <optional>

#include "jet/file/errors.h"
#include "jet/image/design.h"
#include "runtime/error.h"

namespace jet::image {

namespace {

using file::LogicalIndex;
using file::RealIndex;
using file::TableDefinition;

using Numbers = std::vector<std::uint16_t>;

Numbers numbers(const TableDefinition& table, const RelationDesign& relation,
                std::string RelationDesign::Pair::*side) {
  Numbers result;
  for (const auto& pair : relation.pairs) {
    const auto position = table.find(pair.*side);
    if (!position)
      throw runtime::Error(ItemNotFound, source::Relations,
                           "Campo inesistente: " + table.name + "." + pair.*side);
    result.push_back(table.columns[*position].number);
  }
  return result;
}

void checkTypes(const TableDefinition& parent, const TableDefinition& child, const RelationDesign& relation) {
  const auto parents = parentColumns(parent, relation), foreigners = foreignColumns(child, relation);
  for (std::size_t i = 0; i < parents.size(); ++i)
    if (parent.columns[*parent.findNumber(parents[i])].type !=
        child.columns[*child.findNumber(foreigners[i])].type)
      throw runtime::Error(RelationTypesDiffer, source::Relations,
                           "La relazione " + relation.name + " lega campi di tipo diverso: " +
                               relation.pairs[i].column + " e " + relation.pairs[i].foreignColumn);
}

Numbers columnsOf(const RealIndex& index) {
  Numbers result;
  for (const auto& part : index.columns) result.push_back(part.column);
  return result;
}

/// The unique index over just these columns: first one in their order, then one in any.
std::optional<std::size_t> uniqueIndexOver(const TableDefinition& table, const Numbers& columns) {
  std::optional<std::size_t> inAnotherOrder;
  for (std::size_t i = 0; i < table.realIndexes.size(); ++i) {
    if (!(table.realIndexes[i].flags & RealIndex::Unique)) continue;
    const auto own = columnsOf(table.realIndexes[i]);
    if (own == columns) return i;
    if (std::ranges::is_permutation(own, columns)) inAnotherOrder = i;
  }
  return inAnotherOrder;
}

/// The foreign columns in the order and direction in which the parent's index has their partners.
std::vector<file::IndexColumn> foreignParts(const RealIndex& parent, const Numbers& parents,
                                            const Numbers& foreigners) {
  std::vector<file::IndexColumn> parts;
  for (const auto& part : parent.columns) {
    const auto at = std::ranges::find(parents, part.column) - parents.begin();
    parts.push_back({foreigners[static_cast<std::size_t>(at)], part.ascending});
  }
  return parts;
}

std::optional<std::size_t> indexOver(const TableDefinition& table,
                                     const std::vector<file::IndexColumn>& parts) {
  for (std::size_t i = 0; i < table.realIndexes.size(); ++i)
    if (table.realIndexes[i].columns == parts) return i;
  return std::nullopt;
}

std::uint32_t freeNumber(const TableDefinition& table) {
  std::uint32_t number = 0;
  for (const auto& index : table.logicalIndexes) number = std::max(number, index.number + 1);
  return number;
}

bool hasIndex(const TableDefinition& table, std::string_view name) {
  return std::ranges::any_of(table.logicalIndexes,
                             [&](const LogicalIndex& index) { return file::sameName(index.name, name); });
}

/// ".rB", ".rC", ... ".rZ", ".rBA" ...: the first that is free.
std::string parentIndexName(const TableDefinition& table) {
  constexpr std::size_t Letters = 26;
  for (std::size_t i = 1;; ++i) {
    std::string letters;
    for (std::size_t rest = i; rest > 0; rest /= Letters)
      letters.insert(letters.begin(), static_cast<char>('A' + rest % Letters));
    if (!hasIndex(table, ".r" + letters)) return ".r" + letters;
  }
}

LogicalIndex end(const RelationDesign& relation, LogicalIndex::Side side, std::uint32_t real,
                 std::uint32_t number) {
  LogicalIndex index;
  index.kind = LogicalIndex::Kind::Relation;
  index.side = side;
  index.real = real;
  index.number = number;
  index.cascadeUpdates = (relation.attributes & RelationDesign::UpdateCascade) != 0;
  index.cascadeDeletes = (relation.attributes & RelationDesign::DeleteCascade) != 0;
  return index;
}

}  // namespace

Numbers parentColumns(const TableDefinition& parent, const RelationDesign& relation) {
  return numbers(parent, relation, &RelationDesign::Pair::column);
}

Numbers foreignColumns(const TableDefinition& child, const RelationDesign& relation) {
  return numbers(child, relation, &RelationDesign::Pair::foreignColumn);
}

void spellColumns(RelationDesign& relation, const TableDefinition& parent, const TableDefinition& child) {
  const auto parents = parentColumns(parent, relation), foreigners = foreignColumns(child, relation);
  for (std::size_t i = 0; i < relation.pairs.size(); ++i)
    relation.pairs[i] = {parent.columns[*parent.findNumber(parents[i])].name,
                         child.columns[*child.findNumber(foreigners[i])].name};
}

void addRelationEnds(TableDefinition& parent, TableDefinition& child, const RelationDesign& relation) {
  checkTypes(parent, child, relation);
  if (hasIndex(child, relation.name))
    throw runtime::Error(IndexExists, source::Relations,
                         "La tabella " + child.name + " ha già un indice di nome " + relation.name);
  const auto parents = parentColumns(parent, relation), foreigners = foreignColumns(child, relation);
  const auto key = uniqueIndexOver(parent, parents);
  if (!key)
    throw runtime::Error(
        NoUniqueIndex, source::Relations,
        "La tabella " + parent.name + " non ha un indice univoco sui campi della relazione " + relation.name);
  const auto parts = foreignParts(parent.realIndexes[*key], parents, foreigners);
  auto real = indexOver(child, parts);
  if (!real) {
    requireRoomForIndex(child);
    RealIndex own;
    own.columns = parts;
    child.realIndexes.push_back(std::move(own));
    real = child.realIndexes.size() - 1;
  }
  auto primary =
      end(relation, LogicalIndex::Side::Primary, static_cast<std::uint32_t>(*key), freeNumber(parent));
  primary.name = parentIndexName(parent);
  parent.logicalIndexes.push_back(primary);
  auto foreign =
      end(relation, LogicalIndex::Side::Foreign, static_cast<std::uint32_t>(*real), freeNumber(child));
  foreign.name = relation.name;
  foreign.otherNumber = static_cast<std::int32_t>(primary.number);
  foreign.otherTable = parent.page;
  child.logicalIndexes.push_back(foreign);
  const auto added = std::ranges::find(parent.logicalIndexes, primary.number, &LogicalIndex::number);
  added->otherNumber = static_cast<std::int32_t>(foreign.number);
  added->otherTable = child.page;
}

bool removeRelationEnds(TableDefinition& parent, TableDefinition& child, const std::string& relation) {
  const auto foreign = std::ranges::find_if(child.logicalIndexes, [&](const LogicalIndex& index) {
    return index.kind == LogicalIndex::Kind::Relation && index.side == LogicalIndex::Side::Foreign &&
           index.otherTable == parent.page && file::sameName(index.name, relation);
  });
  if (foreign == child.logicalIndexes.end()) return false;
  const auto other = static_cast<std::uint32_t>(foreign->otherNumber);
  removeLogical(child, static_cast<std::size_t>(foreign - child.logicalIndexes.begin()));
  const auto primary = std::ranges::find_if(parent.logicalIndexes, [&](const LogicalIndex& index) {
    return index.kind == LogicalIndex::Kind::Relation && index.number == other;
  });
  if (primary != parent.logicalIndexes.end())
    removeLogical(parent, static_cast<std::size_t>(primary - parent.logicalIndexes.begin()));
  return true;
}

}  // namespace jet::image
