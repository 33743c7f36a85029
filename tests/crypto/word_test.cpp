#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "crypto/EncUtils.h"
#include "crypto/shifts.h"
#include "runtime/shown.h"
#include "runtime/variant.h"
#include "support/case_file.h"

namespace crypto {
namespace {

using E = EncUtils;

TEST(Words, CalculateWithThirtyTwoBits) {
  const auto word = [](const std::string& digits) { return E::HexToWord(digits); };
  const auto number = [](double value) { return runtime::Variant(value).toText(); };
  using Fields = std::vector<std::string>;
  const std::map<std::string, std::function<std::string(const Fields&)>> functions = {
      {"AndW", [&](const Fields& f) { return E::WordToHex(E::AndW(word(f[1]), word(f[2]))); }},
      {"OrW", [&](const Fields& f) { return E::WordToHex(E::OrW(word(f[1]), word(f[2]))); }},
      {"XorW", [&](const Fields& f) { return E::WordToHex(E::XorW(word(f[1]), word(f[2]))); }},
      {"NotW", [&](const Fields& f) { return E::WordToHex(E::NotW(word(f[1]))); }},
      {"AddW", [&](const Fields& f) { return E::WordToHex(E::AddW(word(f[1]), word(f[2]))); }},
      {"CircShiftLeftW",
       [&](const Fields& f) { return E::WordToHex(E::CircShiftLeftW(word(f[1]), std::stoi(f[2]))); }},
      {"HexToWord", [&](const Fields& f) { return E::WordToHex(word(f[1])); }},
      {"DoubleToWord", [&](const Fields& f) { return E::WordToHex(E::DoubleToWord(std::stod(f[1]))); }},
      {"WordToDouble", [&](const Fields& f) { return number(E::WordToDouble(word(f[1]))); }},
      {"DMod", [&](const Fields& f) { return number(E::DMod(std::stod(f[1]), std::stod(f[2]))); }},
  };
  support::CaseFile(CASES "/words.cases").expectResults([&](const support::Case& each) {
    const Fields fields = support::fieldsOf(each.statement);
    return runtime::shown([&] { return functions.at(fields[0])(fields); });
  });
  EXPECT_EQ(E::HexToWord("12345678"), (Word{0x12, 0x34, 0x56, 0x78}));
  EXPECT_GE(E::DMod(0.7, 0.01), 0) << "0.7 / 0.01 is rounded up to 70, and 70 * 0.01 above 0.7";
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
