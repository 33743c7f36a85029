#include "runtime/format.h"

#include <algorithm>
#include <vector>

#include "runtime/date.h"
#include "runtime/error.h"

namespace runtime {

namespace {

/// A piece of a pattern: a code ("yyyy", in lower case) or text that stands as it is.
struct Piece {
  bool code;
  std::string text;
};

char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c;
}

bool startsWith(std::string_view text, std::string_view lowerCase) {
  if (text.size() < lowerCase.size()) return false;
  for (std::size_t i = 0; i < lowerCase.size(); ++i)
    if (lower(text[i]) != lowerCase[i]) return false;
  return true;
}

/// Length of the literal at the front of `rest` in the pattern, with its marks; `text` gets what it stands
/// for.
std::size_t literal(std::string_view rest, std::string& text) {
  if (rest[0] == '\\' && rest.size() > 1) {
    text = rest[1];
    return 2;
  }
  if (rest[0] == '"') {
    const std::size_t close = std::min(rest.find('"', 1), rest.size());
    text = rest.substr(1, close - 1);
    return std::min(close + 1, rest.size());
  }
  text = rest[0];
  return 1;
}

std::vector<Piece> split(std::string_view pattern) {
  constexpr std::string_view repeated = "dmyhnsqwct";
  constexpr std::string_view ofNumbersAndTexts = "0#@&<>!;";
  std::vector<Piece> pieces;
  for (std::size_t at = 0; at < pattern.size();) {
    const std::string_view rest = pattern.substr(at);
    const char c = lower(rest[0]);
    Piece piece{true, {}};
    std::size_t length = 0;
    if (startsWith(rest, "am/pm")) {
      length = 5;
      piece.text = rest.substr(0, length);
    } else if (startsWith(rest, "a/p")) {
      length = 3;
      piece.text = rest.substr(0, length);
    } else if (repeated.find(c) != std::string_view::npos) {
      while (length < rest.size() && lower(rest[length]) == c) ++length;
      piece.text = std::string(length, c);
    } else {
      if (ofNumbersAndTexts.find(c) != std::string_view::npos) throw languageError(InvalidCall);
      piece.code = false;
      length = literal(rest, piece.text);
    }
    at += length;
    pieces.push_back(std::move(piece));
  }
  return pieces;
}

std::string twoDigits(int value) {
  return (value < 10 ? "0" : "") + std::to_string(value);
}

struct Code {
  std::string_view text;
  std::string (*write)(const DateParts&);
};

constexpr Code codes[] = {
    {"d", [](const DateParts& p) { return std::to_string(p.day); }},
    {"dd", [](const DateParts& p) { return twoDigits(p.day); }},
    {"ddd", [](const DateParts& p) { return std::string(shortWeekdayName(p.weekday)); }},
    {"dddd", [](const DateParts& p) { return std::string(weekdayName(p.weekday)); }},
    {"m", [](const DateParts& p) { return std::to_string(p.month); }},
    {"mm", [](const DateParts& p) { return twoDigits(p.month); }},
    {"mmm", [](const DateParts& p) { return std::string(shortMonthName(p.month)); }},
    {"mmmm", [](const DateParts& p) { return std::string(monthName(p.month)); }},
    {"yy", [](const DateParts& p) { return twoDigits(p.year % 100); }},
    {"yyyy", [](const DateParts& p) { return (p.year < 1000 ? "0" : "") + std::to_string(p.year); }},
    {"h", [](const DateParts& p) { return std::to_string(p.hour); }},
    {"hh", [](const DateParts& p) { return twoDigits(p.hour); }},
    {"n", [](const DateParts& p) { return std::to_string(p.minute); }},
    {"nn", [](const DateParts& p) { return twoDigits(p.minute); }},
    {"s", [](const DateParts& p) { return std::to_string(p.second); }},
    {"ss", [](const DateParts& p) { return twoDigits(p.second); }},
};

bool isHalfOfDay(const Piece& piece) {
  return piece.code && lower(piece.text[0]) == 'a';
}

/// "AM/PM", "am/pm", "A/P", "a/p": the half of the day, in the case in which the pattern has it.
std::string halfOfDay(const std::string& code, bool afternoon) {
  const std::size_t slash = code.find('/');
  return afternoon ? code.substr(slash + 1) : code.substr(0, slash);
}

std::string write(const std::string& code, const DateParts& parts) {
  for (const Code& known : codes)
    if (known.text == code) return known.write(parts);
  throw languageError(InvalidCall);
}

}  // namespace

std::string format(const Variant& value, std::string_view pattern) {
  if (value.isNull() || value.isEmpty()) return "";
  if (pattern.empty()) return value.toText();
  Date date;
  if (value.isText()) {
    const std::optional<Date> read = dateFromText(std::get<std::string>(value.value()));
    if (!read) return value.toText();
    date = *read;
  } else {
    date = value.toDate();
  }

  std::vector<Piece> pieces = split(pattern);
  DateParts parts = partsOf(date);
  const bool afternoon = parts.hour >= 12;
  for (const Piece& piece : pieces)
    if (isHalfOfDay(piece)) parts.hour = (parts.hour + 11) % 12 + 1;

  std::string result;
  char previous = 0;
  for (Piece& piece : pieces) {
    if (!piece.code) {
      result += piece.text;
      continue;
    }
    if (isHalfOfDay(piece)) {
      result += halfOfDay(piece.text, afternoon);
      continue;
    }
    if (previous == 'h' && (piece.text == "m" || piece.text == "mm"))
      piece.text.replace(0, piece.text.size(), piece.text.size(), 'n');
    previous = piece.text[0];
    result += write(piece.text, parts);
  }
  return result;
}

}  // namespace runtime
