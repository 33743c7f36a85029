#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "runtime/variant.h"

/// Decimal numbers between their forms: the 17 bytes of the file, the digits of the image, the value.
namespace jet::image {

/// Digits that a number may have, and those that the bytes of a field can hold.
constexpr int DecimalDigits = 28, DecimalFieldDigits = 39;

/// "-12.50": all digits of the scale, a point, no blanks.
std::string decimalText(const runtime::Decimal& value);
/// Reads decimalText's form, and any plain number; digits beyond `scale` are rounded half to even.
/// Error 3421 if it is no number, 6 if it has more than `mostDigits` digits.
runtime::Decimal parseDecimal(std::string_view text, std::uint8_t scale, int mostDigits = DecimalDigits);
/// Order of two numbers in decimalText's form, whatever their scales: 1.5 is 1.50.
int compareDecimals(std::string_view a, std::string_view b);
/// From the 17 bytes of a field.
runtime::Decimal decimalFromBytes(std::span<const std::byte> bytes, std::uint8_t scale);
void decimalToBytes(const runtime::Decimal& value, std::span<std::byte, 17> out);

}  // namespace jet::image
