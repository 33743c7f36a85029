// Indexes put into the order, and given the numbers, of tables that never lost one.
#include "jet/file/index/index_numbers.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

namespace jet::file {
namespace {

/// The table's page and the number that an index had: the number that it has now.
using NewNumbers = std::map<std::pair<std::uint32_t, std::uint32_t>, std::uint32_t>;

bool isRelations(const LogicalIndex& index) {
  return index.kind == LogicalIndex::Kind::Relation;
}

void putOwnIndexesFirst(TableDefinition& table) {
  std::vector<std::uint32_t> order;
  for (std::uint32_t real = 0; real < table.realIndexes.size(); ++real) order.push_back(real);
  std::stable_partition(order.begin(), order.end(), [&table](std::uint32_t real) {
    return std::ranges::any_of(table.logicalIndexes, [real](const LogicalIndex& index) {
      return index.real == real && !isRelations(index);
    });
  });
  const std::vector<RealIndex> before = table.realIndexes;
  std::vector<std::uint32_t> places(order.size());
  for (std::uint32_t place = 0; place < order.size(); ++place) {
    table.realIndexes[place] = before[order[place]];
    places[order[place]] = place;
  }
  for (auto& index : table.logicalIndexes)
    if (index.real < places.size()) index.real = places[index.real];
}

/// Each real index lends its number to one logical index over it, an ordinary one before a relation's; the
/// others follow in the order of their creation.
void renumber(TableDefinition& table, NewNumbers& numbers) {
  std::vector<LogicalIndex*> indexes;
  for (auto& index : table.logicalIndexes) indexes.push_back(&index);
  std::ranges::sort(indexes, {},
                    [](const LogicalIndex* index) { return std::tuple(isRelations(*index), index->number); });
  auto next = static_cast<std::uint32_t>(table.realIndexes.size());
  std::vector<bool> lent(table.realIndexes.size());
  std::vector<std::pair<LogicalIndex*, std::uint32_t>> given;
  for (auto* index : indexes) {
    const bool borrows = index->real < lent.size() && !lent[index->real];
    if (borrows) lent[index->real] = true;
    given.emplace_back(index, borrows ? index->real : next++);
  }
  for (const auto& [index, number] : given) {
    numbers.emplace(std::pair(table.page, index->number), number);
    index->number = number;
  }
}

}  // namespace

void renumberIndexes(std::vector<TableDefinition>& tables) {
  NewNumbers numbers;
  for (auto& table : tables) {
    if (table.system) continue;
    putOwnIndexesFirst(table);
    renumber(table, numbers);
  }
  for (auto& table : tables)
    for (auto& index : table.logicalIndexes) {
      const auto other = numbers.find({index.otherTable, static_cast<std::uint32_t>(index.otherNumber)});
      if (other != numbers.end()) index.otherNumber = static_cast<std::int32_t>(other->second);
    }
}

}  // namespace jet::file
