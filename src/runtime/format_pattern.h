#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "runtime/variant.h"

/// The parts of format().
namespace runtime::pattern {

enum class Kind { Literal, Date, Number, Text };

/// What the first code of a pattern makes of it.
Kind kindOf(std::string_view pattern);

/// Length of the literal at the front of `rest` with its marks; what it stands for is appended to `out`.
std::size_t takeLiteral(std::string_view rest, std::string& out);
/// Length of a quoted or escaped literal at the front of `rest`, 0 where there is none.
std::size_t markedLength(std::string_view rest);

/// The sections between semicolons; more than the fourth are dropped.
struct Sections {
  std::string_view text[4];
  std::size_t count = 0;
};
Sections sectionsOf(std::string_view pattern);

/// True if `text` begins with `lowerCase`, in either case.
bool startsWith(std::string_view text, std::string_view lowerCase);

std::string formatDate(Date date, std::string_view pattern, int firstDayOfWeek, int firstWeekOfYear);
/// `value` is a number or a Date.
std::string formatNumber(const Variant& value, std::string_view pattern);
std::string formatText(const std::string& text, std::string_view section);

}  // namespace runtime::pattern
