#include "runtime/numbers.h"

#include <gtest/gtest.h>

#include "runtime/error.h"

namespace runtime {
namespace {

TEST(Val, ReadsTheLeadingNumber) {
  const struct {
    const char* text;
    double expected;
    // clang-format off
  } cases[] = {
      {"12abc", 12}, {"parola", 0}, {"", 0}, {"2.5", 2.5}, {"2,5", 2}, {" 1615 198th Street", 1615198},
      {"-3", -3}, {"- 3", -3}, {"+3", 3}, {"--3", 0}, {".5", 0.5}, {"5.", 5}, {".", 0}, {"1.2.3", 1.2},
      {"1E3", 1000}, {"1d3", 1000}, {"1e-2x", 0.01}, {"1E", 1}, {"1E+", 1}, {"E5", 0}, {"\t1\n2", 12},
      {"&H1F", 31}, {"&hff", 255}, {"&HDE", 222}, {"&HFFFF", -1}, {"&HFFFF&", 65535}, {"&HFFFFFFFF", -1},
      {"&O17", 15}, {"-&H10", -16}, {"&", 0}, {"&H", 0}, {"&Z1", 0}, {"&O18", 1}, {"1e-400", 0},
      {"0.0000000000001e-999999999999", 0}, {"0e999999999999", 0}, {"inf", 0}, {"nan", 0},
  };
  // clang-format on
  for (const auto& test : cases) EXPECT_EQ(val(test.text), test.expected) << test.text;
  for (const char* tooLarge : {"1e400", "-1E309", "1000000e303", "1e99999999999999999999", "&HFFFFFFFFF"})
    EXPECT_THROW(val(tooLarge), Error) << tooLarge;
}

TEST(Str, LeavesABlankForTheSign) {
  EXPECT_EQ(str(5), " 5");
  EXPECT_EQ(str(-5), "-5");
  EXPECT_EQ(str(0), " 0");
  EXPECT_EQ(str(2.5), " 2.5");
  EXPECT_EQ(str(0.5), " .5");
  EXPECT_EQ(str(-0.25), "-.25");
  EXPECT_EQ(str(0.0), " 0");
  EXPECT_EQ(str(1.5e20), " 1.5E+20");
  for (const double value : {1.5, -0.001, 123456.789, 1e-20, -7e30}) EXPECT_EQ(val(str(value)), value);
}

}  // namespace
}  // namespace runtime
