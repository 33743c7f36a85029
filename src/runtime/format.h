#pragma once

#include <string>
#include <string_view>

#include "runtime/variant.h"

namespace runtime {

/// The language's Format, as the Italian settings have it. `pattern`, in either case, is the name of a format
/// or is made of codes; "quoted" and \escaped characters and all that are no codes stand as they are.
///
/// Names: General Date, Long/Medium/Short Date, Long/Medium/Short Time, General Number, Currency, Fixed,
/// Standard, Percent, Scientific, Yes/No, True/False, On/Off.
///
/// Dates: c, d dd ddd dddd ddddd dddddd, w ww, m mm mmm mmmm, q, y yy yyyy, h hh, n nn, s ss, ttttt, AM/PM,
/// A/P; m behind h means minutes. `firstDayOfWeek` and `firstWeekOfYear` as in datePart.
///
/// Numbers: 0 a digit or zero, # a digit or nothing, . the decimal sign, a comma between digits thousands,
/// one behind them a thousandth, % a hundredfold, E+ E- the power of ten; up to four sections, for positive
/// numbers, negative ones, zeros and Null. Halves are rounded away from zero, by the 15 digits of a Double.
///
/// Texts: @ a character or blank, & a character or nothing, < small letters, > capitals, ! from left to
/// right; a second section is for empty texts and Null.
///
/// The first code tells which of the three a pattern is. Null and Empty give an empty text where no section
/// is theirs; a text that is no date (no number) stays as it is; a number counts as a Date, and a Date as a
/// number. An empty pattern: toText. Error 6: outside the calendar.
std::string format(const Variant& value, std::string_view pattern, int firstDayOfWeek = 1,
                   int firstWeekOfYear = 1);

}  // namespace runtime
