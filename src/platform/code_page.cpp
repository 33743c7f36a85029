// Code page 1252 to UTF-8 and back, by the table of its upper half.
#include "platform/code_page.h"

#include <cstdint>

namespace platform {

namespace {

constexpr unsigned firstSpecial = 0x80, lastSpecial = 0x9F;

/// Characters of the bytes 0x80 to 0x9F; all others stand for their own number.
constexpr char16_t special[] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

void append(std::string& utf8, char16_t character) {
  if (character < 0x80) {
    utf8 += static_cast<char>(character);
    return;
  }
  if (character < 0x800) {
    utf8 += static_cast<char>(0xC0 | (character >> 6));
  } else {
    utf8 += static_cast<char>(0xE0 | (character >> 12));
    utf8 += static_cast<char>(0x80 | ((character >> 6) & 0x3F));
  }
  utf8 += static_cast<char>(0x80 | (character & 0x3F));
}

/// Takes the first character off `utf8`; a byte that begins none comes out as U+FFFD.
std::uint32_t takeCharacter(std::string_view& utf8) {
  constexpr std::uint32_t none = 0xFFFD;
  const auto first = static_cast<unsigned char>(utf8[0]);
  const std::size_t length = first < 0x80   ? 1
                             : first < 0xC2 ? 0
                             : first < 0xE0 ? 2
                             : first < 0xF0 ? 3
                             : first < 0xF5 ? 4
                                            : 0;
  std::uint32_t character = length == 1 ? first : first & (0x7Fu >> length);
  bool good = length != 0 && length <= utf8.size();
  for (std::size_t i = 1; good && i < length; ++i) {
    good = (static_cast<unsigned char>(utf8[i]) & 0xC0) == 0x80;
    character = (character << 6) | (static_cast<unsigned char>(utf8[i]) & 0x3F);
  }
  utf8.remove_prefix(good ? length : 1);
  return good ? character : none;
}

char byteOf(std::uint32_t character) {
  if (character < firstSpecial || (character > lastSpecial && character <= 0xFF))
    return static_cast<char>(character);
  for (unsigned byte = firstSpecial; byte <= lastSpecial; ++byte)
    if (special[byte - firstSpecial] == character) return static_cast<char>(byte);
  return '?';
}

}  // namespace

char16_t codePage1252Character(unsigned char byte) {
  return byte >= firstSpecial && byte <= lastSpecial ? special[byte - firstSpecial] : byte;
}

std::string fromCodePage1252(std::string_view bytes) {
  std::string utf8;
  utf8.reserve(bytes.size());
  for (const char byte : bytes) append(utf8, codePage1252Character(static_cast<unsigned char>(byte)));
  return utf8;
}

std::string toCodePage1252(std::string_view utf8) {
  std::string bytes;
  bytes.reserve(utf8.size());
  while (!utf8.empty()) bytes += byteOf(takeCharacter(utf8));
  return bytes;
}

}  // namespace platform
