#pragma once

#include <string>

#include "runtime/variant.h"

namespace jetsql {

/// The machine's form of a value: numbers with a point and all their digits, "2026-11-16 17:16:00", -1 and 0,
/// bytes as hexadecimal digits; Null and Empty give an empty text, texts stay as they are.
std::string plainText(const runtime::Variant& value);

/// A text on one line, without tabs: backslash, tab, line feed and return as \\ \t \n \r.
std::string escaped(const std::string& text);

}  // namespace jetsql
