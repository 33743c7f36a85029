#include <charconv>
#include <cmath>
#include <limits>

#include "jet/sql/binder/binder.h"
#include "jet/sql/parser/token.h"
#include "jet/sql/syntax_error.h"

namespace jet::sql {

namespace {

using bound::Expression;
using bound::Literal;

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
  return {Type::Double, Literal{value}};
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
      return number(node.text, place.position);
    case Kind::Date:
      return {Type::Date, Literal{dateValue(node.text)}};
    case Kind::Text:
      break;
  }
  return {Type::Text, Literal{node.text}};
}

}  // namespace jet::sql
