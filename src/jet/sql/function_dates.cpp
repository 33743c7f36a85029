// The functions of dates.
#include "jet/sql/function_support.h"
#include "platform/clock.h"
#include "runtime/date.h"
#include "runtime/date_arithmetic.h"

namespace jet::sql {

namespace {

using runtime::Date;

Date date(sqlite3_value* value) {
  return {sqlite3_value_double(value)};
}

void returnDate(sqlite3_context* context, Date value) {
  sqlite3_result_double(context, value.days);
}

void today(sqlite3_context* context, int, sqlite3_value**) {
  returnDate(context, runtime::dayOf(platform::clock().now()));
}

void timeOfDay(sqlite3_context* context, int, sqlite3_value**) {
  returnDate(context, runtime::timeOf(platform::clock().now()));
}

void now(sqlite3_context* context, int, sqlite3_value**) {
  returnDate(context, platform::clock().now());
}

void timer(sqlite3_context* context, int, sqlite3_value**) {
  sqlite3_result_double(context, static_cast<double>(platform::clock().timer()));
}

template <Date (*part)(Date)>
void pieceOf(sqlite3_context* context, int, sqlite3_value** arguments) {
  returnDate(context, part(date(arguments[0])));
}

template <int runtime::DateParts::*part>
void partOf(sqlite3_context* context, int, sqlite3_value** arguments) {
  sqlite3_result_int(context, runtime::partsOf(date(arguments[0])).*part);
}

template <Date (*serial)(std::int64_t, std::int64_t, std::int64_t)>
void fromParts(sqlite3_context* context, int, sqlite3_value** arguments) {
  returnDate(context, serial(sqlite3_value_int64(arguments[0]), sqlite3_value_int64(arguments[1]),
                             sqlite3_value_int64(arguments[2])));
}

void dateAdd(sqlite3_context* context, int, sqlite3_value** arguments) {
  returnDate(context,
             runtime::dateAdd(textOf(arguments[0]), sqlite3_value_double(arguments[1]), date(arguments[2])));
}

/// The first week of the year, which the language lets be told here too, has no part in it.
void dateDiff(sqlite3_context* context, int count, sqlite3_value** arguments) {
  const int firstDay = optionalArgument(count, arguments, 3, 1);
  sqlite3_result_int(
      context, runtime::dateDiff(textOf(arguments[0]), date(arguments[1]), date(arguments[2]), firstDay));
}

void datePart(sqlite3_context* context, int count, sqlite3_value** arguments) {
  const int firstDay = optionalArgument(count, arguments, 2, 1),
            firstWeek = optionalArgument(count, arguments, 3, 1);
  sqlite3_result_int(context,
                     runtime::datePart(textOf(arguments[0]), date(arguments[1]), firstDay, firstWeek));
}

void weekday(sqlite3_context* context, int count, sqlite3_value** arguments) {
  sqlite3_result_int(context, runtime::weekday(date(arguments[0]), optionalArgument(count, arguments, 1, 1)));
}

void monthName(sqlite3_context* context, int count, sqlite3_value** arguments) {
  const int month = sqlite3_value_int(arguments[0]);
  const bool isShort = optionalArgument(count, arguments, 1, 0) != 0;
  returnText(context, isShort ? runtime::shortMonthName(month) : runtime::monthName(month));
}

/// The first day is the country's unless it is told.
void weekdayName(sqlite3_context* context, int count, sqlite3_value** arguments) {
  const int number = sqlite3_value_int(arguments[0]);
  if (number < 1 || number > 7) throw runtime::languageError(runtime::InvalidCall);
  // Day 1 was a Sunday, the first in the week that begins on Sunday.
  const int sunday = runtime::weekday({1}, optionalArgument(count, arguments, 2, 0));
  const int day = (number - sunday + 7) % 7 + 1;
  const bool isShort = optionalArgument(count, arguments, 1, 0) != 0;
  returnText(context, isShort ? runtime::shortWeekdayName(day) : runtime::weekdayName(day));
}

using Parts = runtime::DateParts;

constexpr SqliteFunction DatesFunctions[] = {
    {"jet_date", 0, withErrors<today>},
    {"jet_time", 0, withErrors<timeOfDay>},
    {"jet_now", 0, withErrors<now>},
    {"jet_timer", 0, withErrors<timer>},
    {"jet_day_of", 1, nullIfAnyIsNull<pieceOf<runtime::dayOf>>},
    {"jet_time_of", 1, nullIfAnyIsNull<pieceOf<runtime::timeOf>>},
    {"jet_date_serial", 3, nullIfAnyIsNull<fromParts<runtime::dateSerial>>},
    {"jet_time_serial", 3, nullIfAnyIsNull<fromParts<runtime::timeSerial>>},
    {"jet_date_add", 3, nullIfAnyIsNull<dateAdd>},
    {"jet_date_diff", -1, nullIfAnyIsNull<dateDiff>},
    {"jet_date_part", -1, nullIfAnyIsNull<datePart>},
    {"jet_year", 1, nullIfAnyIsNull<partOf<&Parts::year>>},
    {"jet_month", 1, nullIfAnyIsNull<partOf<&Parts::month>>},
    {"jet_day", 1, nullIfAnyIsNull<partOf<&Parts::day>>},
    {"jet_hour", 1, nullIfAnyIsNull<partOf<&Parts::hour>>},
    {"jet_minute", 1, nullIfAnyIsNull<partOf<&Parts::minute>>},
    {"jet_second", 1, nullIfAnyIsNull<partOf<&Parts::second>>},
    {"jet_weekday", -1, nullIfAnyIsNull<weekday>},
    {"jet_month_name", -1, nullIfAnyIsNull<monthName>},
    {"jet_weekday_name", -1, nullIfAnyIsNull<weekdayName>},
};

}  // namespace

void registerDateFunctions(sqlite3* connection) {
  registerAll(connection, DatesFunctions);
}

}  // namespace jet::sql
