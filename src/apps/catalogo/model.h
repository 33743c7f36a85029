#pragma once

#include <string>
#include <vector>

#include "runtime/variant.h"

namespace jet::dao {
class Database;
class TableDef;
}  // namespace jet::dao

namespace catalogo {

/// Values in the order of a catalogue table's columns.
using Row = std::vector<runtime::Variant>;

/// A field, an index or a relation as the catalogue states it: one row, and those of its own fields.
struct Thing {
  Row row;
  std::vector<Row> parts;
};

/// True for a table that holds an office's data: neither the engine's nor a link.
bool isData(jet::dao::TableDef& table);

/// What the tables of `model` are made of, for the application `norvo`; in the model's order.
std::vector<Thing> fieldsOf(jet::dao::Database& model, const std::string& norvo);
/// Without those that a relation made.
std::vector<Thing> indexesOf(jet::dao::Database& model, const std::string& norvo);
std::vector<Thing> relationsOf(jet::dao::Database& model, const std::string& norvo);

}  // namespace catalogo
