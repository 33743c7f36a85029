#include <array>
#include <charconv>
#include <span>
#include <vector>

#include "runtime/date.h"
#include "runtime/error.h"

namespace runtime {

namespace {

/// Number, word or separator of a text that may be a date.
struct Piece {
  enum class Kind { Number, Word, Colon, Separator } kind;
  int value = 0;       // Number
  int digits = 0;      // Number
  std::string word{};  // Word, in lower case
};

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}
bool isLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

std::optional<std::vector<Piece>> split(std::string_view text) {
  std::vector<Piece> pieces;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t start = at;
    const char c = text[at];
    if (isDigit(c)) {
      while (at < text.size() && isDigit(text[at])) ++at;
      if (at - start > 4) return std::nullopt;
      Piece number{Piece::Kind::Number};
      std::from_chars(text.data() + start, text.data() + at, number.value);
      number.digits = static_cast<int>(at - start);
      pieces.push_back(number);
    } else if (isLetter(c)) {
      Piece word{Piece::Kind::Word};
      for (; at < text.size() && isLetter(text[at]); ++at) word.word += static_cast<char>(text[at] | 0x20);
      pieces.push_back(word);
    } else {
      ++at;
      if (c == ':')
        pieces.push_back({Piece::Kind::Colon});
      else if (c == '/' || c == '-' || c == '.')
        pieces.push_back({Piece::Kind::Separator});
      else if (c != ' ')
        return std::nullopt;
    }
  }
  return pieces;
}

int monthOfWord(const std::string& word) {
  for (int month = 1; month <= 12; ++month)
    if (word == monthName(month) || word == shortMonthName(month)) return month;
  return 0;
}

struct Time {
  int hour = 0, minute = 0, second = 0;
};

/// Takes "h:mm[:ss] [am|pm]" out of the pieces; nothing taken where there is no colon. False if it is no
/// time.
bool takeTime(std::vector<Piece>& pieces, Time& time) {
  std::size_t colon = 0;
  while (colon < pieces.size() && pieces[colon].kind != Piece::Kind::Colon) ++colon;
  if (colon == pieces.size()) return true;
  if (colon == 0) return false;
  std::array<int, 3> fields{};
  std::size_t count = 0, at = colon - 1;
  const std::size_t first = at;
  for (;;) {
    if (count == 3 || at >= pieces.size() || pieces[at].kind != Piece::Kind::Number || pieces[at].digits > 2)
      return false;
    fields[count++] = pieces[at++].value;
    if (at >= pieces.size() || pieces[at].kind != Piece::Kind::Colon) break;
    ++at;
  }
  if (at < pieces.size() && pieces[at].kind == Piece::Kind::Word &&
      (pieces[at].word == "am" || pieces[at].word == "pm")) {
    if (fields[0] < 1 || fields[0] > 12) return false;
    fields[0] = fields[0] % 12 + (pieces[at].word == "pm" ? 12 : 0);
    ++at;
  }
  if (fields[0] > 23 || fields[1] > 59 || fields[2] > 59) return false;
  time = {fields[0], fields[1], fields[2]};
  pieces.erase(pieces.begin() + static_cast<std::ptrdiff_t>(first),
               pieces.begin() + static_cast<std::ptrdiff_t>(at));
  return true;
}

int fullYear(const Piece& piece) {
  if (piece.digits > 2) return piece.value;
  return piece.value + (piece.value < 30 ? 2000 : 1900);
}

/// The three fields in the orders that the locale tries: day month year, month day year, year month day.
std::optional<Date> combine(const std::vector<Piece>& numbers, int namedMonth, const Time& time) {
  struct Order {
    std::size_t year, month, day;
  };
  static constexpr Order numeric[] = {{2, 1, 0}, {2, 0, 1}, {0, 1, 2}};
  static constexpr Order named[] = {{1, 2, 0}, {0, 2, 1}};
  std::vector<Piece> fields = numbers;
  if (namedMonth != 0) fields.push_back({Piece::Kind::Number, namedMonth, 2});
  if (fields.size() != 3) return std::nullopt;
  const std::span<const Order> orders =
      namedMonth != 0 ? std::span<const Order>(named) : std::span<const Order>(numeric);
  for (const Order& order : orders) {
    const Piece &year = fields[order.year], &month = fields[order.month], &day = fields[order.day];
    if (month.digits > 2 || day.digits > 2) continue;
    try {
      return dateFromParts(fullYear(year), month.value, day.value, time.hour, time.minute, time.second);
    } catch (const Error&) {
      continue;  // not a date in this order
    }
  }
  return std::nullopt;
}

}  // namespace

std::optional<Date> dateFromText(std::string_view text) {
  std::optional<std::vector<Piece>> pieces = split(text);
  Time time;
  if (!pieces || pieces->empty() || !takeTime(*pieces, time)) return std::nullopt;
  if (pieces->empty()) return dateFromParts(1899, 12, 30, time.hour, time.minute, time.second);

  std::vector<Piece> numbers;
  int namedMonth = 0;
  Piece::Kind before = Piece::Kind::Separator;
  for (const Piece& piece : *pieces) {
    if (piece.kind == Piece::Kind::Number) {
      numbers.push_back(piece);
    } else if (piece.kind == Piece::Kind::Word) {
      if (namedMonth != 0 || (namedMonth = monthOfWord(piece.word)) == 0) return std::nullopt;
    } else if (before == Piece::Kind::Separator) {
      return std::nullopt;  // at the beginning, or twice
    }
    before = piece.kind;
  }
  if (before == Piece::Kind::Separator) return std::nullopt;
  return combine(numbers, namedMonth, time);
}

}  // namespace runtime
