#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

#include "crypto/EncUtils.h"
#include "crypto/shifts.h"
#include "runtime/shown.h"

namespace crypto {
namespace {

using E = EncUtils;

TEST(Words, CalculateWithThirtyTwoBits) {
  const Word high = E::HexToWord("80000001"), mask = E::HexToWord("0FF0F00F"), all = E::HexToWord("FFFFFFFF"),
             one = E::HexToWord("1");
  const double infinity = std::numeric_limits<double>::infinity();
  const struct {
    std::function<Word()> operation;
    std::string expected;
  } cases[] = {
      // clang-format off
      {[&] { return E::AndW(high, mask); }, "00000001"},
      {[&] { return E::OrW(high, mask); }, "8FF0F00F"},
      {[&] { return E::XorW(high, mask); }, "8FF0F00E"},
      {[&] { return E::NotW(mask); }, "F00F0FF0"},
      {[&] { return E::AddW(all, one); }, "00000000"},
      {[&] { return E::AddW(E::HexToWord("00FF00FF"), one); }, "00FF0100"},
      {[&] { return E::AddW(all, all); }, "FFFFFFFE"},

      {[&] { return E::CircShiftLeftW(one, 30); }, "40000000"},
      {[&] { return E::CircShiftLeftW(E::HexToWord("80000000"), 5); }, "00000010"},
      {[&] { return E::CircShiftLeftW(E::HexToWord("12345678"), 8); }, "34567812"},
      {[&] { return E::CircShiftLeftW(high, 0); }, "80000001"},
      {[&] { return E::CircShiftLeftW(high, 32); }, "80000001"},
      {[&] { return E::CircShiftLeftW(high, 33); }, "00000002"},
      {[&] { return E::CircShiftLeftW(high, -1); }, "40000000"},
      {[&] { return E::CircShiftLeftW(one, 1023); }, "00000000"},
      {[&] { return E::CircShiftLeftW(one, 1024); }, "error 6"},
      {[&] { return E::CircShiftLeftW(high, 1000); }, "error 6"},
      {[&] { return E::CircShiftLeftW(one, -992); }, "error 6"},

      {[&] { return E::HexToWord("EFCDAB89"); }, "EFCDAB89"},
      {[&] { return E::HexToWord("7fffffff"); }, "7FFFFFFF"},
      {[&] { return E::HexToWord("80000000"); }, "80000000"},
      {[&] { return E::HexToWord("8000"); }, "FFFF8000"},
      {[&] { return E::HexToWord("18000"); }, "00018000"},
      {[&] { return E::HexToWord("100000000"); }, "error 6"},
      {[&] { return E::HexToWord(""); }, "error 13"},
      {[&] { return E::HexToWord("G"); }, "error 13"},

      {[&] { return E::DoubleToWord(-1); }, "FFFFFFFF"},
      {[&] { return E::DoubleToWord(4294967296.0 + 258.9); }, "00000102"},
      {[&] { return E::DoubleToWord(-0.5); }, "FFFFFFFF"},
      {[&] { return E::DoubleToWord(1e300); }, "00000000"},
      {[&] { return E::DoubleToWord(-1e-20); }, "error 6"},
      {[&] { return E::DoubleToWord(infinity); }, "error 6"},
      // clang-format on
  };
  for (const auto& test : cases)
    EXPECT_EQ(runtime::shown([&] { return E::WordToHex(test.operation()); }), test.expected);
  EXPECT_EQ(E::HexToWord("12345678"), (Word{0x12, 0x34, 0x56, 0x78}));
  EXPECT_EQ(E::WordToDouble(all), 4294967295.0);
}

TEST(Words, HaveTheModulusOfDoublesBetweenZeroAndTheDivisor) {
  EXPECT_EQ(E::DMod(-1, 256), 255);
  EXPECT_EQ(E::DMod(256, 256), 0);
  EXPECT_EQ(E::DMod(-512.25, 256), 255.75);
  EXPECT_EQ(E::DMod(7.5, 2), 1.5);
  EXPECT_EQ(E::DMod(-1, 3), 2);
  EXPECT_GE(E::DMod(0.7, 0.01), 0) << "0.7 / 0.01 is rounded up to 70, and 70 * 0.01 above 0.7";
  const auto shown = [](double value) {
    return runtime::shown([&] { return std::to_string(E::DMod(value, 0)); });
  };
  EXPECT_EQ(shown(1), "error 11");
  EXPECT_EQ(shown(0), "error 6");
}

TEST(Words, HaveTheFunctionOfEachRound) {
  const Word b{0xF0, 0xFF, 0x00, 0x0F}, c{0xCC, 0x0F, 0xFF, 0x33}, d{0xAA, 0x55, 0x0F, 0x55};
  const struct {
    std::int32_t round;
    std::string expected;
  } cases[] = {{0, "CA0F0F53"},  {19, "CA0F0F53"}, {20, "96A5F069"}, {39, "96A5F069"}, {40, "E85F0F17"},
               {59, "E85F0F17"}, {60, "96A5F069"}, {79, "96A5F069"}, {90, "96A5F069"}};
  for (const auto& test : cases)
    EXPECT_EQ(E::WordToHex(E::f(test.round, b, c, d)), test.expected) << test.round;
}

TEST(Shifts, RefuseACountOutsideTheBits) {
  const auto word = [](std::uint32_t value, int count, bool isLeft) {
    return runtime::shown(
        [&] { return std::to_string(isLeft ? shiftLeft(value, count) : shiftRight(value, count)); });
  };
  const auto byte = [](std::uint8_t value, int count, bool isLeft) {
    return runtime::shown(
        [&] { return std::to_string(isLeft ? shiftLeft(value, count) : shiftRight(value, count)); });
  };
  EXPECT_EQ(word(0x80000001, 0, true), "2147483649");
  EXPECT_EQ(word(3, 31, true), "2147483648");
  EXPECT_EQ(word(0xC0000000, 31, false), "1");
  EXPECT_EQ(word(0x80000000, 4, false), "134217728");
  EXPECT_EQ(byte(0x83, 7, true), "128");
  EXPECT_EQ(byte(0xC0, 7, false), "1");
  for (const bool isLeft : {true, false}) {
    for (const int count : {-1, 32, 64}) EXPECT_EQ(word(1, count, isLeft), "error 6") << count;
    for (const int count : {-1, 8}) EXPECT_EQ(byte(1, count, isLeft), "error 6") << count;
  }
}

}  // namespace
}  // namespace crypto
