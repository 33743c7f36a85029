// Format's codes of numbers: the digits are laid out from the decimal sign to both sides.
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "runtime/format_pattern.h"
#include "runtime/italian.h"
#include "runtime/overloaded.h"

namespace runtime::pattern {

namespace {

constexpr int MostSingleDigits = 7, MostDoubleDigits = 15;

/// The digits of a number, the first one not zero: 0.d1d2d3... * 10^point.
class Digits {
 public:
  explicit Digits(const Variant& value) {
    std::visit(Overloaded{
                   [&](bool truth) { whole(truth ? 1 : 0, 0, truth); },
                   [&](std::uint8_t number) { whole(number, 0, false); },
                   [&](std::int16_t number) { whole(std::abs(number), 0, number < 0); },
                   [&](std::int32_t number) { whole(std::abs(std::int64_t{number}), 0, number < 0); },
                   [&](float number) { real(static_cast<double>(number), MostSingleDigits); },
                   [&](double number) { real(number, MostDoubleDigits); },
                   [&](Currency money) {
                     const bool below = money.tenThousandths < 0;
                     const auto amount = static_cast<std::uint64_t>(money.tenThousandths);
                     whole(below ? 0 - amount : amount, 4, below);
                   },
                   [&](Date date) { real(date.days, MostDoubleDigits); },
                   [&](const Decimal& number) { whole(number.magnitude, number.scale, number.negative); },
                   [](const auto&) {},
               },
               value.value());
  }

  bool negative() const { return negative_; }
  bool isZero() const { return count_ == 0; }
  int point() const { return point_; }
  void setPoint(int point) { point_ = point; }
  void movePoint(int places) { point_ += places; }
  /// Digit at `place` behind the point; 0 is the last one before it.
  char at(int place) const {
    const int index = point_ - 1 + place;
    return index >= 0 && index < count_ ? digits_[static_cast<std::size_t>(index)] : '0';
  }
  /// Digits before the point, and places behind it up to the last that is not zero.
  int wholeCount() const { return isZero() ? 0 : std::max(point_, 0); }
  int decimalCount() const { return isZero() ? 0 : std::max(count_ - point_, 0); }

  /// Keeps `decimals` places behind the point, halves away from zero.
  void round(int decimals) {
    const int kept = point_ + decimals;
    if (kept >= count_) return;
    const bool up = kept >= 0 && digits_[static_cast<std::size_t>(kept)] >= '5';
    count_ = std::max(kept, 0);
    if (up) increment();
    dropZeros();
  }

 private:
  __extension__ using Wide = unsigned __int128;

  void whole(Wide magnitude, int scale, bool negative) {
    negative_ = negative;
    if (magnitude <= UINT64_MAX) {  // nearly always, and dividing 128 bits is slow
      char* end = std::to_chars(digits_.data(), digits_.data() + digits_.size(),
                                static_cast<std::uint64_t>(magnitude))
                      .ptr;
      count_ = magnitude == 0 ? 0 : static_cast<int>(end - digits_.data());
    } else {
      for (Wide rest = magnitude; rest != 0; rest /= 10) ++count_;
      for (auto place = static_cast<std::size_t>(count_); place-- > 0; magnitude /= 10)
        digits_[place] = static_cast<char>('0' + static_cast<int>(magnitude % 10));
    }
    point_ = count_ - scale;
    dropZeros();
  }

  void real(double value, int significant) {
    constexpr double exact = 1e15;
    negative_ = value < 0;
    if (value == 0) return;
    if (significant == MostDoubleDigits && std::abs(value) < exact && value == std::trunc(value))
      return whole(static_cast<std::uint64_t>(std::abs(value)), 0, negative_);
    char buffer[40];
    const char* end = std::to_chars(buffer, buffer + sizeof buffer, std::abs(value),
                                    std::chars_format::scientific, significant - 1)
                          .ptr;
    const char* mark = std::find(static_cast<const char*>(buffer), end, 'e');
    for (const char* c = buffer; c != mark; ++c)
      if (*c != '.') digits_[static_cast<std::size_t>(count_++)] = *c;
    std::from_chars(mark + (mark[1] == '+' ? 2 : 1), end, point_);
    ++point_;
    dropZeros();
  }

  void increment() {
    int place = count_ - 1;
    for (; place >= 0; --place) {
      char& digit = digits_[static_cast<std::size_t>(place)];
      if (digit != '9') return void(++digit);
      digit = '0';
    }
    // All were nines, or none was left: one digit more in front.
    digits_[0] = '1';
    count_ = 1;
    ++point_;
  }

  void dropZeros() {
    while (count_ > 0 && digits_[static_cast<std::size_t>(count_ - 1)] == '0') --count_;
  }

  std::array<char, 40> digits_{};
  int count_ = 0, point_ = 0;
  bool negative_ = false;
};

bool isPlace(char c) {
  return c == '0' || c == '#';
}

/// "E+", "E-", "e+" or "e-" with a place behind it.
bool isExponent(std::string_view rest) {
  return rest.size() > 2 && (rest[0] | 0x20) == 'e' && (rest[1] == '+' || rest[1] == '-') && isPlace(rest[2]);
}

/// What the codes of a section ask for.
struct Layout {
  int wholePlaces = 0, wholeZeros = 0;      // zeros: places from the first 0 to the decimal sign
  int decimalPlaces = 0, decimalZeros = 0;  // zeros: places up to the last 0
  int shift = 0;                            // of the point, by % and commas
  bool grouped = false, exponent = false;
};

Layout layoutOf(std::string_view section) {
  Layout layout;
  bool decimals = false;
  int commas = 0;  // since the last place
  while (!section.empty()) {
    const char c = section[0];
    std::size_t length = std::max<std::size_t>(1, markedLength(section));
    if (isPlace(c) && decimals) {
      ++layout.decimalPlaces;
      if (c == '0') layout.decimalZeros = layout.decimalPlaces;
    } else if (isPlace(c)) {
      layout.grouped |= commas > 0;
      commas = 0;
      ++layout.wholePlaces;
      if (c == '0' || layout.wholeZeros > 0) ++layout.wholeZeros;
    } else if (c == ',' && !decimals && layout.wholePlaces > 0) {
      ++commas;
    } else if (c == '.') {
      decimals = true;
    } else if (c == '%') {
      layout.shift += 2;
    } else if (isExponent(section)) {
      layout.exponent = true;
      for (length = 2; length < section.size() && isPlace(section[length]);) ++length;
    }
    section.remove_prefix(length);
  }
  layout.shift -= 3 * commas;
  return layout;
}

/// Writes one section.
class Writer {
 public:
  Writer(Digits digits, std::string_view section)
      : digits_(digits), layout_(layoutOf(section)), rest_(section) {
    digits_.movePoint(layout_.shift);
    if (layout_.exponent) normalize();
    digits_.round(layout_.decimalPlaces);
    if (layout_.exponent && digits_.point() > layout_.wholePlaces && !digits_.isZero()) normalize();
  }

  void write(std::string& out) {
    while (!rest_.empty()) rest_.remove_prefix(writeOne(out));
  }

 private:
  /// As many digits before the point as there are places; the rest goes into the power of ten.
  void normalize() {
    if (digits_.isZero()) return;
    power_ += digits_.point() - layout_.wholePlaces;
    digits_.setPoint(layout_.wholePlaces);
  }

  std::size_t writeOne(std::string& out) {
    const char c = rest_[0];
    if (isPlace(c) && decimals_) {
      writeDecimal(out);
    } else if (isPlace(c)) {
      writeWhole(out);
    } else if (c == '.' && !decimals_) {
      if (layout_.wholePlaces == 0) writePlaces(digits_.wholeCount(), 1, out);
      decimals_ = true;
      out += italian::DecimalSign;
    } else if (c == ',') {
      // Has done its work in the layout.
    } else if (isExponent(rest_)) {
      return writeExponent(out);
    } else {
      return takeLiteral(rest_, out);
    }
    return 1;
  }

  /// Digits from place `from` before the point (1 is the last) down to `to`.
  void writePlaces(int from, int to, std::string& out) {
    for (int place = from; place >= to; --place) {
      out += digits_.at(1 - place);
      if (layout_.grouped && place > 1 && place % 3 == 1) out += italian::ThousandsSign;
    }
  }

  /// The first place takes the digits that have no place of their own.
  void writeWhole(std::string& out) {
    const int place = layout_.wholePlaces - written_;
    const int digits = std::max(digits_.wholeCount(), layout_.wholeZeros);
    if (written_++ == 0) {
      writePlaces(digits, place, out);
    } else if (place <= digits) {
      writePlaces(place, place, out);
    }
  }

  void writeDecimal(std::string& out) {
    ++decimal_;
    if (decimal_ <= std::max(layout_.decimalZeros, digits_.decimalCount())) out += digits_.at(decimal_);
  }

  std::size_t writeExponent(std::string& out) {
    std::size_t length = 2;
    while (length < rest_.size() && isPlace(rest_[length])) ++length;
    const auto zeros = static_cast<std::size_t>(std::ranges::count(rest_.substr(2, length - 2), '0'));
    out += rest_[0];
    if (power_ < 0) out += '-';
    if (power_ >= 0 && rest_[1] == '+') out += '+';
    const std::string power = std::to_string(std::abs(power_));
    if (power.size() < zeros) out.append(zeros - power.size(), '0');
    out += power;
    return length;
  }

  Digits digits_;
  Layout layout_;
  std::string_view rest_;
  int power_ = 0, written_ = 0, decimal_ = 0;
  bool decimals_ = false;
};

}  // namespace

std::string formatNumber(const Variant& value, std::string_view pattern) {
  if (value.kind() == VariantKind::Double && !std::isfinite(value.toDouble())) return value.toText();
  const Digits digits(value);
  const Sections sections = sectionsOf(pattern);
  const std::size_t own = digits.isZero() ? 2 : digits.negative() ? 1 : 0;
  // A section that is missing or empty is the first one, which shows a sign.
  const bool hasOwn = own < sections.count && !sections.text[own].empty();
  std::string result;
  if (digits.negative() && !digits.isZero() && !hasOwn) result += '-';
  Writer(digits, sections.text[hasOwn ? own : 0]).write(result);
  return result;
}

}  // namespace runtime::pattern
