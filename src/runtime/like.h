#pragma once

#include <string_view>

namespace runtime {

/// An order of texts: <0, 0, >0.
using TextOrder = int (*)(std::string_view a, std::string_view b);

/// The language's Like: ? one character, * any number, # a digit, [list], [!list], with ranges (a-z);
/// characters are equal, and ranges run, by `order`. "[]" stands for nothing; a hyphen at a list's end, and a
/// "!" that is alone or behind its beginning, stand for themselves. Error 93 for a bracket that is not
/// closed.
bool isLike(std::string_view text, std::string_view pattern, TextOrder order);

}  // namespace runtime
