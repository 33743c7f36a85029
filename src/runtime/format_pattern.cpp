// What all kinds of formats have in common: sections and literals.
#include "runtime/format_pattern.h"

#include <algorithm>

#include "runtime/text.h"

namespace runtime::pattern {

bool startsWith(std::string_view text, std::string_view lowerCase) {
  if (text.size() < lowerCase.size()) return false;
  for (std::size_t i = 0; i < lowerCase.size(); ++i)
    if (asciiLower(text[i]) != lowerCase[i]) return false;
  return true;
}

std::size_t markedLength(std::string_view rest) {
  if (rest[0] == '\\' && rest.size() > 1) return 2;
  if (rest[0] != '"') return 0;
  const std::size_t close = rest.find('"', 1);
  return close == std::string_view::npos ? rest.size() : close + 1;
}

std::size_t takeLiteral(std::string_view rest, std::string& out) {
  const std::size_t marked = markedLength(rest);
  if (marked == 0) {
    out += rest[0];
    return 1;
  }
  const bool closed = rest[0] == '"' && marked > 1 && rest[marked - 1] == '"';
  out += rest.substr(1, marked - 1 - (closed ? 1 : 0));
  return marked;
}

Kind kindOf(std::string_view pattern) {
  constexpr std::string_view dates = "cdwmqyhns", numbers = "0#.%", texts = "@&<>!";
  while (!pattern.empty()) {
    const char c = asciiLower(pattern[0]);
    if (dates.find(c) != std::string_view::npos || startsWith(pattern, "ttttt") ||
        startsWith(pattern, "am/pm") || startsWith(pattern, "a/p"))
      return Kind::Date;
    if (numbers.find(c) != std::string_view::npos) return Kind::Number;
    if (texts.find(c) != std::string_view::npos) return Kind::Text;
    pattern.remove_prefix(std::max<std::size_t>(1, markedLength(pattern)));
  }
  return Kind::Literal;
}

Sections sectionsOf(std::string_view pattern) {
  Sections sections;
  std::size_t begin = 0, at = 0;
  while (sections.count < std::size(sections.text)) {
    while (at < pattern.size() && pattern[at] != ';')
      at += std::max<std::size_t>(1, markedLength(pattern.substr(at)));
    sections.text[sections.count++] = pattern.substr(begin, at - begin);
    if (at >= pattern.size()) break;
    begin = ++at;
  }
  return sections;
}

}  // namespace runtime::pattern
