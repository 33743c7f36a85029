// A field, as a rebuilding keeps it.
#pragma once

#include <cstdint>
#include <string>

#include "schema/raccolta.h"

namespace schema {

/// A field of an index, or a pair of fields of a relation, kept while the field it names is rebuilt.
struct Campo {
  std::string Key;
  std::int16_t OrdinalPosition = 0;
  bool Required = false;
  std::string ForeignName;  // field of the foreign table
  std::int32_t Tipo = 0;
  std::int32_t Attributes = 0;  // in an index: its order
  std::int32_t Size = 0;
  std::string Name;
};

using Campi = Raccolta<Campo>;

}  // namespace schema
