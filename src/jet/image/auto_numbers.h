#pragma once

#include "jet/image/tables.h"

namespace jet::image {

/// The numbers that the engine gives to new rows: the triggers that fill them in, the function
/// jet_auto_number that those call, and jet_identity, the number given out last.
class AutoNumbers {
 public:
  explicit AutoNumbers(Tables& tables);
  AutoNumbers(const AutoNumbers&) = delete;
  AutoNumbers& operator=(const AutoNumbers&) = delete;

  /// Adds the triggers of the table's auto-number, if it has one.
  void addTriggers(const file::TableDefinition& design);
  /// The next row gets the number behind `last`.
  void goOnFrom(std::uint32_t page, std::int32_t last) { tables_.autoNumbers()[page] = last; }
  /// Gives every row a number in a new column.
  void fill(const file::TableDefinition& design, const file::Column& column);

 private:
  static void next(sqlite3_context* context, int count, sqlite3_value** values);
  static void identity(sqlite3_context* context, int count, sqlite3_value** values);

  Tables& tables_;
  std::int32_t identity_ = 0;  // 0 before the first
};

}  // namespace jet::image
