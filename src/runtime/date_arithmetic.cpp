// Dates plus intervals, and the intervals between dates.
#include "runtime/date_arithmetic.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "runtime/date.h"
#include "runtime/error.h"
#include "runtime/italian.h"
#include "runtime/numbers.h"

namespace runtime {

namespace {

/// How an interval is counted: in months, in days, or in seconds.
enum class Measure { Months, Days, Seconds };

struct Interval {
  std::string_view name;
  Measure measure;
  std::int64_t size;  // months, days or seconds
  int (*part)(const DateParts&);
};

constexpr Interval Intervals[] = {
    {"yyyy", Measure::Months, 12, [](const DateParts& parts) { return parts.year; }},
    {"q", Measure::Months, 3, [](const DateParts& parts) { return (parts.month + 2) / 3; }},
    {"m", Measure::Months, 1, [](const DateParts& parts) { return parts.month; }},
    {"y", Measure::Days, 1, nullptr},
    {"d", Measure::Days, 1, [](const DateParts& parts) { return parts.day; }},
    {"w", Measure::Days, 1, nullptr},
    {"ww", Measure::Days, 7, nullptr},
    {"h", Measure::Seconds, 3600, [](const DateParts& parts) { return parts.hour; }},
    {"n", Measure::Seconds, 60, [](const DateParts& parts) { return parts.minute; }},
    {"s", Measure::Seconds, 1, [](const DateParts& parts) { return parts.second; }},
};

const Interval& intervalOf(std::string_view text) {
  const auto same = [&](std::string_view name) {
    if (text.size() != name.size()) return false;
    for (std::size_t i = 0; i < name.size(); ++i)
      if ((text[i] | 0x20) != name[i]) return false;
    return true;
  };
  for (const Interval& interval : Intervals)
    if (same(interval.name)) return interval;
  throw languageError(InvalidCall);
}

std::int64_t floorDivide(std::int64_t value, std::int64_t divisor) {
  return value / divisor - (value % divisor < 0);
}

std::int64_t secondsOf(Moment moment) {
  return std::int64_t{moment.day} * SecondsOfDay + moment.second;
}

/// Day `day` with the time of `date`, to its last fraction. Error 5 outside the calendar.
Date withDay(std::int64_t day, Date date) {
  const double fraction = std::abs(date.days - std::trunc(date.days));
  const auto whole = static_cast<double>(day);
  const Date result{day < 0 ? whole - fraction : whole + fraction};
  if (!isInCalendar(result)) throw languageError(InvalidCall);
  return result;
}

Date withSeconds(std::int64_t seconds) {
  const std::int64_t day = floorDivide(seconds, SecondsOfDay);
  const Date time{static_cast<double>(seconds - day * SecondsOfDay) / SecondsOfDay};
  return withDay(day, time);
}

Date addMonths(std::int64_t months, Date date) {
  const DateParts parts = partsOf(Date{std::trunc(date.days)});
  const std::int64_t month = parts.year * 12 + parts.month - 1 + months;
  const std::int64_t year = floorDivide(month, 12);
  if (year < 100 || year > 9999) throw languageError(InvalidCall);
  const int monthOfYear = static_cast<int>(month - year * 12) + 1;
  const int day = std::min(parts.day, daysOfMonth(static_cast<int>(year), monthOfYear));
  return withDay(dayNumber(static_cast<int>(year), monthOfYear, day), date);
}

/// Weeks from one that begins on `firstDay`, 1 Sunday to 7 Saturday. Day 0 is a Saturday.
std::int64_t weekIndex(std::int64_t day, int firstDay) {
  return floorDivide(day + 7 - firstDay, 7);
}

int checkedFirstDay(int firstDay) {
  if (firstDay < 0 || firstDay > 7) throw languageError(InvalidCall);
  return firstDay == 0 ? italian::FirstDayOfWeek : firstDay;
}

/// Day on which week 1 of `year` begins.
std::int64_t firstWeekStart(int year, int firstDay, int firstWeek) {
  constexpr int fourDays = 2, wholeWeek = 3;
  const std::int64_t newYear = dayNumber(year, 1, 1);
  const std::int64_t start = weekIndex(newYear, firstDay) * 7 - 7 + firstDay;
  const std::int64_t missing = newYear - start;
  const bool next = (firstWeek == fourDays && missing > 3) || (firstWeek == wholeWeek && missing > 0);
  return next ? start + 7 : start;
}

int weekOfYear(Date date, int firstDay, int firstWeek) {
  constexpr int ofNewYear = 1;
  if (firstWeek < 0 || firstWeek > 3) throw languageError(InvalidCall);
  const int rule = firstWeek == 0 ? ofNewYear : firstWeek;
  const std::int64_t day = momentOf(date).day;
  int year = partsOf(date).year;
  if (day < firstWeekStart(year, firstDay, rule)) --year;
  // Only a week of the year before can hold the new year's first days; 1 January keeps its own for itself.
  if (rule != ofNewYear && day >= firstWeekStart(year + 1, firstDay, rule)) ++year;
  return static_cast<int>((day - firstWeekStart(year, firstDay, rule)) / 7) + 1;
}

std::int32_t toLong(std::int64_t value) {
  if (value < std::numeric_limits<std::int32_t>::min() || value > std::numeric_limits<std::int32_t>::max())
    throw languageError(Overflow);
  return static_cast<std::int32_t>(value);
}

}  // namespace

Date dateAdd(std::string_view interval, double number, Date date) {
  const Interval& unit = intervalOf(interval);
  const std::int64_t amount = toLong(roundHalfEven(number)) * unit.size;
  const Moment moment = momentOf(date);
  switch (unit.measure) {
    case Measure::Months:
      return addMonths(amount, date);
    case Measure::Days:
      return withDay(static_cast<std::int64_t>(date.days) + amount, date);
    case Measure::Seconds:
      break;
  }
  return withSeconds(secondsOf(moment) + amount);
}

std::int32_t dateDiff(std::string_view interval, Date from, Date to, int firstDayOfWeek) {
  const Interval& unit = intervalOf(interval);
  const int firstDay = checkedFirstDay(firstDayOfWeek);
  const Moment first = momentOf(from), last = momentOf(to);
  switch (unit.measure) {
    case Measure::Months: {
      const DateParts a = partsOf(from), b = partsOf(to);
      return static_cast<std::int32_t>(floorDivide(b.year * 12 + b.month - 1, unit.size) -
                                       floorDivide(a.year * 12 + a.month - 1, unit.size));
    }
    case Measure::Days:
      if (unit.size == 7)
        return static_cast<std::int32_t>(weekIndex(last.day, firstDay) - weekIndex(first.day, firstDay));
      return unit.name == "w" ? (last.day - first.day) / 7 : last.day - first.day;
    case Measure::Seconds:
      break;
  }
  return toLong(floorDivide(secondsOf(last), unit.size) - floorDivide(secondsOf(first), unit.size));
}

int datePart(std::string_view interval, Date date, int firstDayOfWeek, int firstWeekOfYear) {
  const Interval& unit = intervalOf(interval);
  const DateParts parts = partsOf(date);
  if (unit.part) return unit.part(parts);
  if (unit.name == "y")
    return dayNumber(parts.year, parts.month, parts.day) - dayNumber(parts.year, 1, 1) + 1;
  if (unit.name == "w") return weekday(date, firstDayOfWeek);
  return weekOfYear(date, checkedFirstDay(firstDayOfWeek), firstWeekOfYear);
}

int weekday(Date date, int firstDayOfWeek) {
  return (partsOf(date).weekday - checkedFirstDay(firstDayOfWeek) + 7) % 7 + 1;
}

Date dateSerial(std::int64_t year, std::int64_t month, std::int64_t day) {
  constexpr std::int64_t furthest = 4000000, firstShort = 30, shortYears = 100;
  if (std::abs(year) > furthest || std::abs(month) > furthest || std::abs(day) > furthest)
    throw languageError(InvalidCall);
  if (year >= 0 && year < shortYears) year += year < firstShort ? 2000 : 1900;
  const std::int64_t months = year * 12 + month - 1;
  const std::int64_t monthYear = floorDivide(months, 12);
  if (monthYear < 0 || monthYear > 20000) throw languageError(InvalidCall);
  const int monthOfYear = static_cast<int>(months - monthYear * 12) + 1;
  return withDay(dayNumber(static_cast<int>(monthYear), monthOfYear, 1) + day - 1, Date{});
}

Date timeSerial(std::int64_t hour, std::int64_t minute, std::int64_t second) {
  constexpr std::int64_t furthest = 1'000'000'000'000;
  if (std::abs(hour) > furthest || std::abs(minute) > furthest || std::abs(second) > furthest)
    throw languageError(InvalidCall);
  return withSeconds((hour * 60 + minute) * 60 + second);
}

Date dayOf(Date date) {
  return {std::trunc(date.days)};
}

Date timeOf(Date date) {
  return {std::abs(date.days - std::trunc(date.days))};
}

}  // namespace runtime
