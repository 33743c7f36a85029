#include <gtest/gtest.h>

#include <ctime>

#include "runtime/date.h"
#include "runtime/error.h"

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
  EXPECT_THROW(dateFromParts(2025, 257, 1), Error);
  EXPECT_THROW(dateFromParts(2025, 1, 258), Error);
  EXPECT_THROW(dateFromParts(2025, 1, 1, 24), Error);
  EXPECT_THROW(dateFromParts(2025, -1, 1), Error);
  for (const double days : {1e300, -1e300, 2958466.0, -657435.0})
    EXPECT_THROW(partsOf(Date{days}), Error) << days;
  EXPECT_EQ(partsOf(Date{2958465.9999999}).year, 9999);  // nearest second would be the year 10000
}

}  // namespace
}  // namespace runtime
