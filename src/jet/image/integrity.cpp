// Referential integrity: the relations that the tables' indexes tell of, as triggers of the image.
#include <algorithm>
#include <array>

#include "jet/image/image.h"
#include "jet/image/row_codec.h"
#include "jet/image/triggers.h"

namespace jet::image {

namespace {

using file::LogicalIndex;
using Numbers = std::vector<std::uint16_t>;

Numbers columnsOf(const file::TableDefinition& table, const LogicalIndex& index) {
  Numbers numbers;
  for (const auto& part : table.realIndexes.at(index.real).columns) numbers.push_back(part.column);
  return numbers;
}

bool contains(const std::vector<std::uint16_t>& numbers, std::uint16_t wanted) {
  return std::ranges::find(numbers, wanted) != numbers.end();
}

/// True if a change of this kind can break or follow a relation with `columns` on the changed side.
bool meets(const RowChange& change, RowChange::Kind always, const Numbers& columns) {
  if (change.kind == RowChange::Kind::Any || change.kind == always) return true;
  return change.kind == RowChange::Kind::Update &&
         (change.assigned.empty() ||
          std::ranges::any_of(columns, [&](auto column) { return contains(change.assigned, column); }));
}

}  // namespace

/// An enforced relation of the open file, as its two indexes tell it.
struct Image::Bond {
  std::string name;
  Table& parent;
  Table& child;
  Numbers parentColumns, foreignColumns;  // partners at equal positions
  bool cascadeUpdates, cascadeDeletes;
};

std::vector<Image::Bond> Image::bonds(Table& table, LogicalIndex::Side side) {
  std::vector<Bond> found;
  const auto& design = definition(table);
  for (const auto& index : design.logicalIndexes) {
    if (index.kind != LogicalIndex::Kind::Relation || index.side != side) continue;
    const auto at = std::ranges::find(state_.tables, index.otherTable, &Table::page);
    if (at == state_.tables.end()) continue;
    const auto& otherDesign = definition(*at);
    const auto other = std::ranges::find_if(otherDesign.logicalIndexes, [&](const LogicalIndex& candidate) {
      return candidate.kind == LogicalIndex::Kind::Relation && candidate.side != side &&
             candidate.otherTable == table.page &&
             candidate.number == static_cast<std::uint32_t>(index.otherNumber);
    });
    if (other == otherDesign.logicalIndexes.end()) continue;
    const Numbers own = columnsOf(design, index), theirs = columnsOf(otherDesign, *other);
    // In a damaged file the ends may not fit each other; there is nothing to enforce then.
    if (own.empty() || own.size() != theirs.size()) continue;
    const bool foreign = side == LogicalIndex::Side::Foreign;
    found.push_back({foreign ? index.name : other->name, foreign ? *at : table, foreign ? table : *at,
                     foreign ? theirs : own, foreign ? own : theirs, index.cascadeUpdates == 1,
                     index.cascadeDeletes == 1});
  }
  return found;
}

std::string Image::partners(const Bond& bond, const std::string& changed, bool changedIsChild) {
  std::string condition;
  const auto& changedSide = changedIsChild ? bond.foreignColumns : bond.parentColumns;
  const auto& searched = changedIsChild ? bond.parentColumns : bond.foreignColumns;
  for (std::size_t i = 0; i < searched.size(); ++i) {
    condition += (condition.empty() ? "" : " AND ") + columnName(searched[i]) + " = " + changed + "." +
                 columnName(changedSide[i]);
  }
  return condition;
}

void Image::guardAsChild(const Bond& bond, std::size_t number) {
  const std::string name = "k" + std::to_string(bond.child.page) + "_" + std::to_string(number);
  const std::string refuse =
      raise(RelatedRecordMissing, "Serve una riga corrispondente nella tabella " + bond.parent.name +
                                      " (relazione " + bond.name + ")");
  std::string columns, condition;
  for (const auto column : bond.foreignColumns) {
    columns += (columns.empty() ? "" : ",") + columnName(column);
    condition += "NEW." + columnName(column) + " IS NOT NULL AND ";
  }
  condition += "NOT EXISTS (SELECT 1 FROM " + tableName(bond.parent.page) + " WHERE " +
               partners(bond, "NEW", true) + ")";
  for (const std::string& event : {std::string("INSERT"), "UPDATE OF " + columns})
    connection_.execute(afterTrigger(name + event.front(), event, bond.child.page, condition, refuse));
}

void Image::guardAsParent(const Bond& bond, std::size_t number) {
  const std::string name = "p" + std::to_string(bond.parent.page) + "_" + std::to_string(number);
  const std::string child = tableName(bond.child.page);
  const std::string refuse =
      raise(RelatedRecordsExist,
            "La tabella " + bond.child.name + " ha righe corrispondenti (relazione " + bond.name + ")");
  const std::string partner = partners(bond, "OLD", false);
  const std::string hasChildren = "EXISTS (SELECT 1 FROM " + child + " WHERE " + partner + ")";
  const std::string cascaded = "SELECT jet_cascaded(" + std::to_string(bond.child.page) + ");";
  connection_.execute(
      afterTrigger(name + "D", "DELETE", bond.parent.page, hasChildren,
                   bond.cascadeDeletes ? cascaded + "DELETE FROM " + child + " WHERE " + partner : refuse));

  std::string columns, differs, assignments;
  for (std::size_t i = 0; i < bond.parentColumns.size(); ++i) {
    const std::string key = columnName(bond.parentColumns[i]);
    columns += (i ? "," : "") + key;
    differs += (i ? " OR OLD." : "OLD.") + key + " IS NOT NEW." + key;
    assignments += (i ? "," : "") + columnName(bond.foreignColumns[i]) + " = NEW." + key;
  }
  connection_.execute(afterTrigger(
      name + "U", "UPDATE OF " + columns, bond.parent.page, "(" + differs + ") AND " + hasChildren,
      bond.cascadeUpdates ? cascaded + "UPDATE " + child + " SET " + assignments + " WHERE " + partner
                          : refuse));
}

void Image::guardRelations(Table& table) {
  // SQLite wants the tables that a trigger names to be there, if only empty, when the trigger might run.
  std::size_t number = 0;
  for (const auto& bond : bonds(table, LogicalIndex::Side::Foreign)) {
    makeRows(bond.parent);
    guardAsChild(bond, number++);
  }
  for (const auto& bond : bonds(table, LogicalIndex::Side::Primary)) {
    makeRows(bond.child);
    guardAsParent(bond, number++);
  }
}

void Image::readyPartners(Table& table, const RowChange& change, std::vector<Readied>& done) {
  using Kind = RowChange::Kind;
  const Readied self{table.page, change.kind, change.assigned};
  if (std::ranges::find(done, self) != done.end()) return;
  done.push_back(self);
  for (const auto& bond : bonds(table, LogicalIndex::Side::Foreign)) {
    if (!meets(change, Kind::Insert, bond.foreignColumns)) continue;
    load(bond.parent);
    makeIndexes(definition(bond.parent), {bond.parentColumns.front()}, false);
  }
  for (const auto& bond : bonds(table, LogicalIndex::Side::Primary)) {
    if (!meets(change, Kind::Delete, bond.parentColumns)) continue;
    load(bond.child);
    makeIndexes(definition(bond.child), {bond.foreignColumns.front()}, false);
    if (bond.cascadeDeletes && change.kind != Kind::Update)
      readyChange(bond.child, {}, {Kind::Delete, {}}, done);
    if (bond.cascadeUpdates && change.kind != Kind::Delete)
      readyChange(bond.child, {}, {Kind::Update, bond.foreignColumns}, done);
  }
}

void Image::cascaded(sqlite3_context* context, int, sqlite3_value** values) {
  static_cast<Image*>(sqlite3_user_data(context))
      ->cascaded_.insert(static_cast<std::uint32_t>(sqlite3_value_int64(values[0])));
}

}  // namespace jet::image
