#pragma once

#include <random>
#include <string>

#include "runtime/variant.h"

/// Types of columns and values for them.
namespace model {

/// A DataType for a number drawn at random; whole numbers and texts are frequent.
int typeOfColumn(unsigned drawn);
/// As CREATE TABLE calls it.
std::string typeName(int type, int size);
bool isIndexable(int type);
/// A value that a column of this type can hold, the odd ones included; whole numbers are mostly below 30.
runtime::Variant randomValue(int type, int size, std::mt19937& random);
/// The value as the statement's text writes it.
std::string literal(const runtime::Variant& value);

}  // namespace model
