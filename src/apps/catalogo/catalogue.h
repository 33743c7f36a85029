#pragma once

#include <cstddef>
#include <string>

namespace jet::dao {
class Database;
}

namespace catalogo {

struct Counts {
  std::size_t fields = 0, indexes = 0, relations = 0;
};

/// Writes into the catalogue of `reference` what the tables of `model` are made of, as rows of the
/// application `norvo`, in place of those it had; a field keeps its UpdateDefaultValue. What stands there for
/// "Tutti" already in the same words is left out; in other words, or under CampiDaEliminare, it is error
/// 3022. Returns the rows written.
Counts writeCatalogue(jet::dao::Database& reference, jet::dao::Database& model, const std::string& norvo);

}  // namespace catalogo
