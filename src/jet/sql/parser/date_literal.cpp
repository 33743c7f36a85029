// What stands between # and #.
#include <algorithm>
#include <array>
#include <cctype>
#include <chrono>
#include <cstdio>
#include <optional>

#include "jet/sql/parser/token.h"
#include "runtime/date.h"

namespace jet::sql {

namespace {

/// Reads numbers and the signs between them.
class Pieces {
 public:
  explicit Pieces(std::string_view text) : rest_(text) { skipBlanks(); }

  bool empty() const { return rest_.empty(); }

  /// One to four digits.
  std::optional<int> number() {
    int value = 0;
    std::size_t digits = 0;
    while (digits < rest_.size() && rest_[digits] >= '0' && rest_[digits] <= '9') {
      if (digits == 4) return std::nullopt;
      value = value * 10 + (rest_[digits++] - '0');
    }
    if (digits == 0) return std::nullopt;
    rest_.remove_prefix(digits);
    return value;
  }

  bool accept(char sign) {
    if (rest_.empty() || rest_.front() != sign) return false;
    rest_.remove_prefix(1);
    return true;
  }

  bool acceptWord(std::string_view upperWord) {
    skipBlanks();
    if (!sameWord(rest_.substr(0, upperWord.size()), upperWord)) return false;
    rest_.remove_prefix(upperWord.size());
    skipBlanks();
    return true;
  }

  void skipBlanks() {
    while (!rest_.empty() && rest_.front() == ' ') rest_.remove_prefix(1);
  }

 private:
  std::string_view rest_;
};

struct Moment {
  int year = 1899, month = 12, day = 30;
  int hour = 0, minute = 0, second = 0;
};

bool isDay(const Moment& moment) {
  using namespace std::chrono;
  if (moment.month > 12 || moment.day > 31) return false;  // a calendar's parts keep eight bits of them
  const year_month_day date{year(moment.year), month(static_cast<unsigned>(moment.month)),
                            day(static_cast<unsigned>(moment.day))};
  return moment.year >= 100 && moment.year <= 9999 && date.ok();
}

bool setDate(Moment& moment, std::array<int, 3> parts) {
  if (parts[0] > 99) parts = {parts[1], parts[2], parts[0]};  // year first
  if (parts[0] > 12) std::swap(parts[0], parts[1]);           // day first
  if (parts[2] < 30) parts[2] += 2000;
  if (parts[2] < 100) parts[2] += 1900;
  moment.month = parts[0], moment.day = parts[1], moment.year = parts[2];
  return isDay(moment);
}

bool readTime(Pieces& pieces, Moment& moment) {
  const auto minute = pieces.number();
  if (!minute || *minute > 59) return false;
  moment.minute = *minute;
  if (pieces.accept(':')) {
    const auto second = pieces.number();
    if (!second || *second > 59) return false;
    moment.second = *second;
  }
  const bool am = pieces.acceptWord("AM"), pm = !am && pieces.acceptWord("PM");
  if ((am || pm) && (moment.hour < 1 || moment.hour > 12)) return false;
  if (am || pm) moment.hour = moment.hour % 12 + (pm ? 12 : 0);
  return moment.hour <= 23;
}

/// The rest of a date whose first number stood before `separator`.
bool readDate(Pieces& pieces, int first, char separator, Moment& moment) {
  const auto second = pieces.number();
  if (!second || !pieces.accept(separator)) return false;
  const auto third = pieces.number();
  return third && setDate(moment, {first, *second, *third});
}

std::optional<Moment> readMoment(Pieces pieces) {
  Moment moment;
  auto first = pieces.number();
  if (!first) return std::nullopt;
  for (char separator : {'/', '-'}) {
    if (!pieces.accept(separator)) continue;
    if (!readDate(pieces, *first, separator, moment)) return std::nullopt;
    pieces.skipBlanks();
    if (pieces.empty()) return moment;
    first = pieces.number();
    break;
  }
  if (!first || !pieces.accept(':')) return std::nullopt;
  moment.hour = *first;
  if (!readTime(pieces, moment)) return std::nullopt;
  pieces.skipBlanks();
  return pieces.empty() ? std::optional(moment) : std::nullopt;
}

/// A month's name leaves no doubt about the order: it is read as CDate reads it.
std::optional<Moment> readNamed(std::string_view inside) {
  const auto letters = std::ranges::count_if(inside, [](unsigned char c) { return std::isalpha(c) != 0; });
  const auto date = letters < 3 ? std::nullopt : runtime::dateFromText(inside);
  if (!date) return std::nullopt;
  const runtime::DateParts parts = runtime::partsOf(*date);
  return Moment{parts.year, parts.month, parts.day, parts.hour, parts.minute, parts.second};
}

}  // namespace

std::string canonicalDate(std::string_view inside) {
  auto moment = readMoment(Pieces(inside));
  if (!moment) moment = readNamed(inside);
  if (!moment) return "";
  char text[80];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", moment->year, moment->month, moment->day,
                moment->hour, moment->minute, moment->second);
  return text;
}

double dateValue(const std::string& canonical) {
  Moment moment;
  std::sscanf(canonical.c_str(), "%d-%d-%d %d:%d:%d", &moment.year, &moment.month, &moment.day, &moment.hour,
              &moment.minute, &moment.second);
  return runtime::dateFromParts(moment.year, moment.month, moment.day, moment.hour, moment.minute,
                                moment.second)
      .days;
}

}  // namespace jet::sql
