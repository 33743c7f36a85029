#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

#include "runtime/error.h"
#include "runtime/variant.h"

namespace runtime {
namespace {

/// Number of the error that `work` throws, 0 if none.
int errorOf(const std::function<void()>& work) {
  try {
    work();
    return 0;
  } catch (const Error& error) {
    return error.number();
  }
}

Decimal decimal(long long digits, std::uint8_t scale, bool negative = false) {
  Decimal value;
  value.negative = negative;
  value.scale = scale;
  value.magnitude = static_cast<unsigned long long>(digits);
  return value;
}

constexpr double infinity = std::numeric_limits<double>::infinity();

TEST(Conversion, ToLongRoundsHalvesToEven) {
  const struct {
    Variant value;
    std::int32_t expected;
    // clang-format off
  } cases[] = {
      {0.5, 0}, {1.5, 2}, {2.5, 2}, {-0.5, 0}, {-1.5, -2}, {-2.5, -2}, {2.5000001, 3}, {2.5f, 2}, {3.5f, 4},
      {Currency{25000}, 2}, {Currency{35000}, 4}, {Currency{-25000}, -2}, {Currency{25001}, 3},
      {decimal(25, 1), 2}, {decimal(2501, 3), 3}, {decimal(35, 1, true), -4}, {decimal(5, 1), 0},
      {decimal(7, 0), 7}, {"2,5", 2}, {"3,5", 4}, {"-2,5", -2}, {" 12 ", 12}, {"1.234", 1234},
      {"2147483647,4", 2147483647}, {"1,5E3", 1500}, {"1D2", 100}, {"(3)", -3}, {"3-", -3}, {"&H1F", 31},
      {"&HFFFF", -1}, {"€ 2", 2}, {true, -1}, {false, 0}, {Variant(), 0}, {Date{2.5}, 2},
      {std::int16_t{-7}, -7}, {std::uint8_t{200}, 200},
      {-2147483648.5, std::numeric_limits<std::int32_t>::min()},
  };
  // clang-format on
  for (const auto& test : cases) EXPECT_EQ(test.value.toLong(), test.expected) << test.value.toText();
}

TEST(Conversion, OutOfRangeNullAndTextThatIsNoNumberAreNumberedErrors) {
  const struct {
    std::function<void()> work;
    int error;
    // clang-format off
  } cases[] = {
      {[] { Variant(32767.5).toInteger(); }, 6}, {[] { Variant(-32768.5).toInteger(); }, 0},
      {[] { Variant(255.5).toByte(); }, 6}, {[] { Variant(-1).toByte(); }, 6},
      {[] { Variant(2147483647.5).toLong(); }, 6}, {[] { Variant("2147483647,5").toLong(); }, 6},
      {[] { Variant(infinity).toLong(); }, 6}, {[] { Variant(std::nan("")).toCurrency(); }, 6},
      {[] { Variant(922337203685478.0).toCurrency(); }, 6},
      {[] { Variant("922337203685477,5808").toCurrency(); }, 6},
      {[] { Variant("-922337203685477,5808").toCurrency(); }, 0}, {[] { Variant("1E400").toDouble(); }, 6},
      {[] { Variant(decimal(1, 255)).toLong(); }, 0}, {[] { Variant(2958466.0).toDate(); }, 6},
      {[] { Variant(-657435.0).toDate(); }, 6}, {[] { Variant(Null{}).toLong(); }, 94},
      {[] { Variant(Null{}).toDouble(); }, 94}, {[] { Variant(Null{}).toBoolean(); }, 94},
      {[] { Variant(Null{}).toDate(); }, 94}, {[] { Variant(Null{}).toText(); }, 94},
      {[] { Variant("").toLong(); }, 13}, {[] { Variant("12abc").toDouble(); }, 13},
      {[] { Variant("--3").toDouble(); }, 13}, {[] { Variant("(-3)").toDouble(); }, 13},
      {[] { Variant("1,2,3").toDouble(); }, 13}, {[] { Variant("1,2.3").toDouble(); }, 13},
      {[] { Variant(",").toDouble(); }, 13}, {[] { Variant("&H").toLong(); }, 13},
      {[] { Variant("&HG").toLong(); }, 13}, {[] { Variant("inf").toDouble(); }, 13},
      {[] { Variant("forse").toBoolean(); }, 13}, {[] { Variant("31/02/2026").toDate(); }, 13},
      {[] { Variant(Bytes{}).toLong(); }, 13}, {[] { Variant(Bytes{}).toText(); }, 13},
  };
  // clang-format on
  for (std::size_t i = 0; i < std::size(cases); ++i)
    EXPECT_EQ(errorOf(cases[i].work), cases[i].error) << "case " << i;
}

TEST(Conversion, ToCurrencyKeepsFourDecimals) {
  const struct {
    Variant value;
    std::int64_t tenThousandths;
    // clang-format off
  } cases[] = {
      {"1.936,27", 19362700}, {"0,00005", 0}, {"0,00015", 2}, {"0,000051", 1}, {"-0,00015", -2},
      {0.00025, 2}, {0.00035, 4}, {decimal(123456, 5), 12346}, {true, -10000},
      {"922337203685477,5807", 9223372036854775807}, {"1E-4", 1},
  };
  // clang-format on
  for (const auto& test : cases)
    EXPECT_EQ(test.value.toCurrency().tenThousandths, test.tenThousandths) << test.value.toText();
}

TEST(Conversion, ToBooleanAndToByte) {
  for (const Variant& truth :
       {Variant(true), Variant(0.1), Variant("Vero"), Variant("TRUE"), Variant("-1"), Variant(Currency{1})})
    EXPECT_TRUE(truth.toBoolean()) << truth.toText();
  for (const Variant& falsehood :
       {Variant(), Variant("falso"), Variant("False"), Variant("0,0"), Variant(Date{0})})
    EXPECT_FALSE(falsehood.toBoolean()) << falsehood.toText();
  EXPECT_EQ(Variant(true).toByte(), 255);
}

TEST(Conversion, ToTextWritesAsTheItalianLocale) {
  const struct {
    Variant value;
    const char* expected;
    // clang-format off
  } cases[] = {
      {Variant(), ""}, {true, "Vero"}, {false, "Falso"}, {-5, "-5"}, {std::uint8_t{255}, "255"},
      {1.5, "1,5"}, {-0.1, "-0,1"}, {0.1 + 0.2, "0,3"}, {0.0, "0"}, {-0.0, "0"}, {100.0, "100"},
      {1.0 / 3, "0,333333333333333"}, {1.0 / 30, "3,33333333333333E-02"}, {0.00001, "0,00001"},
      {1e14, "100000000000000"}, {123456789012345.0, "123456789012345"}, {1e15, "1E+15"},
      {1.5e20, "1,5E+20"}, {1234567890123456.0, "1,23456789012346E+15"}, {-2.5e-100, "-2,5E-100"},
      {1.7976931348623157e308, "1,79769313486232E+308"}, {999999999999999.9, "1E+15"}, {infinity, "1,#INF"},
      {-infinity, "-1,#INF"}, {0.1f, "0,1"}, {16777216.0f, "1,677722E+07"}, {1234567.0f, "1234567"},
      {1.0f / 30, "3,333334E-02"}, {Currency{12345}, "1,2345"}, {Currency{-500}, "-0,05"},
      {Currency{20000}, "2"}, {Currency{-9223372036854775807 - 1}, "-922337203685477,5808"},
      {decimal(12340, 3), "12,34"}, {decimal(5, 3, true), "-0,005"}, {decimal(0, 2, true), "0"},
      {decimal(1200, 0), "1200"}, {Date{46342 + 62160.0 / 86400}, "16/11/2026 17:16:00"},
      {Date{46342}, "16/11/2026"}, {Date{0.5}, "12:00:00"}, {Date{0}, "00:00:00"},
      {Date{-1.25}, "29/12/1899 06:00:00"}, {Date{-657434}, "01/01/0100"}, {Date{1.9999999}, "01/01/1900"},
      {"così", "così"},
  };
  // clang-format on
  for (const auto& test : cases) EXPECT_EQ(test.value.toText(), test.expected);
}

TEST(Conversion, DecimalsOfTwentyEightDigitsStayExact) {
  Decimal value;
  value.scale = 10;
  for (int i = 0; i < 28; ++i) value.magnitude = value.magnitude * 10 + 9;
  EXPECT_EQ(Variant(value).toText(), "999999999999999999,9999999999");
  EXPECT_DOUBLE_EQ(Variant(value).toDouble(), 1e18);
}

}  // namespace
}  // namespace runtime
