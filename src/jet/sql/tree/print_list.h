#pragma once

#include <string>

namespace jet::sql::tree {

/// What `printItem` makes of each item, with commas between.
template <class Items, class Print>
std::string printAll(const Items& items, Print printItem) {
  std::string list;
  for (const auto& item : items) list += (list.empty() ? "" : ", ") + printItem(item);
  return list;
}

}  // namespace jet::sql::tree
