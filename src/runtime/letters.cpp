// UTF-8 read and written, and the case of letters.
#include "runtime/letters.h"

namespace runtime {

namespace {

bool within(char32_t c, char32_t first, char32_t last) {
  return c >= first && c <= last;
}

/// Ranges of letters of which the smaller one follows its capital at once, from an even or an odd place on.
bool alternates(char32_t c, bool& capitalIsOdd) {
  capitalIsOdd = within(c, 0x139, 0x148) || within(c, 0x179, 0x17E);
  return within(c, 0x100, 0x137) || within(c, 0x14A, 0x177) || within(c, 0x460, 0x481) ||
         within(c, 0x48A, 0x4BF) || within(c, 0x4D0, 0x52F) || capitalIsOdd;
}

}  // namespace

char32_t takeValidCharacter(std::string_view& utf8) {
  static constexpr char32_t Least[] = {0, 0, 0x80, 0x800, 0x10000};  // what takes so many bytes
  const auto lead = static_cast<unsigned char>(utf8.front());
  const std::size_t length = lead < 0x80   ? 1
                             : lead < 0xC2 ? 0
                             : lead < 0xE0 ? 2
                             : lead < 0xF0 ? 3
                             : lead < 0xF5 ? 4
                                           : 0;
  char32_t character = length == 1 ? lead : lead & (0x7Fu >> length);
  bool valid = length != 0 && length <= utf8.size();
  for (std::size_t i = 1; valid && i < length; ++i) {
    valid = continuesCharacter(utf8[i]);
    character = character << 6 | (static_cast<unsigned char>(utf8[i]) & 0x3Fu);
  }
  valid = valid && character >= Least[length] && character <= 0x10FFFF;
  utf8.remove_prefix(valid ? length : 1);
  return valid ? character : Replacement;
}

void appendUtf8(char32_t c, std::string& out) {
  const auto follow = [](char32_t bits) { return static_cast<char>(0x80 | (bits & 0x3F)); };
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | (c >> 6));
    out += follow(c);
  } else if (c < 0x10000) {
    out += static_cast<char>(0xE0 | (c >> 12));
    out += follow(c >> 6);
    out += follow(c);
  } else {
    out += static_cast<char>(0xF0 | (c >> 18));
    out += follow(c >> 12);
    out += follow(c >> 6);
    out += follow(c);
  }
}

std::size_t utf8Prefix(std::string_view text) {
  std::string_view rest = text;
  while (!rest.empty()) {
    const std::size_t before = rest.size();
    const char32_t character = takeValidCharacter(rest);
    const bool writtenOut = before - rest.size() > 1;  // the mark itself is a valid character
    if (character == Replacement && !writtenOut) return text.size() - before;
  }
  return text.size();
}

std::u32string characters(std::string_view utf8) {
  std::u32string result;
  result.reserve(utf8.size());
  while (!utf8.empty()) result += takeCharacter(utf8);
  return result;
}

std::string toUtf8(std::u32string_view text) {
  std::string result;
  for (const char32_t character : text) appendUtf8(character, result);
  return result;
}

char32_t lowerCase(char32_t c) {
  bool capitalIsOdd = false;
  if (within(c, U'A', U'Z')) return c + 0x20;
  if (c < 0x80) return c;
  if (within(c, 0xC0, 0xDE) && c != 0xD7) return c + 0x20;
  if (c < 0x100) return c;
  if (c == 0x178) return 0xFF;
  if (alternates(c, capitalIsOdd)) return (c & 1) == capitalIsOdd ? c + 1 : c;
  if (within(c, 0x391, 0x3A9) || within(c, 0x410, 0x42F)) return c + 0x20;
  return within(c, 0x400, 0x40F) ? c + 0x50 : c;
}

char32_t upperCase(char32_t c) {
  bool capitalIsOdd = false;
  if (within(c, U'a', U'z')) return c - 0x20;
  if (c < 0x80) return c;
  if (within(c, 0xE0, 0xFE) && c != 0xF7) return c - 0x20;
  if (c == 0xFF) return 0x178;
  if (c < 0x100) return c;
  if (alternates(c, capitalIsOdd)) return (c & 1) == capitalIsOdd ? c : c - 1;
  if ((within(c, 0x3B1, 0x3C9) && c != 0x3C2) || within(c, 0x430, 0x44F)) return c - 0x20;
  return within(c, 0x450, 0x45F) ? c - 0x50 : c;
}

}  // namespace runtime
