// Decimal numbers read, written, rounded and compared as digits.
#include "jet/image/decimal.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "jet/file/errors.h"
#include "runtime/error.h"

namespace jet::image {

namespace {

__extension__ using Magnitude = unsigned __int128;

[[noreturn]] void notANumber(std::string_view text) {
  throw errorOf(ConversionFailed, source::Field, std::string(text));
}

/// Splits "-12.5e3" into digits and the power of ten of the last one.
struct Digits {
  bool negative = false;
  std::string digits;
  int exponent = 0;
};

Digits readDigits(std::string_view text) {
  Digits result;
  std::size_t at = 0;
  if (at < text.size() && (text[at] == '-' || text[at] == '+')) result.negative = text[at++] == '-';
  bool point = false;
  for (; at < text.size(); ++at) {
    if (text[at] >= '0' && text[at] <= '9') {
      result.digits += text[at];
      if (point) --result.exponent;
    } else if (text[at] == '.' && !point) {
      point = true;
    } else {
      break;
    }
  }
  if (result.digits.empty()) notANumber(text);
  if (at < text.size()) {
    if (text[at] != 'e' && text[at] != 'E') notANumber(text);
    if (++at < text.size() && text[at] == '+') ++at;
    int power = 0;
    const auto [end, error] = std::from_chars(text.data() + at, text.data() + text.size(), power);
    if (error != std::errc() || end != text.data() + text.size() || std::abs(power) > 400) notANumber(text);
    result.exponent += power;
  }
  return result;
}

/// True if the digits cut off behind `kept` round the last kept one up, halves to even.
bool roundsUp(const std::string& digits, std::size_t kept) {
  const int last = kept > 0 ? digits[kept - 1] - '0' : 0;
  if (digits[kept] != '5') return digits[kept] > '5';
  const bool exactHalf =
      std::all_of(digits.begin() + kept + 1, digits.end(), [](char c) { return c == '0'; });
  return !exactHalf || last % 2 == 1;
}

/// The digits that count, before and behind the point.
struct Parts {
  bool negative;
  std::string_view whole, fraction;
};

Parts partsOf(std::string_view text) {
  const bool negative = text.starts_with('-');
  if (negative) text.remove_prefix(1);
  const auto point = std::min(text.find('.'), text.size());
  std::string_view whole = text.substr(0, point), fraction = text.substr(std::min(point + 1, text.size()));
  whole.remove_prefix(std::min(whole.find_first_not_of('0'), whole.size()));
  fraction = fraction.substr(0, fraction.find_last_not_of('0') + 1);
  return {negative && !(whole.empty() && fraction.empty()), whole, fraction};
}

}  // namespace

int compareDecimals(std::string_view a, std::string_view b) {
  const Parts left = partsOf(a), right = partsOf(b);
  if (left.negative != right.negative) return left.negative ? -1 : 1;
  int order = left.whole.size() < right.whole.size() ? -1 : left.whole.size() > right.whole.size();
  if (order == 0) order = left.whole.compare(right.whole);
  if (order == 0) order = left.fraction.compare(right.fraction);
  return left.negative ? -order : order;
}

std::string decimalText(const runtime::Decimal& value) {
  std::string digits;
  for (Magnitude rest = value.magnitude; rest != 0; rest /= 10)
    digits += static_cast<char>('0' + int(rest % 10));
  while (digits.size() <= value.scale) digits += '0';
  std::reverse(digits.begin(), digits.end());
  if (value.scale > 0) digits.insert(digits.size() - value.scale, 1, '.');
  return (value.negative && value.magnitude != 0 ? "-" : "") + digits;
}

runtime::Decimal parseDecimal(std::string_view text, std::uint8_t scale, int mostDigits) {
  Digits parts = readDigits(text);
  // The digits that count end at 10^-scale.
  const long wanted = static_cast<long>(parts.digits.size()) + parts.exponent + scale;
  bool up = false;
  if (wanted < 0) {
    parts.digits = "0";
  } else if (static_cast<std::size_t>(wanted) < parts.digits.size()) {
    up = roundsUp(parts.digits, static_cast<std::size_t>(wanted));
    parts.digits.resize(static_cast<std::size_t>(wanted));
  } else {
    const auto first = parts.digits.find_first_not_of('0');
    if (first == std::string::npos)
      parts.digits = "0";
    else if (wanted - static_cast<long>(first) > mostDigits)
      throw runtime::languageError(runtime::Overflow);
    else
      parts.digits.resize(static_cast<std::size_t>(wanted), '0');
  }
  runtime::Decimal result{.negative = parts.negative, .scale = scale, .magnitude = 0};
  const auto significant = parts.digits.find_first_not_of('0');
  if (significant != std::string::npos &&
      parts.digits.size() - significant > static_cast<std::size_t>(mostDigits))
    throw runtime::languageError(runtime::Overflow);
  for (const char c : parts.digits)
    if (__builtin_mul_overflow(result.magnitude, Magnitude{10}, &result.magnitude) ||
        __builtin_add_overflow(result.magnitude, static_cast<Magnitude>(c - '0'), &result.magnitude))
      throw runtime::languageError(runtime::Overflow);
  if (up) result.magnitude += 1;
  return result;
}

// The magnitude is four words, the most significant first, each little endian.
runtime::Decimal decimalFromBytes(std::span<const std::byte> bytes, std::uint8_t scale) {
  runtime::Decimal result{.negative = bytes[0] != std::byte{0}, .scale = scale, .magnitude = 0};
  for (std::size_t word = 0; word < 4; ++word)
    for (std::size_t byte = 4; byte-- > 0;)
      result.magnitude = result.magnitude << 8 | std::to_integer<unsigned>(bytes[1 + word * 4 + byte]);
  return result;
}

void decimalToBytes(const runtime::Decimal& value, std::span<std::byte, 17> out) {
  out[0] = value.negative && value.magnitude != 0 ? std::byte{0x80} : std::byte{0};
  Magnitude rest = value.magnitude;
  for (std::size_t word = 4; word-- > 0;)
    for (std::size_t byte = 0; byte < 4; ++byte, rest >>= 8)
      out[1 + word * 4 + byte] = static_cast<std::byte>(static_cast<unsigned>(rest & 0xFF));
}

}  // namespace jet::image
