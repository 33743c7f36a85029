// The objects of a file as MSysObjects lists them.
#include "jet/file/read/catalogue.h"

#include "jet/file/errors.h"
#include "jet/file/read/definition_reader.h"
#include "jet/file/read/table_reader.h"
#include "jet/file/text/text.h"

namespace jet::file {

namespace {

/// What readCatalogue() takes of a row, and the sizes that the fields must have (0: any).
struct Wanted {
  const char* column;
  std::size_t size;
};
constexpr Wanted Columns[] = {{"Id", 4}, {"ParentId", 4}, {"Name", 0}, {"Type", 2}, {"Flags", 4}};

std::vector<std::size_t> positions(const TableDefinition& catalogue) {
  std::vector<std::size_t> found;
  for (const Wanted& wanted : Columns) {
    const auto position = catalogue.find(wanted.column);
    if (!position) throw damagedFile("il catalogo non ha la colonna " + std::string(wanted.column));
    found.push_back(*position);
  }
  return found;
}

std::span<const std::byte> checked(const FieldBytes& field, const Wanted& wanted) {
  if (field.null || (wanted.size != 0 && field.bytes.size() != wanted.size))
    throw damagedFile("una riga del catalogo ha un valore errato in " + std::string(wanted.column));
  return field.bytes;
}

}  // namespace

std::vector<CatalogueObject> readCatalogue(const PageFile& file) {
  const TableDefinition definition = readDefinition(file, CatalogueTable, "MSysObjects");
  const std::vector<std::size_t> at = positions(definition);
  TableReader reader(file, definition, at, false);
  std::vector<CatalogueObject> objects;
  for (Row row; reader.next(row);) {
    const auto field = [&](std::size_t i) { return checked(row[at[i]], Columns[i]).data(); };
    CatalogueObject object;
    object.id = readU32(field(0));
    object.parent = readU32(field(1));
    appendText(file.format(), checked(row[at[2]], Columns[2]), object.name, file.header().codePage);
    object.type = static_cast<ObjectType>(readU16(field(3)));
    object.flags = readU32(field(4));
    objects.push_back(std::move(object));
  }
  return objects;
}

}  // namespace jet::file
