#pragma once

#include <set>
#include <string>
#include <vector>

#include "jet/image/rows.h"

namespace jet::image {

/// What is about to happen to rows of a table; from it follows which other tables' rows are needed.
struct RowChange {
  enum class Kind { Any, Insert, Update, Delete };
  Kind kind = Kind::Any;
  std::vector<std::uint16_t> assigned;  // Update: Column::number of the columns that get values; none: any
  bool operator==(const RowChange&) const = default;
};

/// Referential integrity: the enforced relations, as the tables' indexes tell of them, and their triggers.
class ForeignKeys {
 public:
  ForeignKeys(Tables& tables, Rows& rows);
  ForeignKeys(const ForeignKeys&) = delete;
  ForeignKeys& operator=(const ForeignKeys&) = delete;

  /// Adds the triggers that hold rows of the table to its relations, on both sides (3200, 3201, cascades).
  void addTriggers(Table& table);

  /// A table whose rows a change of another one can meet.
  struct Partner {
    Table& table;
    std::uint16_t compared;           // the column by which they are looked up
    std::vector<RowChange> cascades;  // what then happens to them
  };
  std::vector<Partner> partners(Table& table, const RowChange& change);

  /// Tables whose rows cascades have changed since they were last forgotten.
  const std::set<std::uint32_t>& cascaded() const { return cascaded_; }
  void forgetCascades() { cascaded_.clear(); }

 private:
  struct ForeignKey;
  std::vector<ForeignKey> keysOf(Table& table, file::LogicalIndex::Side side);
  void watchForeignTable(const ForeignKey& key, std::size_t number);
  void watchPrimaryTable(const ForeignKey& key, std::size_t number);
  /// Called where a cascade changes rows of another table.
  static void noteCascade(sqlite3_context* context, int count, sqlite3_value** values);

  Tables& tables_;
  Rows& rows_;
  const Connection& connection_;
  std::set<std::uint32_t> cascaded_;
};

}  // namespace jet::image
