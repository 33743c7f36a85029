// Values as the shell prints them.
#include "apps/jetsql/values.h"

#include <algorithm>
#include <charconv>
#include <type_traits>

#include "runtime/date.h"
#include "runtime/format.h"

namespace jetsql {
namespace {

/// Shortest digits that read back as the same number.
template <typename Number>
std::string shortest(Number value) {
  char digits[40];
  const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
  return {digits, end};
}

/// A date that no calendar has stays the number of its days.
std::string isoText(runtime::Date date) {
  if (!runtime::isInCalendar(date)) return shortest(date.days);
  return runtime::format(date, "yyyy-mm-dd hh:nn:ss");
}

std::string hexadecimal(const runtime::Bytes& bytes) {
  static constexpr char digits[] = "0123456789ABCDEF";
  std::string text;
  for (const auto byte : bytes) {
    text += digits[std::to_integer<unsigned>(byte) >> 4];
    text += digits[std::to_integer<unsigned>(byte) & 15];
  }
  return text;
}

struct PlainText {
  std::string operator()(runtime::Empty) const { return {}; }
  std::string operator()(runtime::Null) const { return {}; }
  std::string operator()(bool value) const { return value ? "-1" : "0"; }
  std::string operator()(runtime::Currency value) const { return withPoint(value); }
  std::string operator()(const runtime::Decimal& value) const { return withPoint(value); }
  std::string operator()(runtime::Date value) const { return isoText(value); }
  std::string operator()(const std::string& value) const { return value; }
  std::string operator()(const runtime::Bytes& value) const { return hexadecimal(value); }
  template <typename Number>
  requires std::is_arithmetic_v<Number> std::string operator()(Number value) const { return shortest(value); }

 private:
  static std::string withPoint(const runtime::Variant& value) {
    std::string text = value.toText();
    std::replace(text.begin(), text.end(), ',', '.');
    return text;
  }
};

}  // namespace

std::string plainText(const runtime::Variant& value) {
  return std::visit(PlainText{}, value.value());
}

std::string escaped(const std::string& text) {
  std::string line;
  for (const char c : text) {
    switch (c) {
      case '\\':
        line += "\\\\";
        break;
      case '\t':
        line += "\\t";
        break;
      case '\n':
        line += "\\n";
        break;
      case '\r':
        line += "\\r";
        break;
      default:
        line += c;
    }
  }
  return line;
}

}  // namespace jetsql
