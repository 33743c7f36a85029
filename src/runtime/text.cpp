// The language's functions of texts, over UTF-8.
#include "runtime/text.h"

#include <algorithm>

#include "runtime/error.h"
#include "runtime/letters.h"

namespace runtime {

namespace {

constexpr std::int64_t LongestText = 1 << 24;

/// Byte at which character `index`, from 0, begins; the text's end behind the last one.
std::size_t offsetOf(std::string_view text, std::size_t index) {
  if (index >= text.size()) return text.size();
  std::size_t at = 0;
  for (; at < text.size(); ++at) {
    if (!continuesCharacter(text[at]) && index-- == 0) break;
  }
  return at;
}

/// `value` as a count. Error 5 below `least`.
std::size_t count(std::int64_t value, std::int64_t least) {
  if (value < least) throw languageError(InvalidCall);
  return static_cast<std::size_t>(value);
}

bool isAscii(char c) {
  return static_cast<unsigned char>(c) < 0x80;
}

/// False where texts that begin with these bytes can't begin with the same letter, which is nearly
/// everywhere.
bool mayBegin(char text, char part, Compare compare) {
  if (isAscii(text) != isAscii(part)) return false;
  if (compare == Compare::Exact) return text == part;
  return !isAscii(text) || asciiLower(text) == asciiLower(part);
}

/// Bytes of `text` that `part` covers at its front, nothing where it does not begin with it.
std::size_t frontLength(std::string_view text, std::string_view part, Compare compare) {
  constexpr std::size_t none = std::string_view::npos;
  if (compare == Compare::Exact) return text.starts_with(part) ? part.size() : none;
  std::string_view rest = text;
  while (!part.empty()) {
    if (rest.empty()) return none;
    const char32_t a = takeCharacter(rest), b = takeCharacter(part);
    if (a != b && lowerCase(a) != lowerCase(b)) return none;
  }
  return text.size() - rest.size();
}

struct Match {
  std::size_t at, size;  // bytes
};

/// The first `part` from byte `from` on; at the text's end with size 0 where there is none.
Match find(std::string_view text, std::string_view part, std::size_t from, Compare compare) {
  for (std::size_t at = from; at < text.size(); ++at) {
    if (continuesCharacter(text[at]) || (!part.empty() && !mayBegin(text[at], part[0], compare))) continue;
    const std::size_t size = frontLength(text.substr(at), part, compare);
    if (size != std::string_view::npos) return {at, size};
  }
  return {text.size(), 0};
}

template <char32_t (*change)(char32_t)>
std::string changed(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    if (isAscii(text.front())) {
      result += static_cast<char>(change(static_cast<char32_t>(text.front())));
      text.remove_prefix(1);
    } else {
      appendUtf8(change(takeCharacter(text)), result);
    }
  }
  return result;
}

}  // namespace

Compare compareMode(std::int64_t number) {
  if (number < 0 || number > 2) throw languageError(InvalidCall);
  return number == 0 ? Compare::Exact : Compare::Text;
}

std::size_t length(std::string_view text) {
  return text.size() - static_cast<std::size_t>(std::ranges::count_if(text, continuesCharacter));
}

std::string_view left(std::string_view text, std::int64_t characters) {
  return text.substr(0, offsetOf(text, count(characters, 0)));
}

std::string_view right(std::string_view text, std::int64_t characters) {
  std::size_t wanted = count(characters, 0), at = text.size();
  while (at > 0 && wanted > 0) {
    if (!continuesCharacter(text[--at])) --wanted;
  }
  return text.substr(at);
}

std::string_view mid(std::string_view text, std::int64_t start) {
  return text.substr(offsetOf(text, count(start, 1) - 1));
}

std::string_view mid(std::string_view text, std::int64_t start, std::int64_t characters) {
  return left(mid(text, start), characters);
}

std::string quoted(std::string_view text, char quote) {
  std::string result(1, quote);
  for (const char c : text) {
    if (c == quote) result += quote;
    result += c;
  }
  return result += quote;
}

std::string_view leftTrimmed(std::string_view text) {
  return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

std::string_view rightTrimmed(std::string_view text) {
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string_view trimmed(std::string_view text) {
  return leftTrimmed(rightTrimmed(text));
}

std::string_view trimmed(std::string_view text, std::string_view blanks) {
  text = text.substr(0, text.find_last_not_of(blanks) + 1);
  return text.substr(std::min(text.find_first_not_of(blanks), text.size()));
}

std::string lowerCase(std::string_view text) {
  return changed<lowerCase>(text);
}

std::string upperCase(std::string_view text) {
  return changed<upperCase>(text);
}

std::string properCase(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  bool begins = true;
  while (!text.empty()) {
    const char32_t character = takeCharacter(text);
    appendUtf8(begins ? upperCase(character) : lowerCase(character), result);
    begins = character == 0 || character == ' ' || (character >= '\t' && character <= '\r');
  }
  return result;
}

std::string strConv(std::string_view text, std::int64_t conversion) {
  switch (conversion) {
    case 1:
      return upperCase(text);
    case 2:
      return lowerCase(text);
    case 3:
      return properCase(text);
    default:
      throw languageError(InvalidCall);
  }
}

int strComp(std::string_view a, std::string_view b, Compare compare) {
  while (!a.empty() && !b.empty()) {
    char32_t left = takeCharacter(a), right = takeCharacter(b);
    if (compare == Compare::Text) left = lowerCase(left), right = lowerCase(right);
    if (left != right) return left < right ? -1 : 1;
  }
  return a.empty() ? (b.empty() ? 0 : -1) : 1;
}

std::int64_t inStr(std::int64_t start, std::string_view text, std::string_view part, Compare compare) {
  const std::size_t from = offsetOf(text, count(start, 1) - 1);
  const Match match = find(text, part, from, compare);
  if (match.at == text.size()) return 0;
  return static_cast<std::int64_t>(length(text.substr(0, match.at))) + 1;
}

std::int64_t inStrRev(std::string_view text, std::string_view part, std::int64_t start, Compare compare) {
  if (start != -1) {
    if (count(start, 1) > length(text)) return 0;
    text = left(text, start);
  }
  for (std::size_t at = text.size(); at-- > 0;) {
    if (continuesCharacter(text[at]) || frontLength(text.substr(at), part, compare) == std::string_view::npos)
      continue;
    // An empty part stands behind the last character that counts.
    return static_cast<std::int64_t>(length(text.substr(0, at))) + 1;
  }
  return 0;
}

std::string replace(std::string_view text, std::string_view part, std::string_view replacement,
                    std::int64_t start, std::int64_t most, Compare compare) {
  if (most < -1) throw languageError(InvalidCall);
  text = mid(text, start);
  if (part.empty()) return std::string(text);
  std::string result;
  std::size_t from = 0;
  for (; most != 0; --most) {
    const Match match = find(text, part, from, compare);
    if (match.at == text.size()) break;
    result += text.substr(from, match.at - from);
    result += replacement;
    from = match.at + match.size;
  }
  return result += text.substr(from);
}

std::string strReverse(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t end = text.size(); end > 0;) {
    std::size_t at = end - 1;
    while (at > 0 && continuesCharacter(text[at])) --at;
    result += text.substr(at, end - at);
    end = at;
  }
  return result;
}

std::string repeated(std::int64_t times, std::string_view text) {
  if (text.empty() || times < 0 || times > LongestText) throw languageError(InvalidCall);
  const std::string_view character = left(text, 1);
  if (character.size() == 1) return std::string(static_cast<std::size_t>(times), character.front());
  std::string result;
  for (; times > 0; --times) result += character;
  return result;
}

std::string space(std::int64_t times) {
  return repeated(times, " ");
}

std::int32_t ascW(std::string_view text) {
  if (text.empty()) throw languageError(InvalidCall);
  constexpr char32_t lastOfPlane = 0xFFFF;
  const char32_t character = takeCharacter(text);
  // A character beyond the first plane shows the first of its two code units.
  const char32_t unit = character > lastOfPlane ? 0xD800 + ((character - 0x10000) >> 10) : character;
  return static_cast<std::int16_t>(unit);
}

std::string chrW(std::int64_t code) {
  if (code < INT16_MIN || code > UINT16_MAX) throw languageError(InvalidCall);
  std::string result;
  appendUtf8(static_cast<std::uint16_t>(code), result);
  return result;
}

std::string partition(std::int64_t number, std::int64_t start, std::int64_t stop, std::int64_t interval) {
  if (start < 0 || stop <= start || interval < 1) throw languageError(InvalidCall);
  const std::size_t width = std::max(std::to_string(start - 1).size(), std::to_string(stop + 1).size());
  const auto padded = [&](const std::string& end) { return std::string(width - end.size(), ' ') + end; };
  if (number < start) return padded("") + ":" + padded(std::to_string(start - 1));
  if (number > stop) return padded(std::to_string(stop + 1)) + ":" + padded("");
  const std::int64_t low = start + (number - start) / interval * interval;
  const std::int64_t high = std::min(low + interval - 1, stop);
  return padded(std::to_string(low)) + ":" + padded(std::to_string(high));
}

}  // namespace runtime
