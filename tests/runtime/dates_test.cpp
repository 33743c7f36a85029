#include <gtest/gtest.h>

#include <ctime>

#include "runtime/date.h"
#include "runtime/error.h"
#include "runtime/format.h"

namespace runtime {
namespace {

TEST(Date, DaysFrom100To9999HaveTheirPartsAndComeBack) {
  for (int day = -657434; day <= 2958465; day += 7) {
    const DateParts parts = partsOf(Date{static_cast<double>(day)});
    ASSERT_EQ(dateFromParts(parts.year, parts.month, parts.day).days, day);
    ASSERT_EQ(parts.weekday, 6) << day;
  }
  EXPECT_EQ(dateText(Date{-657434}), "01/01/0100");
  EXPECT_EQ(dateText(Date{2958465}), "31/12/9999");
}

TEST(Date, PartsAgreeWithTheSystemsCalendar) {
  for (std::time_t instant = -2'000'000'000; instant < 4'000'000'000; instant += 7'777'777) {
    std::tm civil{};
    gmtime_r(&instant, &civil);
    const Date date = dateFromParts(civil.tm_year + 1900, civil.tm_mon + 1, civil.tm_mday, civil.tm_hour,
                                    civil.tm_min, civil.tm_sec);
    ASSERT_NEAR(date.days, 25569 + static_cast<double>(instant) / 86400, 1e-8);
    const DateParts parts = partsOf(date);
    ASSERT_EQ(parts.second + 60 * (parts.minute + 60 * parts.hour),
              civil.tm_sec + 60 * (civil.tm_min + 60 * civil.tm_hour));
    ASSERT_EQ(parts.weekday, civil.tm_wday + 1);
  }
}

TEST(Date, BeforeDayZeroTheFractionCountsAwayFromZero) {
  const Date date = dateFromParts(1899, 12, 28, 18, 0, 0);
  EXPECT_DOUBLE_EQ(date.days, -2.75);
  EXPECT_EQ(partsOf(date).day, 28);
  EXPECT_EQ(partsOf(date).hour, 18);
}

TEST(Date, WhatIsNotInTheCalendarIsRefused) {
  EXPECT_THROW(dateFromParts(2025, 2, 29), Error);
  EXPECT_THROW(dateFromParts(99, 1, 1), Error);
  EXPECT_THROW(dateFromParts(2025, 13, 1), Error);
  EXPECT_THROW(dateFromParts(2025, 1, 1, 24), Error);
  EXPECT_THROW(dateFromParts(2025, -1, 1), Error);
  for (const double days : {1e300, -1e300, 2958466.0, -657435.0})
    EXPECT_THROW(partsOf(Date{days}), Error) << days;
  EXPECT_EQ(partsOf(Date{2958465.9999999}).year, 9999);  // nearest second would be the year 10000
}

TEST(Date, TextsThatAreDates) {
  const struct {
    const char* text;
    const char* expected;  // empty: no date
    // clang-format off
  } cases[] = {
      {"16/11/2026 17:16:00", "16/11/2026 17:16:00"}, {"16-11-26", "16/11/2026"},
      {"1.2.1990", "01/02/1990"}, {"29/12/29", "29/12/2029"}, {"29/12/30", "29/12/1930"},
      {"11/16/2026", "16/11/2026"}, {"2026-11-16", "16/11/2026"}, {"2026/1/2 3:04", "02/01/2026 03:04:00"},
      {"16 novembre 2026", "16/11/2026"}, {"16-NOV-26", "16/11/2026"}, {"nov 16 2026", "16/11/2026"},
      {"17:16", "17:16:00"}, {"5:30 pm", "17:30:00"}, {"12:00 am", "00:00:00"},
      {"17:16:05 16/11/2026", "16/11/2026 17:16:05"}, {"29/2/2024", "29/02/2024"}, {"29/2/2023", ""},
      {"", ""}, {" ", ""}, {"32/1/2026", ""}, {"16/11", ""}, {"24:00", ""}, {"1:60", ""},
      {"16//11/2026", ""}, {"/16/11/2026", ""}, {"16/11/2026/", ""}, {"16/11/20266", ""}, {"abc", ""},
      {":", ""}, {"13:30 pm", ""}, {"1:2:3:4", ""}, {"16 nov nov 2026", ""}, {"16/11/99", "16/11/1999"},
      {"16/11/099", ""},
  };
  // clang-format on
  for (const auto& test : cases) {
    const std::optional<Date> date = dateFromText(test.text);
    EXPECT_EQ(date ? dateText(*date) : "", test.expected) << test.text;
  }
}

TEST(Format, DatePatterns) {
  const Date date = dateFromParts(2026, 3, 4, 17, 6, 9);  // a Wednesday
  const Date morning = dateFromParts(2026, 3, 4, 0, 6, 9);
  const struct {
    Variant value;
    const char* pattern;
    const char* expected;
    // clang-format off
  } cases[] = {
      {date, "yyyymmddhhnnss", "20260304170609"}, {date, "yymmddhhnnss ", "260304170609 "},
      {date, "YYYYMMDDHHNN", "202603041706"}, {date, "dd/mm/yyyy", "04/03/2026"},
      {date, "mm/dd/yyyy", "03/04/2026"}, {date, "d/m/yy h:n:s", "4/3/26 17:6:9"},
      {date, "hh:mm:ss", "17:06:09"}, {date, "h:m mm", "17:6 03"},
      {date, "dd/mm/yy hh:mm", "04/03/26 17:06"}, {date, "ddd dddd mmm mmmm", "mer mercoledì mar marzo"},
      {date, "hmmm", "17mar"}, {date, "h:nn AM/PM", "5:06 PM"}, {date, "hh a/p", "05 p"},
      {morning, "h am/pm", "12 am"}, {date, "\"dd\" dd \\d", "dd 04 d"},
      {date, "yyyymmdd_hhnnss", "20260304_170609"}, {date, "\"dd", "dd"}, {date, "", "04/03/2026 17:06:09"},
      {Null{}, "dd/mm/yyyy", ""}, {Variant(), "dd", ""}, {"4/3/2026", "yyyy-mm-dd", "2026-03-04"},
      {"domani", "dd/mm/yyyy", "domani"}, {46085.0, "d/m/yyyy", "4/3/2026"},
      {dateFromParts(150, 1, 2), "yyyy yy", "0150 50"},
  };
  // clang-format on
  for (const auto& test : cases) EXPECT_EQ(format(test.value, test.pattern), test.expected) << test.pattern;
  for (const char* unknown : {"yyy", "ddddd", "#,##0", "0", "ww", "q", ">"})
    EXPECT_THROW(format(date, unknown), Error) << unknown;
}

}  // namespace
}  // namespace runtime
