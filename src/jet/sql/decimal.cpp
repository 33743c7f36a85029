// Sums, products and rounding of decimal numbers, exact in every digit.
#include "jet/sql/decimal.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "runtime/error.h"
#include "runtime/numbers.h"

namespace jet::sql {

namespace {

using runtime::Decimal;
__extension__ using Wide = unsigned __int128;

constexpr int MostDigits = 28;

Wide powerOfTen(int exponent) {
  Wide power = 1;
  while (exponent-- > 0) power *= 10;
  return power;
}

/// Zeros behind the last digit go, then the number must fit.
Decimal checked(Decimal number) {
  while (number.scale > 0 && number.magnitude % 10 == 0) number.magnitude /= 10, --number.scale;
  if (number.magnitude >= powerOfTen(MostDigits) || number.scale > MostDigits) {
    throw runtime::languageError(runtime::Overflow);
  }
  if (number.magnitude == 0) number.negative = false;
  return number;
}

/// The magnitude with `scale` digits behind the point.
Wide rescaled(const Decimal& number, int scale) {
  const int zeros = scale - number.scale;
  if (number.magnitude > powerOfTen(38 - zeros)) throw runtime::languageError(runtime::Overflow);
  return number.magnitude * powerOfTen(zeros);
}

constexpr int DoubleDigits = 15, SingleDigits = 7;  // that tell something

Decimal fromDouble(double value, int digitsTold) {
  const double magnitude = std::abs(value);
  if (!(magnitude < 1e28)) throw runtime::languageError(runtime::Overflow);
  const int wholeDigits = magnitude >= 1 ? static_cast<int>(std::log10(magnitude)) + 1 : 1;
  char digits[64];
  std::snprintf(digits, sizeof digits, "%.*f", std::max(0, digitsTold - wholeDigits), value);
  return parseDecimal(digits);
}

}  // namespace

Decimal toDecimal(const runtime::Variant& value) {
  if (const auto* number = std::get_if<Decimal>(&value.value())) return *number;
  if (const auto* money = std::get_if<runtime::Currency>(&value.value())) {
    const std::int64_t amount = money->tenThousandths;
    const auto bits = static_cast<std::uint64_t>(amount);  // the lowest amount has no opposite
    const std::uint64_t magnitude = amount < 0 ? 0 - bits : bits;
    return checked({amount < 0, 4, magnitude});
  }
  if (value.isText()) {
    const auto plain = runtime::plainNumber(value.toText());
    if (!plain) throw runtime::languageError(runtime::TypeMismatch);
    const bool exponent = plain->find_first_of("eE") != std::string::npos;
    return exponent ? fromDouble(runtime::plainToDouble(*plain), DoubleDigits) : parseDecimal(*plain);
  }
  return fromDouble(value.toDouble(),
                    value.kind() == runtime::Variant::Kind::Single ? SingleDigits : DoubleDigits);
}

Decimal parseDecimal(std::string_view digits) {
  Decimal number;
  if (digits.starts_with('-')) number.negative = true, digits.remove_prefix(1);
  bool point = false, any = false;
  for (char c : digits) {
    const bool digit = c >= '0' && c <= '9';
    if (!digit && (c != '.' || point)) throw runtime::languageError(runtime::TypeMismatch);
    if (number.magnitude >= powerOfTen(37)) throw runtime::languageError(runtime::Overflow);
    if (digit) {
      number.magnitude = number.magnitude * 10 + static_cast<unsigned>(c - '0');
      number.scale = static_cast<std::uint8_t>(number.scale + point);
    }
    any |= digit;
    point |= !digit;
  }
  if (!any) throw runtime::languageError(runtime::TypeMismatch);
  return checked(number);
}

Decimal addDecimals(const Decimal& a, const Decimal& b) {
  const int scale = std::max(a.scale, b.scale);
  const Wide left = rescaled(a, scale), right = rescaled(b, scale);
  Decimal sum{a.negative, static_cast<std::uint8_t>(scale), left + right};
  if (a.negative != b.negative) {
    sum.magnitude = left > right ? left - right : right - left;
    sum.negative = left > right ? a.negative : b.negative;
  }
  return checked(sum);
}

Decimal multiplyDecimals(const Decimal& a, const Decimal& b) {
  if (a.magnitude != 0 && b.magnitude > powerOfTen(38) / a.magnitude)
    throw runtime::languageError(runtime::Overflow);
  return checked(
      {a.negative != b.negative, static_cast<std::uint8_t>(a.scale + b.scale), a.magnitude * b.magnitude});
}

Decimal roundDecimal(const Decimal& number, int decimals, Rounding rounding) {
  if (decimals >= number.scale) return number;
  const Wide unit = powerOfTen(number.scale - decimals), rest = number.magnitude % unit;
  Decimal result{number.negative, static_cast<std::uint8_t>(decimals), number.magnitude / unit};
  const bool nearer = rest > unit / 2 || (rest == unit / 2 && result.magnitude % 2 != 0);
  const bool away =
      rounding == Rounding::HalfEven ? nearer : rounding == Rounding::Floor && number.negative && rest != 0;
  if (away) ++result.magnitude;
  return checked(result);
}

}  // namespace jet::sql
