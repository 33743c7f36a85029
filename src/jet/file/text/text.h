#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "jet/file/page/format.h"

namespace jet::file {

/// Appends the UTF-8 of a Text or Memo field as the file holds it (FieldBytes); `codePage` is the header's,
/// used by Jet 3. A lone surrogate keeps its value, in three bytes. Error 3343 for half a character, or for a
/// character outside ASCII in a code page other than 1252.
void appendText(const Format& format, std::span<const std::byte> field, std::string& out,
                std::uint16_t codePage = 1252);
/// The same for a name in a definition or property block, which is never compressed.
std::string nameText(const Format& format, std::span<const std::byte> name, std::uint16_t codePage = 1252);

/// A Text or Memo field of Jet 4 for this UTF-8: compressed when `compress` and shorter so (all characters
/// U+0001..U+00FF and at least three), else UTF-16LE; a text that begins with U+FEFF is never written plain
/// (error 3001 where it can't be compressed either).
void encodeText(std::string_view utf8, bool compress, std::vector<std::byte>& out);
/// Length of the text in UTF-16 code units, what Size limits.
std::size_t utf16Length(std::string_view utf8);

/// UTF-8 to UTF-16; what is no UTF-8 becomes U+FFFD.
std::u16string toUtf16(std::string_view utf8);

}  // namespace jet::file
