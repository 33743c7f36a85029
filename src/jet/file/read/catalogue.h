#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "jet/file/errors.h"
#include "jet/file/page/page_file.h"
#include "jet/file/row.h"

namespace jet::file {

/// Kinds of object as the catalogue table MSysObjects numbers them.
enum class ObjectType : std::int16_t {
  Table = 1,
  Database = 2,
  Container = 3,
  OdbcTable = 4,
  Query = 5,
  LinkedTable = 6,
  Relation = 8,
  Form = -32768,
  Report = -32764,
  Macro = -32766,
  Module = -32761,
  Document = -32757,
};

constexpr std::uint32_t CatalogueTable = 2, PermissionsTable = 3, QueriesTable = 4, RelationshipsTable = 5;
constexpr std::uint32_t TablesContainer = 0x0F000001, RelationshipsContainer = 0x0F000003;
constexpr std::uint32_t DatabaseObject = 0x10000000;

/// A row of MSysObjects, without its long values.
struct CatalogueObject {
  std::uint32_t id = 0;  // tables: definition page
  std::uint32_t parent = 0;
  std::string name;
  ObjectType type = ObjectType::Table;
  std::uint32_t flags = 0;
};

/// All objects of the file in row order. Error 3343 if the catalogue is damaged.
std::vector<CatalogueObject> readCatalogue(const PageFile& file);

}  // namespace jet::file
