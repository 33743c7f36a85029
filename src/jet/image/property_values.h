#pragma once

#include <string>
#include <string_view>

#include "jet/file/properties.h"
#include "runtime/variant.h"

/// Values of properties between their file form and the language's. The types that the published properties
/// have: Description, ValidationText, Format, InputMask Text; DefaultValue, ValidationRule, Caption Memo;
/// Required, AllowZeroLength Boolean; DecimalPlaces Byte.
namespace jet::image {

/// Error 3259 for a type that properties don't have, 3421 for a value that is not of the type.
file::PropertyItem propertyItem(std::string name, file::ColumnType type, const runtime::Variant& value);
/// Null where the property holds bytes that don't fit its type.
runtime::Variant propertyValue(const file::PropertyItem& item);

/// A column's property as text, empty where there is none ("DefaultValue").
std::string textProperty(const file::PropertyBlock& block, std::string_view column, std::string_view name);
bool booleanProperty(const file::PropertyBlock& block, std::string_view column, std::string_view name,
                     bool absent);

}  // namespace jet::image
