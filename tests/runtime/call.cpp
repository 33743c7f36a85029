#include "call.h"

#include <cstdlib>
#include <functional>
#include <limits>
#include <map>
#include <stdexcept>

#include "runtime/date.h"
#include "runtime/date_arithmetic.h"
#include "runtime/format.h"
#include "runtime/like.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "support/errors.h"

namespace runtime {
namespace {

class Arguments {
 public:
  explicit Arguments(std::vector<Variant> values) : values_(std::move(values)) {}

  const Variant& operator[](std::size_t i) const { return values_.at(i); }
  std::string text(std::size_t i) const { return values_.at(i).toText(); }
  Date date(std::size_t i) const { return values_.at(i).toDate(); }
  bool has(std::size_t i) const { return i < values_.size(); }
  /// `otherwise`: where it is left out.
  std::int64_t whole(std::size_t i, std::int64_t otherwise = 0) const {
    return has(i) ? static_cast<std::int64_t>(values_[i].toDouble()) : otherwise;
  }
  int number(std::size_t i, int otherwise) const { return static_cast<int>(whole(i, otherwise)); }
  Compare compare(std::size_t i) const { return compareMode(whole(i)); }

 private:
  std::vector<Variant> values_;
};

Variant whole(std::int64_t value) {
  return static_cast<double>(value);
}

int byLetters(std::string_view a, std::string_view b) {
  return strComp(a, b, Compare::Text);
}

template <typename Work>
std::string inBase(const Variant& value, Work digits) {
  const auto* small = std::get_if<std::int16_t>(&value.value());
  return small ? digits(*small) : digits(value.toLong());
}

Variant rounded(const Variant& value, std::int64_t decimals) {
  if (const auto* amount = std::get_if<Currency>(&value.value()))
    return Currency{roundTo(amount->tenThousandths, 4, decimals)};
  return roundTo(value.toDouble(), decimals);
}

using Function = std::function<Variant(const Arguments&)>;

const std::map<std::string, Function, std::less<>> Functions = {
    {"AscW", [](const Arguments& a) -> Variant { return ascW(a.text(0)); }},
    {"CBool", [](const Arguments& a) -> Variant { return a[0].toBoolean(); }},
    {"CByte", [](const Arguments& a) -> Variant { return a[0].toByte(); }},
    {"CCur", [](const Arguments& a) -> Variant { return a[0].toCurrency(); }},
    {"CDate", [](const Arguments& a) -> Variant { return a[0].toDate(); }},
    {"CDbl", [](const Arguments& a) -> Variant { return a[0].toDouble(); }},
    {"CInt", [](const Arguments& a) -> Variant { return a[0].toInteger(); }},
    {"CLng", [](const Arguments& a) -> Variant { return a[0].toLong(); }},
    {"CStr", [](const Arguments& a) -> Variant { return a.text(0); }},
    {"ChrW", [](const Arguments& a) -> Variant { return chrW(a.whole(0)); }},
    {"DateAdd", [](const Arguments& a) -> Variant { return dateAdd(a.text(0), a[1].toDouble(), a.date(2)); }},
    {"DateDiff",
     [](const Arguments& a) -> Variant { return dateDiff(a.text(0), a.date(1), a.date(2), a.number(3, 1)); }},
    {"DateOf",
     [](const Arguments& a) -> Variant {
       const auto date = dateFromText(a.text(0));
       return date ? Variant(*date) : Variant("");
     }},
    {"DatePart",
     [](const Arguments& a) -> Variant {
       return datePart(a.text(0), a.date(1), a.number(2, 1), a.number(3, 1));
     }},
    {"DateSerial",
     [](const Arguments& a) -> Variant { return dateSerial(a.whole(0), a.whole(1), a.whole(2)); }},
    {"DayOf", [](const Arguments& a) -> Variant { return dayOf(a.date(0)); }},
    {"Format",
     [](const Arguments& a) -> Variant { return format(a[0], a.text(1), a.number(2, 1), a.number(3, 1)); }},
    {"Hex",
     [](const Arguments& a) -> Variant { return inBase(a[0], [](auto value) { return hex(value); }); }},
    {"InStr",
     [](const Arguments& a) -> Variant {
       return whole(inStr(a.whole(0), a.text(1), a.text(2), a.compare(3)));
     }},
    {"InStrRev",
     [](const Arguments& a) -> Variant {
       return whole(inStrRev(a.text(0), a.text(1), a.whole(2, -1), a.compare(3)));
     }},
    {"LTrim", [](const Arguments& a) -> Variant { return leftTrimmed(a.text(0)); }},
    {"Left", [](const Arguments& a) -> Variant { return left(a.text(0), a.whole(1)); }},
    {"Len",
     [](const Arguments& a) -> Variant { return whole(static_cast<std::int64_t>(length(a.text(0)))); }},
    {"Like", [](const Arguments& a) -> Variant { return isLike(a.text(0), a.text(1), byLetters); }},
    {"Mid",
     [](const Arguments& a) -> Variant {
       return a.has(2) ? mid(a.text(0), a.whole(1), a.whole(2)) : mid(a.text(0), a.whole(1));
     }},
    {"Oct",
     [](const Arguments& a) -> Variant { return inBase(a[0], [](auto value) { return oct(value); }); }},
    {"Partition",
     [](const Arguments& a) -> Variant { return partition(a.whole(0), a.whole(1), a.whole(2), a.whole(3)); }},
    {"Replace",
     [](const Arguments& a) -> Variant {
       return replace(a.text(0), a.text(1), a.text(2), a.whole(3, 1), a.whole(4, -1), a.compare(5));
     }},
    {"Right", [](const Arguments& a) -> Variant { return right(a.text(0), a.whole(1)); }},
    {"Round", [](const Arguments& a) -> Variant { return rounded(a[0], a.whole(1)); }},
    {"Space", [](const Arguments& a) -> Variant { return space(a.whole(0)); }},
    {"Str",
     [](const Arguments& a) -> Variant {
       const auto* number = std::get_if<std::int32_t>(&a[0].value());
       return number ? str(*number) : str(a[0].toDouble());
     }},
    {"StrComp", [](const Arguments& a) -> Variant { return strComp(a.text(0), a.text(1), a.compare(2)); }},
    {"StrConv", [](const Arguments& a) -> Variant { return strConv(a.text(0), a.whole(1)); }},
    {"StrReverse", [](const Arguments& a) -> Variant { return strReverse(a.text(0)); }},
    {"String", [](const Arguments& a) -> Variant { return repeated(a.whole(0), a.text(1)); }},
    {"TimeOf", [](const Arguments& a) -> Variant { return timeOf(a.date(0)); }},
    {"TimeSerial",
     [](const Arguments& a) -> Variant { return timeSerial(a.whole(0), a.whole(1), a.whole(2)); }},
    {"Trim", [](const Arguments& a) -> Variant { return trimmed(a.text(0)); }},
    {"Val", [](const Arguments& a) -> Variant { return val(a.text(0)); }},
};

const std::map<std::string, Variant, std::less<>> Constants = {
    {"Empty", {}},
    {"Null", Null{}},
    {"True", true},
    {"False", false},
    {"Bytes", Bytes{}},
    {"Infinity", std::numeric_limits<double>::infinity()},
    {"-Infinity", -std::numeric_limits<double>::infinity()},
    {"NaN", std::numeric_limits<double>::quiet_NaN()},
};

Decimal decimalOf(std::string_view digits) {
  Decimal value;
  for (const char c : digits) {
    if (c == '-') value.negative = true;
    if (c >= '0' && c <= '9') value.magnitude = value.magnitude * 10 + static_cast<unsigned>(c - '0');
  }
  const auto point = digits.find('.');
  if (point != digits.npos) value.scale = static_cast<std::uint8_t>(digits.size() - point - 1);
  return value;
}

Currency currencyOf(std::string digits) {
  if (const auto point = digits.find('.'); point != digits.npos) digits[point] = ',';
  return Variant(digits).toCurrency();
}

class Expression {
 public:
  explicit Expression(std::string_view text) : rest_(text) {}

  Variant value() {
    Variant result = operand();
    while (take(" & ")) result = result.toText() + operand().toText();
    return result;
  }
  bool atEnd() const { return rest_.empty(); }

 private:
  bool take(std::string_view mark) {
    const bool there = rest_.starts_with(mark);
    if (there) rest_.remove_prefix(mark.size());
    return there;
  }
  std::string upTo(std::size_t size) {
    const std::string part(rest_.substr(0, size));
    rest_.remove_prefix(part.size());
    return part;
  }

  Variant operand() {
    if (take("\"")) return text();
    if (take("#")) {
      const std::string date = upTo(rest_.find('#'));
      take("#");
      return dateFromText(date).value();
    }
    const auto end = rest_.find_first_not_of("-abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ");
    if (end == 0 || (end == 1 && rest_[0] == '-')) return number();
    const std::string name = upTo(end);
    return take("(") ? Functions.at(name)(arguments()) : Constants.at(name);
  }
  Arguments arguments() {
    std::vector<Variant> values;
    do values.push_back(value());
    while (take(", "));
    if (!take(")")) throw std::logic_error("no ) before: " + std::string(rest_));
    return Arguments(std::move(values));
  }
  std::string text() {
    std::string result = upTo(rest_.find('"'));
    for (take("\""); take("\""); take("\"")) result += "\"" + upTo(rest_.find('"'));
    return result;
  }
  Variant number() {
    const std::string text(rest_);
    char* stop = nullptr;
    const double value = std::strtod(text.c_str(), &stop);
    const std::string digits = upTo(static_cast<std::size_t>(stop - text.c_str()));
    if (take("@")) return currencyOf(digits);
    if (take("!")) return static_cast<float>(value);
    if (take("%")) return static_cast<std::int16_t>(value);
    if (take("b")) return static_cast<std::uint8_t>(value);
    if (take("d")) return decimalOf(digits);
    if (take("t")) return Date{value};
    const bool whole = digits.find_first_of(".eE") == digits.npos;
    if (whole && value >= INT32_MIN && value <= INT32_MAX) return static_cast<std::int32_t>(value);
    return value;
  }

  std::string_view rest_;
};

}  // namespace

std::string resultOf(std::string_view text) {
  return support::shown([&] {
    Expression expression(text);
    const Variant value = expression.value();
    if (!expression.atEnd()) throw std::logic_error("too much: " + std::string(text));
    return value.toText();
  });
}

}  // namespace runtime
