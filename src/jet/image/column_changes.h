#pragma once

#include "jet/image/auto_numbers.h"
#include "jet/image/table_changes.h"

namespace jet::image {

/// Columns of existing tables: added, replaced, resized, renamed, moved and dropped. Error 3078 for an
/// unknown page, 3111 for a system table, 3265 for an unknown column.
class ColumnChanges {
 public:
  ColumnChanges(Tables& tables, Rows& rows, Catalogue& catalogue, AutoNumbers& autoNumbers,
                TableChanges& tableChanges);

  /// Appends a column (newColumn) and gives its number. Rows hold Null there (Boolean: False), an auto-number
  /// counts them in their order. Its rules and default are properties, set afterwards. Errors as
  /// image::addColumn.
  std::uint16_t add(std::uint32_t page, file::Column column);
  /// Puts column `with` in the place of column `name`, which goes: `with` takes its name, its position, its
  /// part in indexes (made anew) and, unless `with` has its own of that name, its properties. How the values
  /// come over is the caller's business, beforehand. Error 3303 while a relation uses the old column, 3022 or
  /// 3058 if the rows don't allow an index.
  void replace(std::uint32_t page, std::string_view name, std::string_view with);
  /// Another size of a Text (characters) or Binary (bytes) column. Error 3163 if a value is longer.
  void resize(std::uint32_t page, std::string_view name, std::uint16_t size);
  /// Error 3191 if the table has the name. Relations follow.
  void rename(std::uint32_t page, std::string_view name, const std::string& newName);
  /// Lets a Long column give out numbers, beginning behind the largest it holds. Error 3090 for a second one
  /// in the table, 3259 for another type.
  void makeAutoNumber(std::uint32_t page, std::string_view name);
  /// The place in the order of `*`. Equal positions follow the order in which the columns were made; a
  /// negative one is before all others. Error 3259 beyond 65535.
  void move(std::uint32_t page, std::string_view name, std::int32_t position);
  /// Error 3280 while an index uses it, 3303 while a relation does.
  void drop(std::uint32_t page, std::string_view name);

 private:
  void requireUnrelated(const Table& owner, const file::Column& column);
  void forgetSlotZero(Table& table, const file::Column& gone);

  Tables& tables_;
  Rows& rows_;
  Catalogue& catalogue_;
  AutoNumbers& autoNumbers_;
  TableChanges& tableChanges_;
  const Connection& connection_;
};

}  // namespace jet::image
