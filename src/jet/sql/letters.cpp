#include "jet/sql/letters.h"

#include <algorithm>

#include "jet/file/text.h"
#include "jet/file/text_key.h"
#include "runtime/error.h"

namespace jet::sql {

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

[[noreturn]] void failPattern() {
  throw runtime::Error(93, "Like", "Criterio di Like non valido");
}

int compareCharacters(char32_t a, char32_t b) {
  std::string left, right;
  file::appendUtf8(a, left);
  file::appendUtf8(b, right);
  return file::compareText(left, right);
}

/// The list between two brackets, without them.
bool isInList(char32_t character, std::u32string_view list) {
  const bool negated = list.starts_with(U'!');
  if (negated) list.remove_prefix(1);
  bool found = false;
  for (std::size_t i = 0; i < list.size(); ++i) {
    if (i + 2 < list.size() && list[i + 1] == U'-') {
      found |= compareCharacters(list[i], character) <= 0 && compareCharacters(character, list[i + 2]) <= 0;
      i += 2;
    } else {
      found |= lowerCase(list[i]) == lowerCase(character);
    }
  }
  return found != negated;
}

/// Length of the pattern's first element if `character` fits it, otherwise 0. Not for *.
std::size_t matchOne(std::u32string_view pattern, char32_t character) {
  if (pattern.front() == U'[') {
    const std::size_t close = pattern.find(U']', 1);
    if (close == std::u32string_view::npos) failPattern();
    return isInList(character, pattern.substr(1, close - 1)) ? close + 1 : 0;
  }
  const bool fits = pattern.front() == U'?' || (pattern.front() == U'#' && within(character, U'0', U'9')) ||
                    lowerCase(pattern.front()) == lowerCase(character);
  return fits ? 1 : 0;
}

/// A list without characters stands for none.
void skipEmptyLists(std::u32string_view pattern, std::size_t& at) {
  while (pattern.substr(at).starts_with(U"[]")) at += 2;
}

}  // namespace

std::u32string characters(std::string_view utf8) {
  std::u32string result;
  for (std::size_t i = 0; i < utf8.size();) {
    const auto lead = static_cast<unsigned char>(utf8[i]);
    const std::size_t length = lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    char32_t character = length == 1 ? lead : lead & (0xFFu >> (length + 1));
    for (std::size_t k = 1; k < length && i + k < utf8.size(); ++k) {
      character = character << 6 | (static_cast<unsigned char>(utf8[i + k]) & 0x3Fu);
    }
    result += character;
    i += length;
  }
  return result;
}

std::string toUtf8(std::u32string_view text) {
  std::string result;
  for (const char32_t character : text) file::appendUtf8(character, result);
  return result;
}

char32_t lowerCase(char32_t c) {
  bool capitalIsOdd = false;
  if (within(c, U'A', U'Z') || (within(c, 0xC0, 0xDE) && c != 0xD7)) return c + 0x20;
  if (c == 0x178) return 0xFF;
  if (alternates(c, capitalIsOdd)) return (c & 1) == capitalIsOdd ? c + 1 : c;
  if (within(c, 0x391, 0x3A9) || within(c, 0x410, 0x42F)) return c + 0x20;
  return within(c, 0x400, 0x40F) ? c + 0x50 : c;
}

char32_t upperCase(char32_t c) {
  bool capitalIsOdd = false;
  if (within(c, U'a', U'z') || (within(c, 0xE0, 0xFE) && c != 0xF7)) return c - 0x20;
  if (c == 0xFF) return 0x178;
  if (alternates(c, capitalIsOdd)) return (c & 1) == capitalIsOdd ? c : c - 1;
  if ((within(c, 0x3B1, 0x3C9) && c != 0x3C2) || within(c, 0x430, 0x44F)) return c - 0x20;
  return within(c, 0x450, 0x45F) ? c - 0x50 : c;
}

bool isLike(std::string_view text, std::string_view pattern) {
  const std::u32string subject = characters(text), criterion = characters(pattern);
  std::size_t at = 0, place = 0;
  // Where the last * was and how far it reached: on a mismatch it takes one character more.
  std::size_t star = std::u32string::npos, reached = 0;
  while (true) {
    skipEmptyLists(criterion, place);
    if (place < criterion.size() && criterion[place] == U'*') {
      star = ++place;
      reached = at;
      continue;
    }
    if (at == subject.size() && place == criterion.size()) return true;
    const std::u32string_view rest = std::u32string_view(criterion).substr(place);
    const std::size_t length = at < subject.size() && !rest.empty() ? matchOne(rest, subject[at]) : 0;
    if (length > 0) {
      ++at;
      place += length;
    } else if (star != std::u32string::npos && reached < subject.size()) {
      at = ++reached;
      place = star;
    } else {
      return false;
    }
  }
}

std::size_t find(std::string_view text, std::string_view part, std::size_t start) {
  std::u32string where = characters(text), what = characters(part);
  std::ranges::transform(where, where.begin(), lowerCase);
  std::ranges::transform(what, what.begin(), lowerCase);
  if (start > where.size()) return 0;
  const std::size_t found = where.find(what, start - 1);
  return found == std::u32string::npos ? 0 : found + 1;
}

}  // namespace jet::sql
