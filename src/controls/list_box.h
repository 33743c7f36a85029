#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "controls/control.h"

namespace controls {

/// A list of texts, of which one row or none is selected. Rows count from 0.
class ListBox : public Control {
 public:
  using Control::Control;

  int listCount() const { return static_cast<int>(rows_.size()); }
  /// The text of a row; empty for a row that is not there.
  std::string list(int row) const;
  void addItem(std::string_view text);
  /// Removes all rows and the selection, without a `click`.
  void clear();

  /// The selected row, -1 for none.
  int listIndex() const { return listIndex_; }
  /// Selects a row and raises `click` if it is another than before; outside -1 to listCount() - 1: error 380.
  void setListIndex(int row);

  /// What an operator's click on a row does: `click` comes even if the row was selected already. False if the
  /// list is hidden or disabled.
  bool pick(int row);
  /// A double click: `click`, then `dblClick`.
  bool pickTwice(int row);

  Event<> click;
  Event<> dblClick;

 private:
  void requireRow(int row) const;

  std::vector<std::string> rows_;
  int listIndex_ = -1;
};

}  // namespace controls
