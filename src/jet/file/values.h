#pragma once

#include <cstdint>

#include "jet/file/page/format.h"
#include "jet/file/row.h"
#include "runtime/variant.h"

namespace jet::file {

/// The value of a field, long values whole. A Guid is text "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}", Binary,
/// OLE and Raw are bytes. `codePage` is the header's, for Jet 3. Error 3343 for a field of the wrong length.
runtime::Variant toVariant(const Format& format, std::uint16_t codePage, const Column& column,
                           const FieldBytes& field);

/// Text of the 16 bytes of a Guid.
std::string guidText(std::span<const std::byte, 16> guid);

}  // namespace jet::file
