#pragma once

#include <string>
#include <string_view>

/// Code page 1252, in which the suite keeps its shared text files; UTF-8 is the text in memory.
namespace platform {

/// Every byte has a character: the five that 1252 leaves undefined become U+0081, U+008D, U+008F, U+0090,
/// U+009D.
std::string fromCodePage1252(std::string_view bytes);
/// Characters outside the page become '?'.
std::string toCodePage1252(std::string_view utf8);
/// Unicode value of one byte of the page.
char16_t codePage1252Character(unsigned char byte);

}  // namespace platform
