// Format's codes of texts.
#include <algorithm>

#include "runtime/format_pattern.h"
#include "runtime/letters.h"

namespace runtime::pattern {

namespace {

bool isCharacterPlace(char c) {
  return c == '@' || c == '&';
}

/// What the codes of a section ask for.
struct TextLayout {
  std::size_t places = 0;
  bool fromLeft = false;
  char32_t (*change)(char32_t) = [](char32_t c) { return c; };
};

TextLayout textLayoutOf(std::string_view section) {
  TextLayout layout;
  while (!section.empty()) {
    layout.places += isCharacterPlace(section[0]);
    layout.fromLeft |= section[0] == '!';
    if (section[0] == '<') layout.change = lowerCase;
    if (section[0] == '>') layout.change = upperCase;
    section.remove_prefix(std::max<std::size_t>(1, markedLength(section)));
  }
  return layout;
}

}  // namespace

std::string formatText(const std::string& text, std::string_view section) {
  const TextLayout layout = textLayoutOf(section);
  std::u32string_view rest;
  const std::u32string all = characters(text);
  rest = all;
  std::string result;
  const auto write = [&](std::size_t count) {
    for (; count > 0; --count, rest.remove_prefix(1)) appendUtf8(layout.change(rest.front()), result);
  };
  // Without places the text stands where the section's literals end.
  std::size_t empty = layout.places > rest.size() && !layout.fromLeft ? layout.places - rest.size() : 0;
  if (rest.size() > layout.places && !layout.fromLeft && layout.places > 0)
    write(rest.size() - layout.places);
  while (!section.empty()) {
    const char c = section[0];
    if (isCharacterPlace(c)) {
      if (empty > 0 || rest.empty()) {
        if (c == '@') result += ' ';
        empty -= empty > 0;
      } else {
        write(1);
      }
      section.remove_prefix(1);
    } else if (c == '<' || c == '>' || c == '!') {
      section.remove_prefix(1);
    } else {
      section.remove_prefix(takeLiteral(section, result));
    }
  }
  write(rest.size());
  return result;
}

}  // namespace runtime::pattern
