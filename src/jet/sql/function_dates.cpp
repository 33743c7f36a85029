#include <cmath>

#include "jet/sql/function_support.h"
#include "platform/clock.h"
#include "runtime/date.h"

namespace jet::sql {

namespace {

double dayOf(double days) {
  return std::trunc(days);
}

void date(sqlite3_context* context, int, sqlite3_value**) {
  sqlite3_result_double(context, dayOf(platform::clock().now().days));
}

void time(sqlite3_context* context, int, sqlite3_value**) {
  const double now = platform::clock().now().days;
  sqlite3_result_double(context, std::abs(now - dayOf(now)));
}

void now(sqlite3_context* context, int, sqlite3_value**) {
  sqlite3_result_double(context, platform::clock().now().days);
}

void wholeDay(sqlite3_context* context, int, sqlite3_value** arguments) {
  sqlite3_result_double(context, dayOf(sqlite3_value_double(arguments[0])));
}

template <int runtime::DateParts::*part>
void partOf(sqlite3_context* context, int, sqlite3_value** arguments) {
  sqlite3_result_int(context, runtime::partsOf({sqlite3_value_double(arguments[0])}).*part);
}

/// Months and days outside their range count on from it.
void dateSerial(sqlite3_context* context, int, sqlite3_value** arguments) {
  constexpr std::int64_t furthest = 1000000, firstShort = 30, shortYears = 100;
  std::int64_t year = sqlite3_value_int64(arguments[0]);
  const std::int64_t months = sqlite3_value_int64(arguments[1]) - 1,
                     days = sqlite3_value_int64(arguments[2]) - 1;
  if (std::abs(year) > furthest || std::abs(months) > furthest || std::abs(days) > 4 * furthest) {
    throw runtime::languageError(runtime::InvalidCall);
  }
  if (year >= 0 && year < shortYears) year += year < firstShort ? 2000 : 1900;
  const std::int64_t monthsInAll = year * 12 + months;
  const auto month = static_cast<int>((monthsInAll % 12 + 12) % 12);
  const auto monthYear = static_cast<int>((monthsInAll - month) / 12);
  const runtime::Date result{runtime::dateFromParts(monthYear, month + 1, 1).days +
                             static_cast<double>(days)};
  if (!runtime::isInCalendar(result)) throw runtime::languageError(runtime::InvalidCall);
  sqlite3_result_double(context, result.days);
}

constexpr SqliteFunction functions[] = {
    {"jet_date", 0, nullIfAnyIsNull<date>, false},
    {"jet_time", 0, nullIfAnyIsNull<time>, false},
    {"jet_now", 0, nullIfAnyIsNull<now>, false},
    {"jet_day_of", 1, nullIfAnyIsNull<wholeDay>},
    {"jet_date_serial", 3, nullIfAnyIsNull<dateSerial>},
    {"jet_year", 1, nullIfAnyIsNull<partOf<&runtime::DateParts::year>>},
    {"jet_month", 1, nullIfAnyIsNull<partOf<&runtime::DateParts::month>>},
    {"jet_day", 1, nullIfAnyIsNull<partOf<&runtime::DateParts::day>>},
    {"jet_hour", 1, nullIfAnyIsNull<partOf<&runtime::DateParts::hour>>},
    {"jet_minute", 1, nullIfAnyIsNull<partOf<&runtime::DateParts::minute>>},
    {"jet_second", 1, nullIfAnyIsNull<partOf<&runtime::DateParts::second>>},
    {"jet_weekday", 1, nullIfAnyIsNull<partOf<&runtime::DateParts::weekday>>},
};

}  // namespace

void registerDateFunctions(sqlite3* connection) {
  registerAll(connection, functions);
}

}  // namespace jet::sql
