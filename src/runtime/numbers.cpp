// Numbers as texts and texts as numbers, and the language's rounding.
#include "runtime/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "runtime/error.h"
#include "runtime/italian.h"
#include "runtime/text.h"

namespace runtime {

namespace {

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}
bool isBlank(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}
/// Reads the digits after "&H" or "&O" (`prefix`: h or o). Up to 16 bits of hexadecimal or octal digits are a
/// signed 16-bit number and up to 32 a signed 32-bit one, unless "&" closes them.
std::optional<double> parseRadix(char prefix, std::string_view digits, std::size_t& used) {
  const int radix = prefix == 'h' ? 16 : prefix == 'o' ? 8 : 0;
  if (radix == 0) return std::nullopt;
  std::uint64_t value = 0;
  const auto [end, failure] = std::from_chars(digits.data(), digits.data() + digits.size(), value, radix);
  if (failure == std::errc::invalid_argument) return std::nullopt;
  if (failure != std::errc{} || value > std::numeric_limits<std::uint32_t>::max())
    throw languageError(Overflow);
  used = static_cast<std::size_t>(end - digits.data());
  const bool isLong = used < digits.size() && digits[used] == '&';
  if (isLong) ++used;
  if (value <= 0xFFFF && !isLong) return static_cast<std::int16_t>(value);
  return static_cast<std::int32_t>(value);
}

/// Length of the leading unsigned number "digits[.digits][e[sign]digits]" in `text`; 0 if there is none.
std::size_t numberLength(std::string_view text) {
  std::size_t at = 0, digits = 0;
  while (at < text.size() && isDigit(text[at])) ++at, ++digits;
  if (at < text.size() && text[at] == '.') {
    ++at;
    while (at < text.size() && isDigit(text[at])) ++at, ++digits;
  }
  if (digits == 0) return 0;
  if (at < text.size() && text[at] == 'e') {
    std::size_t exponent = at + 1;
    if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) ++exponent;
    if (exponent < text.size() && isDigit(text[exponent])) {
      at = exponent;
      while (at < text.size() && isDigit(text[at])) ++at;
    }
  }
  return at;
}

/// Power of ten of the first digit that is not zero, to tell a number too large from one too small.
long magnitude(std::string_view plain) {
  constexpr long farAway = 1'000'000'000;
  const std::size_t exponentAt = std::min(plain.find('e'), plain.size());
  const std::string_view mantissa = plain.substr(0, exponentAt);
  const auto first = static_cast<long>(mantissa.find_first_of("123456789"));
  const auto point = static_cast<long>(std::min(mantissa.find('.'), mantissa.size()));
  long exponent = 0;
  if (exponentAt < plain.size()) {
    std::string_view digits = plain.substr(exponentAt + 1);
    if (digits.starts_with('+')) digits.remove_prefix(1);
    const auto failure = std::from_chars(digits.data(), digits.data() + digits.size(), exponent).ec;
    if (failure != std::errc{}) exponent = digits.starts_with('-') ? -farAway : farAway;
  }
  return exponent + (first < point ? point - first - 1 : point - first);
}

std::string inRadix(std::uint32_t bits, int radix) {
  char buffer[16];
  char* end = std::to_chars(buffer, buffer + sizeof buffer, bits, radix).ptr;
  for (char* c = buffer; c != end; ++c)
    if (*c >= 'a') *c = static_cast<char>(*c - 'a' + 'A');
  return {buffer, end};
}

void checkDecimals(std::int64_t decimals) {
  constexpr std::int64_t mostDecimals = 22;
  if (decimals < 0 || decimals > mostDecimals) throw languageError(InvalidCall);
}

/// Sign and unsigned rest of a localized number: leading or closing sign, parentheses, euro sign, blanks.
/// Nothing if they contradict each other.
struct Stripped {
  bool negative = false;
  std::string digits;
};

std::optional<Stripped> stripMarks(std::string_view text) {
  constexpr std::string_view euro = italian::Euro;
  Stripped result;
  int signs = 0, euros = 0;
  bool open = false;
  for (;;) {  // what may stand before and after the digits, outside in
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
    if (text.size() >= 2 && text.front() == '(' && text.back() == ')' && !open) {
      open = true;
      ++signs;
      result.negative = true;
      text = text.substr(1, text.size() - 2);
    } else if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
      ++signs;
      result.negative = text.front() == '-';
      text.remove_prefix(1);
    } else if (!text.empty() && (text.back() == '-' || text.back() == '+')) {
      ++signs;
      result.negative = text.back() == '-';
      text.remove_suffix(1);
    } else if (text.starts_with(euro)) {
      ++euros;
      text.remove_prefix(euro.size());
    } else if (text.ends_with(euro)) {
      ++euros;
      text.remove_suffix(euro.size());
    } else {
      break;
    }
  }
  if (signs > 1 || euros > 1 || text.empty()) return std::nullopt;
  result.digits = text;
  return result;
}

}  // namespace

double val(std::string_view text) {
  std::string plain;
  for (const char c : text)
    if (!isBlank(c)) plain += asciiLower(c) == 'd' ? 'e' : asciiLower(c);
  const bool negative = plain.starts_with('-');
  if (negative || plain.starts_with('+')) plain.erase(0, 1);
  if (plain.size() > 1 && plain[0] == '&') {
    // The loop above must not have turned a hexadecimal D into an E: read the digits from the text itself.
    std::string digits;
    for (const char c : text.substr(text.find('&') + 1))
      if (!isBlank(c)) digits += asciiLower(c);
    std::size_t used = 0;
    const double value = parseRadix(digits[0], std::string_view(digits).substr(1), used).value_or(0);
    return negative ? -value : value;
  }
  const std::size_t length = numberLength(plain);
  if (length == 0) return 0;
  const double value = plainToDouble(plain.substr(0, length));
  return negative ? -value : value;
}

std::string str(std::int32_t value) {
  return (value < 0 ? "" : " ") + std::to_string(value);
}

std::string str(double value) {
  std::string text = numberText(value, 15, '.');
  const std::size_t first = text.starts_with('-') ? 1 : 0;
  if (text.compare(first, 2, "0.") == 0) text.erase(first, 1);
  return first == 0 ? " " + text : text;
}

std::string numberText(double value, int significant, char decimalSign) {
  const std::string sign = std::string(1, decimalSign);
  if (std::isnan(value)) return "-1" + sign + "#IND";
  if (std::isinf(value)) return (value < 0 ? "-1" : "1") + sign + "#INF";
  char buffer[40];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, std::abs(value),
                                 std::chars_format::scientific, significant - 1)
                       .ptr;
  const std::string_view scientific(buffer, static_cast<std::size_t>(end - buffer));
  const std::size_t exponentAt = scientific.find('e');
  int exponent = 0;
  const std::size_t exponentDigits = exponentAt + (scientific[exponentAt + 1] == '+' ? 2 : 1);
  std::from_chars(buffer + exponentDigits, end, exponent);
  std::string digits(scientific.substr(0, exponentAt));
  std::erase(digits, '.');
  digits.erase(digits.find_last_not_of('0') + 1);
  if (digits.empty()) return "0";

  const int count = static_cast<int>(digits.size());
  std::string text = value < 0 ? "-" : "";
  const int decimals = count - 1 - exponent;
  if (exponent >= significant || decimals > significant) {  // no room for the zeros: power of ten
    text += digits.substr(0, 1);
    if (count > 1) text += sign + digits.substr(1);
    const std::string power = std::to_string(std::abs(exponent));
    return text + (exponent < 0 ? "E-" : "E+") + (power.size() < 2 ? "0" : "") + power;
  }
  if (exponent < 0)
    return text + "0" + sign + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
  if (decimals <= 0) return text + digits + std::string(static_cast<std::size_t>(-decimals), '0');
  const auto whole = static_cast<std::size_t>(exponent + 1);
  return text + digits.substr(0, whole) + sign + digits.substr(whole);
}

std::optional<std::string> plainNumber(std::string_view text) {
  const std::optional<Stripped> stripped = stripMarks(text);
  if (!stripped) return std::nullopt;
  const std::string sign = stripped->negative ? "-" : "";
  if (stripped->digits[0] == '&' && stripped->digits.size() > 1) {
    std::size_t used = 0;
    const std::string_view digits = std::string_view(stripped->digits).substr(2);
    const std::optional<double> value = parseRadix(asciiLower(stripped->digits[1]), digits, used);
    if (!value || used != digits.size()) return std::nullopt;
    return std::to_string(static_cast<std::int64_t>(stripped->negative ? -*value : *value));
  }
  std::string plain;
  bool whole = true;
  for (const char c : stripped->digits) {
    if (c == italian::ThousandsSign && whole && !plain.empty()) continue;
    whole = whole && isDigit(c);
    plain += c == italian::DecimalSign ? '.' : c == '.' ? '?' : asciiLower(c) == 'd' ? 'e' : asciiLower(c);
  }
  if (plain.empty() || numberLength(plain) != plain.size()) return std::nullopt;
  return sign + plain;
}

double plainToDouble(const std::string& plain) {
  double value = 0;
  const auto [end, failure] = std::from_chars(plain.data(), plain.data() + plain.size(), value);
  if (failure == std::errc::result_out_of_range) {
    if (magnitude(plain) > 0) throw languageError(Overflow);
    return 0;
  }
  if (failure != std::errc{} || end != plain.data() + plain.size()) throw languageError(TypeMismatch);
  return value;
}

float toSingle(double value) {
  if (std::abs(value) > static_cast<double>(std::numeric_limits<float>::max())) throw languageError(Overflow);
  return static_cast<float>(value);
}

std::int64_t plainToInteger(const std::string& plain, int decimals) {
  if (plain.find('e') != std::string::npos)
    return roundHalfEven(plainToDouble(plain) * std::pow(10.0, decimals));
  const bool negative = plain.starts_with('-');
  std::string digits = plain.substr(negative ? 1 : 0);
  const std::size_t point = std::min(digits.find('.'), digits.size());
  if (point < digits.size()) digits.erase(point, 1);
  const std::size_t kept = point + static_cast<std::size_t>(decimals);
  if (digits.size() < kept) digits.append(kept - digits.size(), '0');

  __extension__ using Wide = __int128;
  const Wide limit = static_cast<Wide>(std::numeric_limits<std::int64_t>::max()) + (negative ? 1 : 0);
  Wide value = 0;
  for (std::size_t at = 0; at < kept; ++at) {
    value = value * 10 + (digits[at] - '0');
    if (value > limit) throw languageError(Overflow);
  }
  if (kept < digits.size()) {
    const bool more = digits.find_first_not_of('0', kept + 1) != std::string::npos;
    if (digits[kept] > '5' || (digits[kept] == '5' && (more || value % 2 != 0))) ++value;
  }
  if (value > limit) throw languageError(Overflow);
  return static_cast<std::int64_t>(negative ? -value : value);
}

std::int64_t roundHalfEven(double value) {
  constexpr double limit = 9223372036854775808.0;  // 2^63
  const double rounded = std::nearbyint(value);
  if (!(rounded >= -limit && rounded < limit)) throw languageError(Overflow);
  return static_cast<std::int64_t>(rounded);
}

double roundTo(double value, std::int64_t decimals) {
  checkDecimals(decimals);
  const double factor = std::pow(10.0, static_cast<double>(decimals)), scaled = value * factor;
  return std::isfinite(scaled) ? std::nearbyint(scaled) / factor : value;
}

std::int64_t roundTo(std::int64_t amount, int places, std::int64_t decimals) {
  checkDecimals(decimals);
  std::int64_t unit = 1;
  for (std::int64_t place = decimals; place < places; ++place) unit *= 10;
  const std::int64_t rest = amount % unit, twice = 2 * std::abs(rest);
  std::int64_t units = amount / unit;
  if (twice > unit || (twice == unit && units % 2 != 0)) units += amount < 0 ? -1 : 1;
  std::int64_t result = 0;
  if (__builtin_mul_overflow(units, unit, &result)) throw languageError(Overflow);
  return result;
}

std::string hex(std::int32_t value) {
  return inRadix(static_cast<std::uint32_t>(value), 16);
}
std::string hex(std::int16_t value) {
  return inRadix(static_cast<std::uint16_t>(value), 16);
}
std::string oct(std::int32_t value) {
  return inRadix(static_cast<std::uint32_t>(value), 8);
}
std::string oct(std::int16_t value) {
  return inRadix(static_cast<std::uint16_t>(value), 8);
}

}  // namespace runtime
