// Literals, in the form that the image keeps their type in.
#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "jet/image/decimal.h"
#include "jet/sql/binder/binder.h"
#include "jet/sql/decimal.h"
#include "jet/sql/parser/token.h"
#include "jet/sql/syntax_error.h"

namespace jet::sql {

namespace {

using bound::Expression;
using bound::Literal;

/// "&HFF", "&O17": 16 bits, or 32 with more digits or "&" behind them; the highest is the sign.
Expression basedNumber(std::string_view text, std::size_t position) {
  const bool isLong = text.ends_with('&');
  if (isLong) text.remove_suffix(1);
  std::uint32_t bits = 0;
  const std::string_view digits = text.substr(2);
  const int base = text[1] == 'H' || text[1] == 'h' ? 16 : 8;
  if (std::from_chars(digits.data(), digits.data() + digits.size(), bits, base).ec != std::errc{})
    throw SyntaxError(runtime::Overflow, "Overflow: " + std::string(text), position);
  const bool narrow = !isLong && bits <= UINT16_MAX;
  return {Type::Long,
          Literal{narrow ? std::int64_t{static_cast<std::int16_t>(bits)} : static_cast<std::int32_t>(bits)}};
}

/// The digits as a Decimal has them, where a Double would lose some and a Decimal does not; otherwise empty.
std::string exactDigits(const std::string& digits) {
  const auto count = std::ranges::count_if(digits, [](char c) { return c >= '0' && c <= '9'; });
  if (count <= std::numeric_limits<double>::digits10) return {};
  try {
    return image::decimalText(parseDecimal(digits));
  } catch (const runtime::Error&) {
    return {};  // an exponent, or too many digits
  }
}

/// A Long where the digits are whole and fit, otherwise a Double.
Expression number(const std::string& digits, std::size_t position) {
  const char* end = digits.data() + digits.size();
  std::int32_t whole = 0;
  const auto parsed = std::from_chars(digits.data(), end, whole);
  if (parsed.ec == std::errc{} && parsed.ptr == end) return {Type::Long, Literal{std::int64_t{whole}}};
  double value = 0;
  if (std::from_chars(digits.data(), end, value).ec != std::errc{}) {
    throw SyntaxError(runtime::Overflow, "Overflow: " + digits, position);
  }
  return {Type::Double, Literal{value, exactDigits(digits)}};
}

}  // namespace

Expression Binder::bind(const tree::Literal& node, const Place& place) {
  using Kind = tree::Literal::Kind;
  switch (node.kind) {
    case Kind::Null:
      return {Type::Null, Literal{}};
    case Kind::Boolean:
      return {Type::Boolean, Literal{std::int64_t{node.text == "True" ? -1 : 0}}};
    case Kind::Number:
      if (node.text.starts_with('&')) return basedNumber(node.text, place.position);
      return number(node.text, place.position);
    case Kind::Date:
      return {Type::Date, Literal{dateValue(node.text)}};
    case Kind::Text:
      break;
  }
  return {Type::Text, Literal{node.text}};
}

}  // namespace jet::sql
