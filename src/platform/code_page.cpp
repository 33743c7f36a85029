// Code page 1252 to UTF-8 and back, by the table of its upper half.
#include "platform/code_page.h"

#include "runtime/letters.h"

namespace platform {

namespace {

constexpr unsigned FirstSpecial = 0x80, LastSpecial = 0x9F;

/// Characters of the bytes 0x80 to 0x9F; all others stand for their own number.
constexpr char16_t Specials[] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

char byteOf(char32_t character) {
  if (character < FirstSpecial || (character > LastSpecial && character <= 0xFF))
    return static_cast<char>(character);
  for (unsigned byte = FirstSpecial; byte <= LastSpecial; ++byte)
    if (Specials[byte - FirstSpecial] == character) return static_cast<char>(byte);
  return '?';
}

}  // namespace

char16_t codePage1252Character(unsigned char byte) {
  return byte >= FirstSpecial && byte <= LastSpecial ? Specials[byte - FirstSpecial] : byte;
}

std::string fromCodePage1252(std::string_view bytes) {
  std::string utf8;
  utf8.reserve(bytes.size());
  for (const char byte : bytes)
    runtime::appendUtf8(codePage1252Character(static_cast<unsigned char>(byte)), utf8);
  return utf8;
}

std::string toCodePage1252(std::string_view utf8) {
  std::string bytes;
  bytes.reserve(utf8.size());
  while (!utf8.empty()) bytes += byteOf(runtime::takeValidCharacter(utf8));
  return bytes;
}

}  // namespace platform
