// Rows of the old file in the columns of the new one.
#include "jet/file/write/carried_rows.h"

#include <array>

#include "jet/file/errors.h"

namespace jet::file {

namespace {

constexpr std::array False = {std::byte{0}};

FieldBytes emptyField(ColumnType type) {
  if (type == ColumnType::Boolean) return {false, False};
  return {};
}

}  // namespace

CarriedRows::CarriedRows(const PageFile& source, const TableDefinition& before, const TableDefinition& after)
    : reader_(source, before) {
  for (const Column& column : after.columns) {
    const auto old = before.findNumber(column.number);
    if (old && before.columns[*old].type != column.type)
      throw jetError(InvalidArgument,
                     "La colonna \"" + column.name + "\" ha cambiato tipo senza le sue righe");
    from_.push_back(old);
    empty_.push_back(emptyField(column.type));
  }
}

bool CarriedRows::next(Row& row) {
  if (!reader_.next(old_)) return false;
  row = empty_;
  for (std::size_t i = 0; i < from_.size(); ++i)
    if (from_[i]) row[i] = old_[*from_[i]];
  return true;
}

}  // namespace jet::file
