// Like: a text against a pattern with wildcards.
#include "runtime/like.h"

#include "runtime/error.h"
#include "runtime/letters.h"

namespace runtime {

namespace {

constexpr std::size_t NoLength = std::string_view::npos;

/// The small letter of an ASCII character, -1 for another.
int asciiLetter(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte >= 0x80 ? -1 : byte >= 'A' && byte <= 'Z' ? byte | 0x20 : byte;
}

/// The first character as a piece of the text.
std::string_view frontOf(std::string_view text) {
  if (asciiLetter(text.front()) >= 0) return text.substr(0, 1);
  std::string_view rest = text;
  takeCharacter(rest);
  return text.substr(0, text.size() - rest.size());
}

std::string_view takeFront(std::string_view& text) {
  const std::string_view front = frontOf(text);
  text.remove_prefix(front.size());
  return front;
}

bool areEqual(std::string_view a, std::string_view b, TextOrder order) {
  const int left = asciiLetter(a.front()), right = asciiLetter(b.front());
  if (left >= 0 && right >= 0) return left == right;
  return a == b || order(a, b) == 0;
}

/// The list between two brackets, without them.
bool isInList(std::string_view character, std::string_view list, TextOrder order) {
  const bool negated = list.size() > 1 && list.front() == '!';
  if (negated) list.remove_prefix(1);
  bool found = false;
  while (!list.empty() && !found) {
    const std::string_view low = takeFront(list);
    if (list.size() > 1 && list.front() == '-') {
      list.remove_prefix(1);
      const std::string_view high = takeFront(list);
      found = order(low, character) <= 0 && order(character, high) <= 0;
    } else {
      found = areEqual(low, character, order);
    }
  }
  return found != negated;
}

/// Bytes of the pattern's first element if `character` fits it, otherwise 0. Not for *.
std::size_t matchOne(std::string_view pattern, std::string_view character, TextOrder order) {
  switch (pattern.front()) {
    case '?':
      return 1;
    case '#':
      return character.front() >= '0' && character.front() <= '9' ? 1 : 0;
    case '[': {
      const std::size_t close = pattern.find(']', 1);
      if (close == NoLength) throw Error(93, "Like", "Criterio di Like non valido");
      return isInList(character, pattern.substr(1, close - 1), order) ? close + 1 : 0;
    }
    default: {
      const std::string_view wanted = frontOf(pattern);
      return areEqual(wanted, character, order) ? wanted.size() : 0;
    }
  }
}

}  // namespace

bool isLike(std::string_view text, std::string_view pattern, TextOrder order) {
  std::size_t at = 0, place = 0;
  // Where the last * was and how far it reached: on a mismatch it takes one character more.
  std::size_t star = NoLength, reached = 0;
  while (true) {
    const std::string_view wanted = pattern.substr(place);
    if (wanted.starts_with("[]")) {
      place += 2;
      continue;
    }
    if (wanted.starts_with('*')) {
      star = ++place;
      reached = at;
      continue;
    }
    if (at == text.size() && wanted.empty()) return true;
    const std::string_view character = at < text.size() ? frontOf(text.substr(at)) : std::string_view();
    const std::size_t length = wanted.empty() || character.empty() ? 0 : matchOne(wanted, character, order);
    if (length > 0) {
      at += character.size();
      place += length;
    } else if (star != NoLength && reached < text.size()) {
      reached += frontOf(text.substr(reached)).size();
      at = reached;
      place = star;
    } else {
      return false;
    }
  }
}

}  // namespace runtime
