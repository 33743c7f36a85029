#pragma once

#include <cstdint>
#include <string_view>

#include "runtime/variant.h"

/// The language's arithmetic of dates. An interval is yyyy years, q quarters, m months, y, d or w days, ww
/// weeks, h hours, n minutes, s seconds, in either case; error 5 for another text. Days of the week are
/// numbered from 1, and 1 as the first day means Sunday, 2 Monday, 0 the country's (Monday). The first week
/// of the year is that of 1 January (1, or 0), the first with four days (2) or the first whole one (3).
namespace runtime {

/// `date` moved by `number`, rounded to whole, of the interval; a day that the month does not have becomes
/// its last. Hours, minutes and seconds move to whole seconds. Error 6 for a number beyond 32 bits, 5 where
/// the result is outside the calendar.
Date dateAdd(std::string_view interval, double number, Date date);

/// How many boundaries of the interval lie between `from` and `to`, below zero if `to` is the earlier; w
/// counts whole weeks, ww the first days of a week. Error 6 beyond 32 bits.
std::int32_t dateDiff(std::string_view interval, Date from, Date to, int firstDayOfWeek = 1);

/// The part of `date`: y is the day of the year, w of the week, ww the number of the week. Error 5 for a
/// first day or week that is none.
int datePart(std::string_view interval, Date date, int firstDayOfWeek = 1, int firstWeekOfYear = 1);

/// 1 on `firstDayOfWeek`, 7 on the day before it.
int weekday(Date date, int firstDayOfWeek = 1);

/// Months, days and parts of the time that are outside their range count on from it; years 0 to 29 are 2000
/// to 2029, 30 to 99 are of 1900. Error 5 outside the calendar.
Date dateSerial(std::int64_t year, std::int64_t month, std::int64_t day);
Date timeSerial(std::int64_t hour, std::int64_t minute, std::int64_t second);

/// The day without its time; the time on day 0.
Date dayOf(Date date);
Date timeOf(Date date);

}  // namespace runtime
