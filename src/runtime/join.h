#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace runtime {

/// The items one after another with `separator` between them; `shown` makes a text of each.
template <class Items, class Shown = std::identity>
std::string join(const Items& items, std::string_view separator, Shown shown = {}) {
  std::string text;
  bool first = true;
  for (const auto& item : items) {
    if (!first) text += separator;
    first = false;
    text += std::invoke(shown, item);
  }
  return text;
}

}  // namespace runtime
