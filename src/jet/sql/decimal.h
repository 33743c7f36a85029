#pragma once

#include <string>
#include <string_view>

#include "runtime/variant.h"

/// Decimal numbers in the digits that the image keeps ("-12.50"): exact arithmetic.
namespace jet::sql {

/// All digits are kept. Error 13 if it is no plain number, 6 above 28 digits.
runtime::Decimal parseDecimal(std::string_view digits);

/// A Double gives its 15 digits. Error 13 for what is no number, 6 above 28 digits.
runtime::Decimal toDecimal(const runtime::Variant& value);

/// Error 6 where the result has more than 28 digits.
runtime::Decimal addDecimals(const runtime::Decimal& a, const runtime::Decimal& b);
runtime::Decimal multiplyDecimals(const runtime::Decimal& a, const runtime::Decimal& b);

/// How digits are dropped: toward the lower number, toward zero, to the nearer one with halves to even.
enum class Rounding { Floor, Truncate, HalfEven };
runtime::Decimal roundDecimal(const runtime::Decimal& number, int decimals, Rounding rounding);

}  // namespace jet::sql
