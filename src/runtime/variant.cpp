// A value of any type, and its conversions.
#include "runtime/variant.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "runtime/date.h"
#include "runtime/error.h"
#include "runtime/italian.h"
#include "runtime/numbers.h"
#include "runtime/overloaded.h"

namespace runtime {

namespace {

constexpr int SingleDigits = 7;
constexpr int DoubleDigits = 15;

/// Digits of an unsigned number with `scale` of them behind the point.
std::string withPoint(std::string digits, std::size_t scale, char point) {
  if (digits.size() <= scale) digits.insert(0, scale + 1 - digits.size(), '0');
  if (scale == 0) return digits;
  digits.insert(digits.size() - scale, 1, point);
  digits.erase(digits.find_last_not_of('0') + 1);
  if (digits.back() == point) digits.pop_back();
  return digits;
}

std::string decimalText(const Decimal& value, char point) {
  std::string digits;
  for (auto rest = value.magnitude; rest != 0; rest /= 10)
    digits += static_cast<char>('0' + static_cast<int>(rest % 10));
  std::reverse(digits.begin(), digits.end());
  const std::string text = withPoint(digits.empty() ? "0" : digits, value.scale, point);
  return value.negative && value.magnitude != 0 ? "-" + text : text;
}

std::string currencyText(Currency value, char point) {
  const std::int64_t amount = value.tenThousandths;
  std::string digits = std::to_string(amount);
  if (amount < 0) digits.erase(0, 1);
  return (amount < 0 ? "-" : "") + withPoint(digits, 4, point);
}

std::string plainOrMismatch(const std::string& text) {
  const std::optional<std::string> plain = plainNumber(text);
  if (!plain) throw languageError(TypeMismatch);
  return *plain;
}

/// Beyond 53 bits the product itself would be rounded: there the whole part is multiplied as a whole number.
/// The Double next to the lowest amount lies below it, and its rounded product is that amount.
std::int64_t scaledDouble(double number, std::int64_t factor) {
  constexpr double exact = 9007199254740992.0;  // 2^53
  const double product = number * static_cast<double>(factor);
  if (factor == 1 || !(std::abs(product) > exact)) return roundHalfEven(product);
  const double whole = std::trunc(number);
  const std::int64_t fraction = roundHalfEven((number - whole) * static_cast<double>(factor));
  std::int64_t result = 0;
  if (__builtin_mul_overflow(roundHalfEven(whole), factor, &result) ||
      __builtin_add_overflow(result, fraction, &result))
    return roundHalfEven(product);
  return result;
}

/// The value times 10^decimals as a whole number, halves to even; the one rule of Byte, Integer, Long and
/// Currency.
std::int64_t scaled(const Variant::Value& value, int decimals) {
  const std::int64_t factor = decimals == 4 ? 10000 : 1;
  return std::visit(
      Overloaded{
          [](Empty) -> std::int64_t { return 0; },
          [](Null) -> std::int64_t { throw languageError(InvalidUseOfNull); },
          [&](bool truth) -> std::int64_t { return truth ? -factor : 0; },
          [&](std::uint8_t number) { return number * factor; },
          [&](std::int16_t number) { return number * factor; },
          [&](std::int32_t number) { return number * factor; },
          [&](float number) {
            return roundHalfEven(static_cast<double>(number) * static_cast<double>(factor));
          },
          [&](double number) { return scaledDouble(number, factor); },
          [&](Currency money) {
            return decimals == 4 ? money.tenThousandths : plainToInteger(currencyText(money, '.'), decimals);
          },
          [&](Date date) { return roundHalfEven(date.days * static_cast<double>(factor)); },
          [&](const Decimal& number) { return plainToInteger(decimalText(number, '.'), decimals); },
          [&](const std::string& text) { return plainToInteger(plainOrMismatch(text), decimals); },
          [](const Bytes&) -> std::int64_t { throw languageError(TypeMismatch); },
      },
      value);
}

template <class Integer>
Integer toWhole(const Variant::Value& value) {
  const std::int64_t whole = scaled(value, 0);
  if (whole < std::numeric_limits<Integer>::min() || whole > std::numeric_limits<Integer>::max())
    throw languageError(Overflow);
  return static_cast<Integer>(whole);
}

std::string lower(std::string text) {
  for (char& c : text)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c | 0x20);
  return text;
}

}  // namespace

bool Variant::toBoolean() const {
  if (const auto* truth = std::get_if<bool>(&value_)) return *truth;
  if (const auto* text = std::get_if<std::string>(&value_)) {
    const std::string word = lower(*text);
    if (word == "vero" || word == "true") return true;
    if (word == "falso" || word == "false") return false;
  }
  return toDouble() != 0;
}

std::uint8_t Variant::toByte() const {
  if (const auto* truth = std::get_if<bool>(&value_)) return *truth ? 255 : 0;
  return toWhole<std::uint8_t>(value_);
}

std::int16_t Variant::toInteger() const {
  return toWhole<std::int16_t>(value_);
}

std::int32_t Variant::toLong() const {
  return toWhole<std::int32_t>(value_);
}

double Variant::toDouble() const {
  return std::visit(Overloaded{
                        [](Empty) { return 0.0; },
                        [](Null) -> double { throw languageError(InvalidUseOfNull); },
                        [](bool truth) { return truth ? -1.0 : 0.0; },
                        [](std::uint8_t number) { return static_cast<double>(number); },
                        [](std::int16_t number) { return static_cast<double>(number); },
                        [](std::int32_t number) { return static_cast<double>(number); },
                        [](float number) { return static_cast<double>(number); },
                        [](double number) { return number; },
                        [](Currency money) { return static_cast<double>(money.tenThousandths) / 10000; },
                        [](Date date) { return date.days; },
                        [](const Decimal& number) { return plainToDouble(decimalText(number, '.')); },
                        [](const std::string& text) { return plainToDouble(plainOrMismatch(text)); },
                        [](const Bytes&) -> double { throw languageError(TypeMismatch); },
                    },
                    value_);
}

Currency Variant::toCurrency() const {
  return Currency{scaled(value_, 4)};
}

Date Variant::toDate() const {
  if (const auto* text = std::get_if<std::string>(&value_)) {
    const std::optional<Date> date = dateFromText(*text);
    if (!date) throw languageError(TypeMismatch);
    return *date;
  }
  const Date date{toDouble()};
  if (!isInCalendar(date)) throw languageError(Overflow);
  return date;
}

std::string Variant::toText() const {
  return std::visit(Overloaded{
                        [](Empty) { return std::string(); },
                        [](Null) -> std::string { throw languageError(InvalidUseOfNull); },
                        [](bool truth) { return std::string(truth ? "Vero" : "Falso"); },
                        [](std::uint8_t number) { return std::to_string(number); },
                        [](std::int16_t number) { return std::to_string(number); },
                        [](std::int32_t number) { return std::to_string(number); },
                        [](float number) {
                          return numberText(static_cast<double>(number), SingleDigits, italian::DecimalSign);
                        },
                        [](double number) { return numberText(number, DoubleDigits, italian::DecimalSign); },
                        [](Currency money) { return currencyText(money, italian::DecimalSign); },
                        [](Date date) { return dateText(date); },
                        [](const Decimal& number) { return decimalText(number, italian::DecimalSign); },
                        [](const std::string& text) { return text; },
                        [](const Bytes&) -> std::string { throw languageError(TypeMismatch); },
                    },
                    value_);
}

}  // namespace runtime
