#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace jet::file {

/// Sort key of a text in Jet 4's General order (1033, version 0), ascending, without the flag byte and with
/// its closing zero; equal texts have equal keys and memcmp orders them. `limit` code units count (an index
/// takes 255).
void appendTextKey(std::u16string_view text, std::size_t limit, std::vector<std::byte>& key);
/// Orders two UTF-8 texts as their keys without a limit would: <0, 0, >0. Fast for plain Latin text.
int compareText(std::string_view a, std::string_view b);

}  // namespace jet::file
