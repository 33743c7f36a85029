// Rows and selection of a list, and the click that a change of selection is.
#include "controls/list_box.h"

#include "controls/property_error.h"

namespace controls {

std::string ListBox::list(int row) const {
  return row >= 0 && row < listCount() ? rows_[static_cast<std::size_t>(row)] : std::string();
}

void ListBox::addItem(std::string_view text) {
  rows_.emplace_back(text);
  changed.raise();
}

void ListBox::clear() {
  rows_.clear();
  listIndex_ = -1;
  changed.raise();
}

void ListBox::requireRow(int row) const {
  if (row < -1 || row >= listCount()) throw invalidProperty(name(), "ListIndex");
}

void ListBox::setListIndex(int row) {
  requireRow(row);
  if (assign(listIndex_, row)) click.raise();
}

bool ListBox::pick(int row) {
  requireRow(row);
  if (!reachable()) return false;
  assign(listIndex_, row);
  click.raise();
  return true;
}

bool ListBox::pickTwice(int row) {
  if (!pick(row)) return false;
  dblClick.raise();
  return true;
}

}  // namespace controls
