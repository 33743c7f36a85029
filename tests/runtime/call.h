#pragma once

#include <string>
#include <string_view>

namespace runtime {

/// The text of an expression's value, or "error <number>". An expression is made of calls of the functions of
/// the language, joined by '&', and of literals: "text", #date#, Null, True, and numbers whose kind the
/// language's sign tells: 1% Integer, 1! Single, 1@ Currency, and 1b Byte, 1d Decimal, 1t a date's days.
std::string resultOf(std::string_view expression);

}  // namespace runtime
