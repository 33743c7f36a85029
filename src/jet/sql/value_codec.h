#pragma once

#include "jet/file/definition.h"
#include "jet/image/stored_value.h"
#include "jet/sql/type.h"
#include "runtime/variant.h"

/// The one way of a value between the language and the image, whoever takes it: recordsets, parameters of
/// queries, functions of statements.
namespace jet::sql {

/// What a column asks of the values that it is assigned.
struct ColumnRule {
  Type type = Type::Variant;
  std::size_t size = 0;  // characters of a Text, bytes of a Binary; 0: as many as there are
  int precision = 0;     // of a Decimal: its digits, and those behind the point
  int scale = 0;
};
ColumnRule ruleOf(const file::Column& column);

/// The value that `source` has as `type`. A Guid is its text, a number that is none a NaN; what only the row
/// tells (a Variant, a whole number that was computed) is what its storage says.
template <typename Source>
runtime::Variant decodeValue(const Source& source, Type type);

/// Gives `target` the value as `type`; as a Variant, what it is. Error 6 or 13 where it can't be that.
template <typename Target>
void encodeValue(Target&& target, const runtime::Variant& value, Type type);

/// The same for what a column keeps of an assigned value: a Boolean is never Null, a text and bytes fit in
/// its size (error 3163), a Decimal is rounded to its scale and fits in its precision (error 6).
template <typename Target>
void encodeAssigned(Target&& target, const runtime::Variant& value, const ColumnRule& rule);

}  // namespace jet::sql
