#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "runtime/variant.h"

/// The civil calendar behind a Date: years 100 to 9999, seconds as the finest part.
namespace runtime {

inline constexpr int SecondsOfDay = 24 * 60 * 60;

struct DateParts {
  int year = 1899;
  int month = 12;
  int day = 30;
  int hour = 0;
  int minute = 0;
  int second = 0;
  int weekday = 7;  // 1 Sunday .. 7 Saturday
};

/// Error 5 if one of the parts is outside its range or the day is not in the calendar.
Date dateFromParts(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);

/// The nearest second: days since 1899-12-30, and seconds on from midnight, before that day too.
struct Moment {
  int day = 0;
  int second = 0;
};
/// Error 6 outside the years 100 to 9999.
Moment momentOf(Date date);

/// The parts of the nearest second. Error 6 outside the years 100 to 9999.
DateParts partsOf(Date date);

bool isInCalendar(Date date);

/// Days since 1899-12-30 of a day of the calendar; the year may lie outside 100 to 9999.
int dayNumber(int year, int month, int day);
int daysOfMonth(int year, int month);

/// A date, a time or both, as the Italian locale writes them: "16/11/2026 17:16:00", "16-11-26", "16 novembre
/// 2026", "2026-11-16", "17:16"; day and month change places where only that makes a date. Two digits of a
/// year mean 1930 to 2029. Months have their Italian or English names, whole or three letters; "16/11" is of
/// this year, "11/2026" the month's first day.
std::optional<Date> dateFromText(std::string_view text);

/// Where dateFromText reads this year, for dates without one; the system's local time unless told otherwise.
using YearSource = int (*)();
void setYearSource(YearSource source);

/// "16/11/2026 17:16:00": without the time at midnight, without the date on day 0.
std::string dateText(Date date);

/// Italian names in lower case; month 1..12, weekday 1 Sunday .. 7 Saturday. Error 5 outside.
std::string_view monthName(int month);
std::string_view weekdayName(int weekday);
/// Their first three letters.
std::string_view shortMonthName(int month);
std::string_view shortWeekdayName(int weekday);

}  // namespace runtime
