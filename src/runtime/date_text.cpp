// Texts as dates: what is written, in which order, is found by trying the forms one after the other.
#include <array>
#include <charconv>
#include <ctime>
#include <span>
#include <vector>

#include "runtime/date.h"
#include "runtime/error.h"

namespace runtime {

namespace {

/// Number, word or separator of a text that may be a date.
struct Piece {
  enum class Kind { Number, Word, Colon, Comma, Separator, Point } kind;
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
      if (c == ',')
        pieces.push_back({Piece::Kind::Comma});
      else if (c == ':')
        pieces.push_back({Piece::Kind::Colon});
      else if (c == '/' || c == '-')
        pieces.push_back({Piece::Kind::Separator});
      else if (c == '.')
        pieces.push_back({Piece::Kind::Point});
      else if (c != ' ')
        return std::nullopt;
    }
  }
  return pieces;
}

constexpr std::string_view EnglishMonths[] = {"january",   "february", "march",    "april",
                                              "may",       "june",     "july",     "august",
                                              "september", "october",  "november", "december"};

int monthOfWord(std::string_view word) {
  for (int month = 1; month <= 12; ++month)
    for (const std::string_view name : {monthName(month), EnglishMonths[month - 1]})
      if (word == name || word == name.substr(0, 3)) return month;
  return 0;
}

int systemYear() {
  const std::time_t now = std::time(nullptr);
  return std::localtime(&now)->tm_year + 1900;
}

YearSource thisYear = systemYear;

struct Time {
  int hour = 0, minute = 0, second = 0;
};

bool isHalfOfDay(const std::vector<Piece>& pieces, std::size_t at) {
  return at < pieces.size() && (pieces[at].word == "am" || pieces[at].word == "pm");
}

/// Takes "h[:mm[:ss]] [am|pm]" out of the pieces; nothing taken where there is neither a colon nor am or pm.
/// False if it is no time.
bool takeTime(std::vector<Piece>& pieces, Time& time) {
  std::size_t first = 0;
  while (first < pieces.size() &&
         !(pieces[first].kind == Piece::Kind::Number &&
           (isHalfOfDay(pieces, first + 1) ||
            (first + 1 < pieces.size() && pieces[first + 1].kind == Piece::Kind::Colon))))
    ++first;
  if (first == pieces.size()) return true;
  std::array<int, 3> fields{};
  std::size_t count = 0, at = first;
  for (;;) {
    if (count == 3 || at >= pieces.size() || pieces[at].kind != Piece::Kind::Number || pieces[at].digits > 2)
      return false;
    fields[count++] = pieces[at++].value;
    if (at >= pieces.size() || pieces[at].kind != Piece::Kind::Colon) break;
    ++at;
  }
  if (isHalfOfDay(pieces, at)) {
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

/// Where the fields of a date stand; a year or day that is not written is this year, or the first.
struct Order {
  int year, month, day;
};
constexpr int NotWritten = -1;
/// The orders that the locale tries, by whether the month has its name, which then stands last, and by the
/// number of fields.
constexpr Order DayMonthYear[] = {{2, 1, 0}, {2, 0, 1}, {0, 1, 2}};
constexpr Order DayMonth[] = {{NotWritten, 1, 0}, {NotWritten, 0, 1}, {1, 0, NotWritten}, {0, 1, NotWritten}};
constexpr Order NamedDayYear[] = {{1, 2, 0}, {0, 2, 1}};
constexpr Order NamedDay[] = {{NotWritten, 1, 0}, {0, 1, NotWritten}};

std::span<const Order> ordersOf(std::size_t fields, bool named) {
  if (fields == 3) return named ? std::span<const Order>(NamedDayYear) : DayMonthYear;
  if (fields == 2) return named ? std::span<const Order>(NamedDay) : DayMonth;
  return {};
}

std::optional<Date> combine(std::vector<Piece> fields, int namedMonth, const Time& time) {
  if (namedMonth != 0) fields.push_back({Piece::Kind::Number, namedMonth, 2});
  for (const Order& order : ordersOf(fields.size(), namedMonth != 0)) {
    const auto field = [&](int place) { return fields[static_cast<std::size_t>(place)]; };
    const int year = order.year == NotWritten ? thisYear() : fullYear(field(order.year));
    const Piece month = field(order.month);
    const Piece day = order.day == NotWritten ? Piece{Piece::Kind::Number, 1, 1} : field(order.day);
    if (month.digits > 2 || day.digits > 2) continue;
    try {
      return dateFromParts(year, month.value, day.value, time.hour, time.minute, time.second);
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
  bool comma = false, point = false;
  Piece::Kind before = Piece::Kind::Separator;
  for (const Piece& piece : *pieces) {
    if (piece.kind == Piece::Kind::Number) {
      numbers.push_back(piece);
    } else if (piece.kind == Piece::Kind::Word) {
      if (namedMonth != 0 || (namedMonth = monthOfWord(piece.word)) == 0) return std::nullopt;
    } else if (before != Piece::Kind::Number && before != Piece::Kind::Word) {
      return std::nullopt;  // at the beginning, or twice
    }
    comma |= piece.kind == Piece::Kind::Comma;
    point |= piece.kind == Piece::Kind::Point;
    before = piece.kind;
  }
  if (before != Piece::Kind::Number && before != Piece::Kind::Word) return std::nullopt;
  // "1,5" and "1.5" are numbers.
  if (namedMonth == 0 && (comma || (point && numbers.size() < 3))) return std::nullopt;
  return combine(std::move(numbers), namedMonth, time);
}

void setYearSource(YearSource source) {
  thisYear = source ? source : systemYear;
}

}  // namespace runtime
