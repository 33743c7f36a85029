#pragma once

#include <string_view>

#include "runtime/variant.h"

/// What the language tells of a value.
namespace runtime {

/// A number, a Boolean, Empty, or a text that is a number as Italy writes it; not a Date.
bool isNumeric(const Variant& value);
/// A Date, or a text that is one.
bool isDate(const Variant& value);

/// "Long", "String" and so on, as the language names them; "Byte()" for Bytes.
std::string_view typeName(const Variant& value);
/// The language's number of the type: 0 Empty, 1 Null, 3 Long, 8 String ...
int varType(const Variant& value);

}  // namespace runtime
