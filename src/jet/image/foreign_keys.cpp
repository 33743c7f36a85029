// Referential integrity: the relations that the tables' indexes tell of, as triggers of the image.
#include "jet/image/foreign_keys.h"

#include <algorithm>

#include "jet/file/errors.h"
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
struct ForeignKeys::ForeignKey {
  std::string name;
  Table& parent;
  Table& child;
  Numbers parentColumns, foreignColumns;  // partners at equal positions
  bool cascadeUpdates, cascadeDeletes;

  /// Condition under which a row of the foreign table belongs to row OLD of the primary one.
  std::string isChildOfOld() const { return equal(foreignColumns, "OLD", parentColumns); }
  /// Condition under which a row of the primary table is the one that row NEW of the foreign one asks for.
  std::string isParentOfNew() const { return equal(parentColumns, "NEW", foreignColumns); }

 private:
  static std::string equal(const Numbers& searched, const std::string& changed, const Numbers& given) {
    std::string condition;
    for (std::size_t i = 0; i < searched.size(); ++i)
      condition +=
          (i ? " AND " : "") + columnName(searched[i]) + " = " + changed + "." + columnName(given[i]);
    return condition;
  }
};

ForeignKeys::ForeignKeys(Tables& tables, Rows& rows)
    : tables_(tables), rows_(rows), connection_(tables.connection()) {
  sqlite3_create_function_v2(connection_.handle(), "jet_cascaded", 1, SQLITE_UTF8, this, &noteCascade,
                             nullptr, nullptr, nullptr);
}

std::vector<ForeignKeys::ForeignKey> ForeignKeys::keysOf(Table& table, LogicalIndex::Side side) {
  std::vector<ForeignKey> found;
  const auto& design = rows_.definition(table);
  for (const auto& index : design.logicalIndexes) {
    if (index.kind != LogicalIndex::Kind::Relation || index.side != side) continue;
    const auto at = std::ranges::find(tables_.all(), index.otherTable, &Table::page);
    if (at == tables_.all().end()) continue;
    const auto& otherDesign = rows_.definition(*at);
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

void ForeignKeys::watchForeignTable(const ForeignKey& key, std::size_t number) {
  const std::string name = "k" + std::to_string(key.child.page) + "_" + std::to_string(number);
  const std::string refuse =
      raise(RelatedRecordMissing, "Serve una riga corrispondente nella tabella " + key.parent.name +
                                      " (relazione " + key.name + ")");
  std::string columns, condition;
  for (const auto column : key.foreignColumns) {
    columns += (columns.empty() ? "" : ",") + columnName(column);
    condition += "NEW." + columnName(column) + " IS NOT NULL AND ";
  }
  condition +=
      "NOT EXISTS (SELECT 1 FROM " + tableName(key.parent.page) + " WHERE " + key.isParentOfNew() + ")";
  for (const std::string& event : {std::string("INSERT"), "UPDATE OF " + columns})
    connection_.execute(afterTrigger(name + event.front(), event, key.child.page, condition, refuse));
}

void ForeignKeys::watchPrimaryTable(const ForeignKey& key, std::size_t number) {
  const std::string name = "p" + std::to_string(key.parent.page) + "_" + std::to_string(number);
  const std::string child = tableName(key.child.page);
  const std::string refuse =
      raise(RelatedRecordsExist,
            "La tabella " + key.child.name + " ha righe corrispondenti (relazione " + key.name + ")");
  const std::string partner = key.isChildOfOld();
  const std::string hasChildren = "EXISTS (SELECT 1 FROM " + child + " WHERE " + partner + ")";
  const std::string cascaded = "SELECT jet_cascaded(" + std::to_string(key.child.page) + ");";
  connection_.execute(
      afterTrigger(name + "D", "DELETE", key.parent.page, hasChildren,
                   key.cascadeDeletes ? cascaded + "DELETE FROM " + child + " WHERE " + partner : refuse));

  std::string columns, differs, assignments;
  for (std::size_t i = 0; i < key.parentColumns.size(); ++i) {
    const std::string column = columnName(key.parentColumns[i]);
    columns += (i ? "," : "") + column;
    differs += (i ? " OR OLD." : "OLD.") + column + " IS NOT NEW." + column;
    assignments += (i ? "," : "") + columnName(key.foreignColumns[i]) + " = NEW." + column;
  }
  connection_.execute(afterTrigger(
      name + "U", "UPDATE OF " + columns, key.parent.page, "(" + differs + ") AND " + hasChildren,
      key.cascadeUpdates ? cascaded + "UPDATE " + child + " SET " + assignments + " WHERE " + partner
                         : refuse));
}

void ForeignKeys::addTriggers(Table& table) {
  // SQLite wants the tables that a trigger names to be there, if only empty, when the trigger might run.
  std::size_t number = 0;
  for (const auto& key : keysOf(table, LogicalIndex::Side::Foreign)) {
    rows_.makeTable(key.parent);
    watchForeignTable(key, number++);
  }
  for (const auto& key : keysOf(table, LogicalIndex::Side::Primary)) {
    rows_.makeTable(key.child);
    watchPrimaryTable(key, number++);
  }
}

std::vector<ForeignKeys::Partner> ForeignKeys::partners(Table& table, const RowChange& change) {
  using Kind = RowChange::Kind;
  std::vector<Partner> found;
  for (const auto& key : keysOf(table, LogicalIndex::Side::Foreign))
    if (meets(change, Kind::Insert, key.foreignColumns))
      found.push_back({key.parent, key.parentColumns.front(), {}});
  for (const auto& key : keysOf(table, LogicalIndex::Side::Primary)) {
    if (!meets(change, Kind::Delete, key.parentColumns)) continue;
    auto& partner = found.emplace_back(Partner{key.child, key.foreignColumns.front(), {}});
    if (key.cascadeDeletes && change.kind != Kind::Update) partner.cascades.push_back({Kind::Delete, {}});
    if (key.cascadeUpdates && change.kind != Kind::Delete)
      partner.cascades.push_back({Kind::Update, key.foreignColumns});
  }
  return found;
}

void ForeignKeys::noteCascade(sqlite3_context* context, int, sqlite3_value** values) {
  static_cast<ForeignKeys*>(sqlite3_user_data(context))
      ->cascaded_.insert(static_cast<std::uint32_t>(sqlite3_value_int64(values[0])));
}

}  // namespace jet::image
