#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace runtime {

/// Kinds of a Variant, in the order of the alternatives of Variant::Value.
enum class VariantKind {
  Empty,
  Null,
  Boolean,
  Byte,
  Integer,
  Long,
  Single,
  Double,
  Currency,
  Date,
  Decimal,
  Text,
  Bytes
};

/// Money in ten-thousandths of its unit.
struct Currency {
  std::int64_t tenThousandths = 0;
  auto operator<=>(const Currency&) const = default;
};

/// Days since 1899-12-30; the fraction is the part of the day, counted away from zero for negative days.
struct Date {
  double days = 0;
  auto operator<=>(const Date&) const = default;
};

/// A decimal number: magnitude * 10^-scale, at most 28 digits.
struct Decimal {
  bool negative = false;
  std::uint8_t scale = 0;
  __extension__ unsigned __int128 magnitude = 0;
};

struct Empty {};
struct Null {};
using Bytes = std::vector<std::byte>;

/// A value of the language that the suite's data were written with.
class Variant {
 public:
  using Kind = VariantKind;
  using Value = std::variant<Empty, Null, bool, std::uint8_t, std::int16_t, std::int32_t, float, double,
                             Currency, Date, Decimal, std::string, Bytes>;

  Variant() = default;
  Variant(Null) : value_(Null{}) {}
  Variant(bool value) : value_(value) {}
  Variant(std::uint8_t value) : value_(value) {}
  Variant(std::int16_t value) : value_(value) {}
  Variant(std::int32_t value) : value_(value) {}
  Variant(float value) : value_(value) {}
  Variant(double value) : value_(value) {}
  Variant(Currency value) : value_(value) {}
  Variant(Date value) : value_(value) {}
  Variant(Decimal value) : value_(value) {}
  Variant(std::string value) : value_(std::move(value)) {}
  Variant(std::string_view value) : value_(std::string(value)) {}
  Variant(const char* value) : value_(std::string(value)) {}
  Variant(Bytes value) : value_(std::move(value)) {}

  Kind kind() const { return static_cast<Kind>(value_.index()); }
  bool isEmpty() const { return kind() == Kind::Empty; }
  bool isNull() const { return kind() == Kind::Null; }
  bool isText() const { return kind() == Kind::Text; }
  const Value& value() const { return value_; }

  /// Conversions of the language: halves round to even, a value out of range is error 6, a Null is error 94,
  /// a text that is no number (or no date) as the Italian locale writes it is error 13, and so are Bytes.
  /// Empty counts as 0, False or "".
  bool toBoolean() const;
  std::uint8_t toByte() const;
  std::int16_t toInteger() const;
  std::int32_t toLong() const;
  double toDouble() const;
  Currency toCurrency() const;
  Date toDate() const;
  /// The text of the value as the Italian locale writes it ("1,5", "16/11/2026 17:16:00", "Vero"); Single
  /// with 7 digits, Double with 15; a Null is error 94, Bytes have no text (error 13).
  std::string toText() const;

 private:
  Value value_;
};

}  // namespace runtime
