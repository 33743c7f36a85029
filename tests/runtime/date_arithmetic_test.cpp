#include "runtime/date_arithmetic.h"

#include <gtest/gtest.h>

#include "runtime/date.h"
#include "shown.h"

namespace runtime {
namespace {

Date date(const char* text) {
  return dateFromText(text).value();
}

TEST(DateAdd, MovesByTheIntervalAndStaysInTheCalendar) {
  const struct {
    const char* interval;
    double number;
    const char* from;
    const char* expected;
    // clang-format off
  } cases[] = {
      {"m", 6, "31/08/2008", "28/02/2009"}, {"m", 6, "31/08/2007", "29/02/2008"},
      {"m", -1, "31/03/2026 17:16", "28/02/2026 17:16:00"}, {"M", 13, "15/12/1999", "15/01/2001"},
      {"yyyy", 1, "29/02/2024", "28/02/2025"}, {"yyyy", 4, "29/02/2024", "29/02/2028"},
      {"YYYY", -1800, "01/01/1900", "01/01/0100"}, {"q", 1, "30/11/2025", "28/02/2026"},
      {"d", 1, "28/02/2024", "29/02/2024"}, {"y", 1, "28/02/2023", "01/03/2023"},
      {"w", 10, "01/01/2026", "11/01/2026"}, {"ww", -1, "01/01/2026", "25/12/2025"},
      {"d", 1.5, "01/01/2026", "03/01/2026"}, {"d", 2.5, "01/01/2026", "03/01/2026"},
      {"h", 25, "31/12/1999 23:30", "02/01/2000 00:30:00"}, {"n", -1, "01/01/2026", "31/12/2025 23:59:00"},
      {"s", 86399, "01/01/2026 00:00:01", "02/01/2026"}, {"h", -6, "30/12/1899 03:00", "29/12/1899 21:00:00"},
      {"h", 6, "29/12/1899 21:00", "03:00:00"}, {"d", 2, "29/12/1899 06:00", "31/12/1899 06:00:00"},
      {"m", 1, "29/11/1899 06:00", "29/12/1899 06:00:00"}, {"d", 1, "31/12/9999", "error 5"},
      {"yyyy", -1, "01/01/0100", "error 5"}, {"m", 1e9, "01/01/2026", "error 5"},
      {"d", 3e9, "01/01/2026", "error 6"}, {"mm", 1, "01/01/2026", "error 5"}, {"", 1, "01/01/2026", "error 5"},
  };
  // clang-format on
  for (const auto& test : cases) {
    EXPECT_EQ(shown([&] { return dateText(dateAdd(test.interval, test.number, date(test.from))); }),
              test.expected)
        << test.interval << " " << test.number << " " << test.from;
  }
}

TEST(DateDiff, CountsTheBoundariesThatAreCrossed) {
  const struct {
    const char* interval;
    const char* from;
    const char* to;
    const char* expected;
    int firstDay = 1;
    // clang-format off
  } cases[] = {
      {"yyyy", "31/12/2025", "01/01/2026", "1"}, {"yyyy", "01/01/2026", "31/12/2026", "0"},
      {"q", "31/03/2026", "01/04/2026", "1"}, {"m", "31/01/2026", "01/02/2026", "1"},
      {"m", "01/02/2026", "31/12/2024", "-14"}, {"d", "01/01/2026 23:59", "02/01/2026 00:01", "1"},
      {"d", "02/01/2026", "01/01/2026 23:00", "-1"}, {"y", "28/02/2024", "01/03/2024", "2"},
      {"w", "05/01/2026", "18/01/2026", "1"}, {"w", "05/01/2026", "19/01/2026", "2"},
      {"w", "19/01/2026", "06/01/2026", "-1"}, {"ww", "03/01/2026", "04/01/2026", "1"},
      {"ww", "03/01/2026", "04/01/2026", "0", 2}, {"ww", "04/01/2026", "05/01/2026", "1", 2},
      {"ww", "04/01/2026", "05/01/2026", "1", 0}, {"ww", "20/12/1899", "10/01/1900", "3"},
      {"h", "01/01/2026 10:59", "01/01/2026 11:00", "1"}, {"h", "29/12/1899 23:00", "30/12/1899 01:00", "2"},
      {"n", "01/01/2026 10:00:59", "01/01/2026 10:00:00", "0"}, {"s", "31/12/2025 23:59:59", "01/01/2026", "1"},
      {"s", "01/01/1900", "01/01/2026", "error 6"}, {"x", "01/01/1900", "01/01/2026", "error 5"},
      {"ww", "01/01/1900", "01/01/2026", "error 5", 8},
  };
  // clang-format on
  for (const auto& test : cases) {
    EXPECT_EQ(shown([&] {
                return std::to_string(dateDiff(test.interval, date(test.from), date(test.to), test.firstDay));
              }),
              test.expected)
        << test.interval << " " << test.from << " " << test.to;
  }
}

TEST(DatePart, NumbersWeeksByEachRule) {
  const struct {
    const char* interval;
    const char* date;
    int expected, firstDay, firstWeek;
    // clang-format off
  } cases[] = {
      {"yyyy", "16/11/2026", 2026, 1, 1}, {"q", "30/09/2026", 3, 1, 1}, {"q", "01/10/2026", 4, 1, 1},
      {"y", "31/12/2024", 366, 1, 1}, {"y", "01/03/2023", 60, 1, 1}, {"d", "29/12/1899 06:00", 29, 1, 1},
      {"h", "29/12/1899 06:00", 6, 1, 1}, {"n", "17:16:05", 16, 1, 1}, {"s", "17:16:05", 5, 1, 1},
      {"w", "16/11/2026", 2, 1, 1}, {"w", "16/11/2026", 1, 2, 1}, {"w", "15/11/2026", 7, 2, 1},
      {"w", "16/11/2026", 1, 0, 1}, {"ww", "01/01/2027", 1, 1, 1}, {"ww", "03/01/2027", 2, 1, 1},
      {"ww", "31/12/2026", 53, 1, 1}, {"ww", "01/01/2027", 53, 2, 2}, {"ww", "31/12/2026", 53, 2, 2},
      {"ww", "29/12/2025", 1, 2, 2}, {"ww", "04/01/2027", 1, 2, 2}, {"ww", "03/01/2027", 52, 2, 3},
      {"ww", "04/01/2027", 1, 2, 3}, {"ww", "04/01/2026", 1, 2, 0},
  };
  // clang-format on
  for (const auto& test : cases) {
    EXPECT_EQ(datePart(test.interval, date(test.date), test.firstDay, test.firstWeek), test.expected)
        << test.interval << " " << test.date << " " << test.firstDay << " " << test.firstWeek;
  }
  EXPECT_EQ(shown([] { return std::to_string(datePart("ww", Date{}, 1, 4)); }), "error 5");
}

TEST(DateSerial, CountsOnFromPartsOutsideTheirRange) {
  const struct {
    Date (*work)(std::int64_t, std::int64_t, std::int64_t);
    std::int64_t first, second, third;
    const char* expected;
    // clang-format off
  } cases[] = {
      {dateSerial, 2008, 14, 0, "31/01/2009"}, {dateSerial, 2024, 2, 30, "01/03/2024"},
      {dateSerial, 29, 1, 1, "01/01/2029"}, {dateSerial, 30, 1, 1, "01/01/1930"},
      {dateSerial, 2026, 0, -1, "29/11/2025"}, {dateSerial, 10000, 1, 1, "error 5"},
      {dateSerial, 10000, 1, 0, "31/12/9999"}, {dateSerial, -1, 1, 1, "error 5"},
      {dateSerial, 2026, 1, INT32_MAX, "error 5"}, {timeSerial, 17, 16, 5, "17:16:05"},
      {timeSerial, 12, -15, 0, "11:45:00"}, {timeSerial, 25, 0, 0, "31/12/1899 01:00:00"},
      {timeSerial, 0, 0, -1, "29/12/1899 23:59:59"}, {timeSerial, INT64_MAX, 0, 0, "error 5"},
  };
  // clang-format on
  for (const auto& test : cases) {
    EXPECT_EQ(shown([&] { return dateText(test.work(test.first, test.second, test.third)); }), test.expected)
        << test.first << " " << test.second << " " << test.third;
  }
  EXPECT_EQ(dayOf(date("29/12/1899 06:00")).days, -1);
  EXPECT_EQ(timeOf(date("29/12/1899 06:00")).days, 0.25);
}

}  // namespace
}  // namespace runtime
