#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "crypto/EncUtils.h"
#include "crypto/shifts.h"
#include "runtime/variant.h"
#include "support/case_file.h"
#include "support/errors.h"

namespace crypto {
namespace {

using E = EncUtils;
using Fields = std::vector<std::string>;

std::uint32_t bits(const Fields& fields) {
  return static_cast<std::uint32_t>(std::stoul(fields[1], nullptr, 16));
}

TEST(Words, CalculateWithThirtyTwoBits) {
  const auto word = [](const std::string& digits) { return E::HexToWord(digits); };
  const auto number = [](double value) { return runtime::Variant(value).toText(); };
  // clang-format off
  const std::map<std::string, std::function<std::string(const Fields&)>> functions = {
      {"AndW", [&](auto& f) { return E::WordToHex(E::AndW(word(f[1]), word(f[2]))); }},
      {"OrW", [&](auto& f) { return E::WordToHex(E::OrW(word(f[1]), word(f[2]))); }},
      {"XorW", [&](auto& f) { return E::WordToHex(E::XorW(word(f[1]), word(f[2]))); }},
      {"NotW", [&](auto& f) { return E::WordToHex(E::NotW(word(f[1]))); }},
      {"AddW", [&](auto& f) { return E::WordToHex(E::AddW(word(f[1]), word(f[2]))); }},
      {"CircShiftLeftW", [&](auto& f) { return E::WordToHex(E::CircShiftLeftW(word(f[1]), std::stoi(f[2]))); }},
      {"HexToWord", [&](auto& f) { return E::WordToHex(word(f[1])); }},
      {"DoubleToWord", [&](auto& f) { return E::WordToHex(E::DoubleToWord(std::stod(f[1]))); }},
      {"WordToDouble", [&](auto& f) { return number(E::WordToDouble(word(f[1]))); }},
      // The rounds up to 79 are those of the digests.
      {"f", [&](auto& f) { return E::WordToHex(E::f(std::stoi(f[1]), word(f[2]), word(f[3]), word(f[4]))); }},
      {"shift word left", [](auto& f) { return std::to_string(shiftLeft(bits(f), std::stoi(f[2]))); }},
      {"shift word right", [](auto& f) { return std::to_string(shiftRight(bits(f), std::stoi(f[2]))); }},
      {"shift byte left", [](auto& f) {
         return std::to_string(shiftLeft(static_cast<std::uint8_t>(bits(f)), std::stoi(f[2]))); }},
      {"shift byte right", [](auto& f) {
         return std::to_string(shiftRight(static_cast<std::uint8_t>(bits(f)), std::stoi(f[2]))); }},
      {"DMod", [&](auto& f) { return number(E::DMod(std::stod(f[1]), std::stod(f[2]))); }},
  };
  // clang-format on
  support::CaseFile(CASES "/words.cases").expectResults([&](const support::Case& each) {
    const Fields fields = support::fieldsOf(each.statement);
    return support::shown([&] { return functions.at(fields[0])(fields); });
  });
  EXPECT_EQ(E::HexToWord("12345678"), (Word{0x12, 0x34, 0x56, 0x78}));
  EXPECT_GE(E::DMod(0.7, 0.01), 0) << "0.7 / 0.01 is rounded up to 70, and 70 * 0.01 above 0.7";
}

}  // namespace
}  // namespace crypto
