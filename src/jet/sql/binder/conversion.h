#pragma once

#include <optional>

#include "jet/sql/binder/bound_statement.h"

/// The rules of types: what two of them have in common, and how a value gets from one to another.
namespace jet::sql {

/// The type in which values of both can be given: of the two results of IIf, of a column of a UNION.
Type commonType(Type a, Type b);

/// The type in which two values are compared; nothing if they can't be (a text with a number).
std::optional<Type> comparedType(Type a, Type b);

/// The type of an arithmetic result.
Type arithmeticType(ArithmeticOperator op, Type left, Type right);

/// `expression` as `type`; a literal is converted at once where that is exact.
bound::Expression convert(bound::Expression expression, Type type);

/// `expression` as a column of `column`'s type and size keeps it.
bound::Expression store(bound::Expression expression, const file::Column& column);

}  // namespace jet::sql
