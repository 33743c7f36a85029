// A relation, as a rebuilding keeps it.
#pragma once

#include "schema/campo.h"

namespace schema {

/// A relation, kept while one of its fields is rebuilt.
struct Relazione {
  std::string Key;
  std::int32_t Attributes = 0;
  std::string ForeignTable;
  std::string Table;
  std::string Name;
  schema::Campi Campi;
};

using Relazioni = Raccolta<Relazione>;

}  // namespace schema
