#include "runtime/date.h"

#include <chrono>
#include <cmath>

#include "runtime/error.h"

namespace runtime {

namespace {

namespace calendar = std::chrono;

constexpr int secondsOfDay = 24 * 60 * 60;
constexpr double firstDay = -657434;  // 1 January 100
constexpr double lastDay = 2958465;   // 31 December 9999

constexpr calendar::sys_days dayZero{calendar::year{1899} / calendar::December / 30};

constexpr std::string_view months[] = {"gennaio", "febbraio", "marzo",     "aprile",  "maggio",   "giugno",
                                       "luglio",  "agosto",   "settembre", "ottobre", "novembre", "dicembre"};
constexpr std::string_view weekdays[] = {"domenica", "lunedì",  "martedì", "mercoledì",
                                         "giovedì",  "venerdì", "sabato"};

std::string padded(int value, int width) {
  std::string digits = std::to_string(value);
  if (digits.size() < static_cast<std::size_t>(width))
    digits.insert(0, static_cast<std::size_t>(width) - digits.size(), '0');
  return digits;
}

}  // namespace

Date dateFromParts(int year, int month, int day, int hour, int minute, int second) {
  const calendar::year_month_day civil{calendar::year{year}, calendar::month{static_cast<unsigned>(month)},
                                       calendar::day{static_cast<unsigned>(day)}};
  const bool timeIsGood = hour >= 0 && hour < 24 && minute >= 0 && minute < 60 && second >= 0 && second < 60;
  if (year < 100 || year > 9999 || month < 1 || day < 1 || !civil.ok() || !timeIsGood)
    throw languageError(InvalidCall);
  const auto days = static_cast<double>((calendar::sys_days{civil} - dayZero).count());
  const double fraction = static_cast<double>((hour * 60 + minute) * 60 + second) / secondsOfDay;
  return Date{days < 0 ? days - fraction : days + fraction};
}

bool isInCalendar(Date date) {
  return date.days > firstDay - 1 && date.days < lastDay + 1;
}

DateParts partsOf(Date date) {
  if (!isInCalendar(date)) throw languageError(Overflow);
  double whole = 0;
  const double fraction = std::abs(std::modf(date.days, &whole));
  int seconds = static_cast<int>(std::lround(fraction * secondsOfDay));
  int day = static_cast<int>(whole);
  if (seconds == secondsOfDay) {  // nearest second of the next day; there is none after the last
    if (day == static_cast<int>(lastDay)) {
      --seconds;
    } else {
      seconds = 0;
      ++day;
    }
  }
  const calendar::sys_days moment = dayZero + calendar::days{day};
  const calendar::year_month_day civil{moment};
  DateParts parts;
  parts.year = static_cast<int>(civil.year());
  parts.month = static_cast<int>(static_cast<unsigned>(civil.month()));
  parts.day = static_cast<int>(static_cast<unsigned>(civil.day()));
  parts.hour = seconds / 3600;
  parts.minute = seconds / 60 % 60;
  parts.second = seconds % 60;
  parts.weekday = static_cast<int>(calendar::weekday{moment}.c_encoding()) + 1;
  return parts;
}

std::string dateText(Date date) {
  const DateParts parts = partsOf(date);
  const bool hasTime = parts.hour != 0 || parts.minute != 0 || parts.second != 0;
  const bool isDayZero = parts.year == 1899 && parts.month == 12 && parts.day == 30;
  std::string text;
  if (!isDayZero) text = padded(parts.day, 2) + "/" + padded(parts.month, 2) + "/" + padded(parts.year, 4);
  if (hasTime || isDayZero) {
    if (!text.empty()) text += " ";
    text += padded(parts.hour, 2) + ":" + padded(parts.minute, 2) + ":" + padded(parts.second, 2);
  }
  return text;
}

std::string_view monthName(int month) {
  return months[month - 1];
}
std::string_view weekdayName(int weekday) {
  return weekdays[weekday - 1];
}
std::string_view shortMonthName(int month) {
  return monthName(month).substr(0, 3);
}
std::string_view shortWeekdayName(int weekday) {
  return weekdayName(weekday).substr(0, 3);
}

}  // namespace runtime
