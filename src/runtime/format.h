#pragma once

#include <string>
#include <string_view>

#include "runtime/variant.h"

namespace runtime {

/// The language's Format for dates: d dd ddd dddd, m mm mmm mmmm, yy yyyy, h hh, n nn, s ss, AM/PM, A/P, in
/// either case; m behind h means minutes. "quoted" and \escaped characters and all others stand as they are.
/// Null and Empty give an empty text, a text that is no date stays as it is, a number counts as a Date. An
/// empty pattern: toText. Error 5: a code of dates or numbers that is not among these; error 6: outside the
/// calendar.
std::string format(const Variant& value, std::string_view pattern);

}  // namespace runtime
