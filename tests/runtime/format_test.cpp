#include "runtime/format.h"

#include <gtest/gtest.h>

#include "runtime/date.h"
#include "shown.h"

namespace runtime {
namespace {

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
      {date, "c", "04/03/2026 17:06:09"}, {date, "ddddd ttttt", "04/03/2026 17:06:09"},
      {date, "dddddd", "mercoledì 4 marzo 2026"}, {date, "y q w ww", "63 1 4 10"}, {date, "yyy", "2663"},
      {date, "General Date", "04/03/2026 17:06:09"}, {date, "LONG DATE", "mercoledì 4 marzo 2026"},
      {date, "Medium Date", "04-mar-26"}, {date, "Short Date", "04/03/2026"}, {date, "Long Time", "17:06:09"},
      {date, "Medium Time", "05:06 PM"}, {date, "Short Time", "17:06"}, {date, "dd.mm.yyyy", "04.03.2026"},
      {date, "\\è\\d: d", "èd: 4"}, {date, "'dd'", "'04'"}, {Date{-1.25}, "dd/mm/yyyy hh:nn", "29/12/1899 06:00"},
      {Date{0.5}, "hh:nn am/PM", "12:00 PM"}, {3000000.0, "yyyy", "error 6"},
  };
  // clang-format on
  for (const auto& test : cases)
    EXPECT_EQ(shown([&] { return format(test.value, test.pattern); }), test.expected) << test.pattern;
  EXPECT_EQ(format(dateFromParts(2027, 1, 1), "w ww", 2, 2), "5 53");
}

TEST(Format, NumberPatterns) {
  Decimal exact;
  exact.scale = 4;
  for (const char digit : std::string("1234567890123456789012345678"))
    exact.magnitude = exact.magnitude * 10 + static_cast<unsigned>(digit - '0');
  const struct {
    Variant value;
    const char* pattern;
    const char* expected;
    // clang-format off
  } cases[] = {
      {7, "000", "007"}, {12345, "000", "12345"}, {"7", "0000", "0007"}, {0, "0000000", "0000000"},
      {2.5, "0", "3"}, {-2.5, "0", "-3"}, {0.5, "0", "1"}, {0.125, "0.00", "0,13"}, {1.005, "0.00", "1,01"},
      {0.4, "0", "0"}, {0.4, "#", ""}, {99.995, "0.00", "100,00"}, {999.5, "#,##0", "1.000"},
      {1234567.891, "#,##0.00", "1.234.567,89"}, {1234.5, "0,000.0", "1.234,5"}, {5, "#,##0", "5"},
      {5, "0,000", "0.005"}, {5, "#.##", "5,"}, {0, "#.##", ","}, {0.25, "#.##", ",25"}, {12.5, ".00", "12,50"},
      {1.5, "0.0##", "1,5"}, {1.25, "0.0##", "1,25"}, {0.256, "0%", "26%"}, {0.256, "0.0%", "25,6%"},
      {1234567, "#,##0,", "1.235"}, {1234567, "0,,.00", "1,23"}, {1e9, "0,,,", "1"},
      {-5, "0", "-5"}, {-5, "\"€ \"0", "-€ 5"}, {-5, "0;(0)", "(5)"}, {5, "0;(0)", "5"},
      {0, "0;(0);zer\\o", "zero"}, {0, "0;(0);\"zero\"", "zero"}, {-5, "0;;\"zero\"", "-5"},
      {Null{}, "0;0;0;\"Null\"", "Null"}, {Null{}, "0;0;0", ""}, {Null{}, "0", ""}, {Variant(), "0", ""},
      {1234.5, "0.00E+00", "1,23E+03"}, {0.00012, "0.0E+0", "1,2E-4"}, {1234.5, "0.0e-0", "1,2e3"},
      {12345, "##0.0E+0", "123,5E+2"}, {9.99, "0.0E+00", "1,0E+01"}, {0, "0.00E+00", "0,00E+00"},
      {5551234, "000-0000", "555-1234"}, {1234567890, "(000) 000-0000", "(123) 456-7890"},
      {3, "Kg 0", "Kg 3"}, {3, "0 \"metri\"", "3 metri"}, {3, "-0-", "-3-"}, {0.1f, "0.0000000000", "0,1000000000"},
      {0.1, "0.00000000000000000", "0,10000000000000000"}, {1e20, "0", "100000000000000000000"},
      {Currency{-9223372036854775807 - 1}, "#,##0.0000", "-922.337.203.685.477,5808"},
      {Currency{12345}, "0.000", "1,235"}, {exact, "0.####", "123456789012345678901234,5678"},
      {true, "0", "-1"}, {Date{46342.5}, "0.0", "46342,5"}, {"dodici", "000", "dodici"},
      {"1.234,5", "0.00", "1234,50"}, {std::int16_t{-32768}, "0", "-32768"}, {std::uint8_t{5}, "00", "05"},
      {1234.5, "General Number", "1234,5"}, {"12", "general number", "12"}, {1234.5, "Currency", "€ 1.234,50"},
      {-1234.5, "Currency", "-€ 1.234,50"}, {1234.567, "Fixed", "1234,57"}, {0.5, "fixed", "0,50"},
      {1234.567, "Standard", "1.234,57"}, {0.1234, "Percent", "12,34%"}, {12345, "Scientific", "1,23E+04"},
      {true, "Yes/No", "Sì"}, {0, "Yes/No", "No"}, {-1, "true/false", "Vero"}, {false, "True/False", "Falso"},
      {2.5, "On/Off", "Attivato"}, {0, "on/off", "Disattivato"}, {"forse", "Yes/No", "forse"},
      {12.5, "", "12,5"}, {5, "\\x\"y\"", "xy"},
  };
  // clang-format on
  for (const auto& test : cases) EXPECT_EQ(format(test.value, test.pattern), test.expected) << test.pattern;
}

TEST(Format, TextPatterns) {
  const struct {
    Variant value;
    const char* pattern;
    const char* expected;
    // clang-format off
  } cases[] = {
      {"abc", "@@@@@", "  abc"}, {"abc", "!@@@@@", "abc  "}, {"abc", "&&&&&", "abc"}, {"àbc", ">", "ÀBC"},
      {"ABC", "<@@@@", " abc"}, {"12345678901", "@@@-@@@-@@@@@", "123-456-78901"},
      {"1234567", "@@@-@@@@", "123-4567"}, {"123456789", "@@@-@@@@", "12345-6789"},
      {"123456789", "!@@@-@@@@", "123-456789"}, {"", "@;\"vuoto\"", "vuoto"}, {Null{}, "@;\"vuoto\"", "vuoto"},
      {"x", "@;\"vuoto\"", "x"}, {Null{}, "@", ""}, {123, "@@@@@", "  123"}, {1.5, ">", "1,5"},
  };
  // clang-format on
  for (const auto& test : cases) EXPECT_EQ(format(test.value, test.pattern), test.expected) << test.pattern;
}

}  // namespace
}  // namespace runtime
