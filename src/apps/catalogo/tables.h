#pragma once

#include <cstddef>
#include <span>

namespace jet::dao {
class Database;
}

/// The tool that writes a reference database from the finished databases of a version.
namespace catalogo {

struct Column {
  const char* name;
  int type;
  int size = 0;           // of a text
  bool compared = true;   // two rows about the same thing must agree in it
  bool optional = false;  // made when a row first has a value there
};

/// A table of the catalogue. The rows that say something about one thing share its first columns.
struct Table {
  const char* name;
  std::span<const Column> columns;
  std::size_t key = 0;  // how many columns behind the application name a thing
};

extern const Table Norvi, CampiTabella, CampiDaEliminare, Indici, CampiIndice, Relazioni, CampiRelazione;

/// The application name of what concerns all of them.
inline constexpr const char* Tutti = "Tutti";

/// Where a row of CampiTabella says whether a new field's default goes to all rows.
inline constexpr std::size_t UpdateDefaultValue = 10;

/// Makes the column in the catalogue if it doesn't have it.
void makeColumn(jet::dao::Database& reference, const Table& table, const Column& column);
/// Makes the tables of the catalogue that `reference` doesn't have, without optional columns.
void makeCatalogueTables(jet::dao::Database& reference);

}  // namespace catalogo
