// An index, as a rebuilding keeps it.
#pragma once

#include "schema/campo.h"

namespace schema {

/// An index, kept while one of its fields is rebuilt.
struct Indice {
  std::string Key;
  std::int16_t DistinctCount = 0;
  bool Unique = false;
  bool IgnoreNulls = false;
  bool Primary = false;
  std::string Name;
  schema::Campi Campi;
};

using Indici = Raccolta<Indice>;

}  // namespace schema
