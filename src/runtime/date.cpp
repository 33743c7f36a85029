// Days and seconds as a calendar reads them, and back.
#include "runtime/date.h"

#include <chrono>
#include <cmath>

#include "runtime/error.h"

namespace runtime {

namespace {

namespace calendar = std::chrono;

constexpr double FirstDay = -657434;  // 1 January 100
constexpr double LastDay = 2958465;   // 31 December 9999

constexpr calendar::sys_days DayZero{calendar::year{1899} / calendar::December / 30};

constexpr std::string_view MonthNames[] = {"gennaio",   "febbraio", "marzo",    "aprile",
                                           "maggio",    "giugno",   "luglio",   "agosto",
                                           "settembre", "ottobre",  "novembre", "dicembre"};
constexpr std::string_view WeekdayNames[] = {"domenica", "lunedì",  "martedì", "mercoledì",
                                             "giovedì",  "venerdì", "sabato"};

void appendPadded(int value, std::size_t width, std::string& out) {
  const std::string digits = std::to_string(value);
  if (digits.size() < width) out.append(width - digits.size(), '0');
  out += digits;
}

}  // namespace

Date dateFromParts(int year, int month, int day, int hour, int minute, int second) {
  const calendar::year_month_day civil{calendar::year{year}, calendar::month{static_cast<unsigned>(month)},
                                       calendar::day{static_cast<unsigned>(day)}};
  const bool timeIsGood = hour >= 0 && hour < 24 && minute >= 0 && minute < 60 && second >= 0 && second < 60;
  // The calendar keeps eight bits of a month and of a day.
  const bool partsAreGood = month >= 1 && month <= 12 && day >= 1 && day <= 31;
  if (year < 100 || year > 9999 || !partsAreGood || !civil.ok() || !timeIsGood)
    throw languageError(InvalidCall);
  const double days = dayNumber(year, month, day);
  const double fraction = static_cast<double>((hour * 60 + minute) * 60 + second) / SecondsOfDay;
  return Date{days < 0 ? days - fraction : days + fraction};
}

bool isInCalendar(Date date) {
  return date.days > FirstDay - 1 && date.days < LastDay + 1;
}

Moment momentOf(Date date) {
  if (!isInCalendar(date)) throw languageError(Overflow);
  double whole = 0;
  const double fraction = std::abs(std::modf(date.days, &whole));
  Moment moment{static_cast<int>(whole), static_cast<int>(std::lround(fraction * SecondsOfDay))};
  if (moment.second == SecondsOfDay) {  // nearest second of the next day; there is none after the last
    if (moment.day == static_cast<int>(LastDay)) {
      --moment.second;
    } else {
      moment = {moment.day + 1, 0};
    }
  }
  return moment;
}

DateParts partsOf(Date date) {
  const Moment moment = momentOf(date);
  const calendar::sys_days day = DayZero + calendar::days{moment.day};
  const calendar::year_month_day civil{day};
  DateParts parts;
  parts.year = static_cast<int>(civil.year());
  parts.month = static_cast<int>(static_cast<unsigned>(civil.month()));
  parts.day = static_cast<int>(static_cast<unsigned>(civil.day()));
  parts.hour = moment.second / 3600;
  parts.minute = moment.second / 60 % 60;
  parts.second = moment.second % 60;
  parts.weekday = static_cast<int>(calendar::weekday{day}.c_encoding()) + 1;
  return parts;
}

int dayNumber(int year, int month, int day) {
  const calendar::year_month_day civil{calendar::year{year}, calendar::month{static_cast<unsigned>(month)},
                                       calendar::day{static_cast<unsigned>(day)}};
  return static_cast<int>((calendar::sys_days{civil} - DayZero).count());
}

int daysOfMonth(int year, int month) {
  const calendar::year_month_day_last last{
      calendar::year{year}, calendar::month_day_last{calendar::month{static_cast<unsigned>(month)}}};
  return static_cast<int>(static_cast<unsigned>(last.day()));
}

std::string dateText(Date date) {
  const DateParts parts = partsOf(date);
  const bool hasTime = parts.hour != 0 || parts.minute != 0 || parts.second != 0;
  const bool isDayZero = parts.year == 1899 && parts.month == 12 && parts.day == 30;
  std::string text;
  const auto append = [&](int value, std::size_t width, char behind) {
    appendPadded(value, width, text);
    if (behind != 0) text += behind;
  };
  if (!isDayZero) {
    append(parts.day, 2, '/');
    append(parts.month, 2, '/');
    append(parts.year, 4, hasTime ? ' ' : 0);
  }
  if (hasTime || isDayZero) {
    append(parts.hour, 2, ':');
    append(parts.minute, 2, ':');
    append(parts.second, 2, 0);
  }
  return text;
}

std::string_view monthName(int month) {
  if (month < 1 || month > 12) throw languageError(InvalidCall);
  return MonthNames[month - 1];
}
std::string_view weekdayName(int weekday) {
  if (weekday < 1 || weekday > 7) throw languageError(InvalidCall);
  return WeekdayNames[weekday - 1];
}
std::string_view shortMonthName(int month) {
  return monthName(month).substr(0, 3);
}
std::string_view shortWeekdayName(int weekday) {
  return weekdayName(weekday).substr(0, 3);
}

}  // namespace runtime
