#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Numbers as texts: the language's Val and Str$, and the forms of the Italian locale.
namespace runtime {

/// The leading number of a text: point as decimal sign, exponent with E or D, prefixes &H and &O, blanks
/// skipped wherever they stand; 0 if the text begins otherwise. Error 6 if it is too large.
double val(std::string_view text);

/// A number with the point as decimal sign, no zero before it, and a blank in the sign's place unless
/// negative: " 5", "-5", " .5", " 1.5E+20".
std::string str(std::int32_t value);
std::string str(double value);

/// The shortest form of `value` with at most `significant` digits (7 Single, 15 Double): "0,1", "1,5E+20",
/// "3,33333333333333E-02".
std::string numberText(double value, int significant, char decimalSign);

/// A text that is a number for the Italian locale ("1.234,5", "-3", "3-", "(3)", "€ 2", "1,5E3", "&H1F") as
/// digits with the point as decimal sign ("-1234.5", "1.5e3"); nothing if it is none. Error 6: more than 32
/// bits after &H.
std::optional<std::string> plainNumber(std::string_view text);

/// Value of a plain number. Error 6 if it is too large.
double plainToDouble(const std::string& plain);

/// In single precision. Error 6 beyond its range.
float toSingle(double value);

/// A plain number times 10^decimals, its halves rounded to even; exact where there is no exponent. Error 6
/// outside 64 bits.
std::int64_t plainToInteger(const std::string& plain, int decimals);

/// Rounds halves to even. Error 6 outside 64 bits.
std::int64_t roundHalfEven(double value);
/// The language's Round: to `decimals` places, halves to even. Error 5 for decimals outside 0 to 22.
double roundTo(double value, std::int64_t decimals);
/// `amount` units of 10^-places, rounded to `decimals` places in the same way, exactly.
std::int64_t roundTo(std::int64_t amount, int places, std::int64_t decimals);

/// Hexadecimal and octal digits; a negative number as its two's complement of 16 or 32 bits.
std::string hex(std::int32_t value);
std::string hex(std::int16_t value);
std::string oct(std::int32_t value);
std::string oct(std::int16_t value);

}  // namespace runtime
