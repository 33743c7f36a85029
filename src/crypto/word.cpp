// 32-bit words in signed numbers: additions, shifts and rotations as the suite calls them.
#include <algorithm>
#include <cmath>
#include <functional>

#include "crypto/EncUtils.h"
#include "crypto/hexadecimal.h"
#include "crypto/word_bits.h"
#include "runtime/error.h"

namespace crypto {

namespace {

constexpr double wordValues = 4294967296.0, byteValues = 256.0;

template <class Operation>
Word byteByByte(const Word& a, const Word& b, Operation operation) {
  Word result{};
  std::transform(a.begin(), a.end(), b.begin(), result.begin(),
                 [&](unsigned x, unsigned y) { return static_cast<std::uint8_t>(operation(x, y)); });
  return result;
}

/// A double that the language has, which knows neither infinity nor what is no number.
double checked(double value) {
  if (!std::isfinite(value)) throw languageError(runtime::Overflow);
  return value;
}

}  // namespace

Word EncUtils::AndW(const Word& a, const Word& b) {
  return byteByByte(a, b, std::bit_and<>());
}

Word EncUtils::OrW(const Word& a, const Word& b) {
  return byteByByte(a, b, std::bit_or<>());
}

Word EncUtils::XorW(const Word& a, const Word& b) {
  return byteByByte(a, b, std::bit_xor<>());
}

Word EncUtils::NotW(const Word& a) {
  return toWord(~toBits(a));
}

Word EncUtils::AddW(const Word& a, const Word& b) {
  return toWord(toBits(a) + toBits(b));
}

Word EncUtils::CircShiftLeftW(const Word& a, std::int32_t bits) {
  const double value = WordToDouble(a);
  const double left = checked(std::exp2(bits)), right = checked(std::exp2(32.0 - bits));
  return OrW(DoubleToWord(checked(value * left)), DoubleToWord(checked(value / right)));
}

std::string EncUtils::WordToHex(const Word& a) {
  return hexadecimal(std::as_bytes(std::span(a)));
}

Word EncUtils::HexToWord(std::string_view esadecimale) {
  return DoubleToWord(runtime::Variant("&h" + std::string(esadecimale)).toDouble());
}

Word EncUtils::DoubleToWord(double valore) {
  Word word{};
  double range = wordValues;
  for (std::uint8_t& byte : word) {
    const double digit = std::floor(DMod(valore, range) / (range / byteValues));
    if (digit >= byteValues) throw languageError(runtime::Overflow);
    byte = static_cast<std::uint8_t>(digit);
    range /= byteValues;
  }
  return word;
}

double EncUtils::WordToDouble(const Word& a) {
  return toBits(a);
}

double EncUtils::DMod(double valore, double divisore) {
  if (divisore == 0) throw languageError(valore == 0 ? runtime::Overflow : runtime::DivisionByZero);
  const double rest = checked(valore - divisore * std::floor(checked(valore / divisore)));
  return rest < 0 ? rest + divisore : rest;
}

}  // namespace crypto
