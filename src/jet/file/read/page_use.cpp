// Which pages belong to which table.
#include "jet/file/read/page_use.h"

#include <algorithm>
#include <array>
#include <map>

#include "jet/file/errors.h"
#include "jet/file/page/data_page.h"
#include "jet/file/read/catalogue.h"
#include "jet/file/read/definition_reader.h"

namespace jet::file {

namespace {

constexpr std::array<std::pair<std::uint32_t, const char*>, 4> FirstTables = {{
    {CatalogueTable, "MSysObjects"},
    {PermissionsTable, "MSysACEs"},
    {QueriesTable, "MSysQueries"},
    {RelationshipsTable, "MSysRelationships"},
}};

std::vector<RowPointer> usageMaps(const TableDefinition& table) {
  std::vector<RowPointer> maps{table.ownedMap, table.freeMap};
  for (const Column& column : table.columns)
    if (isLongValue(column.type)) maps.insert(maps.end(), {column.ownedMap, column.freeMap});
  for (const RealIndex& index : table.realIndexes) maps.push_back(index.map);
  std::erase(maps, RowPointer{});
  return maps;
}

}  // namespace

std::vector<std::uint32_t> mapBitPages(const PageFile& file, RowPointer map) {
  const DataPage page(file.format(), file.page(map.page));
  const std::span<const std::byte> record = page.record(map.row);
  std::vector<std::uint32_t> pages;
  if (record.empty() || record[0] != std::byte{1}) return pages;
  for (std::size_t at = 1; at + 4 <= record.size(); at += 4)
    if (const std::uint32_t number = readU32(&record[at])) pages.push_back(number);
  return pages;
}

TablePages findPages(const PageFile& file, const TableDefinition& table) try {
  TablePages pages;
  pages.maps = usageMaps(table);
  for (const RowPointer map : pages.maps)
    for (const auto& part : {readUsageMap(file, map), mapBitPages(file, map)})
      pages.content.insert(pages.content.end(), part.begin(), part.end());
  for (const RealIndex& index : table.realIndexes) pages.content.push_back(index.root);
  return pages;
} catch (runtime::Error& error) {
  error.addPlace("tabella " + table.name);
  throw;
}

std::vector<TableDefinition> readTables(const PageFile& file) {
  std::map<std::uint32_t, std::string> names;
  for (const auto& [page, name] : FirstTables) names[page] = name;
  for (const CatalogueObject& object : readCatalogue(file))
    if (object.type == ObjectType::Table) names[object.id] = object.name;
  std::vector<TableDefinition> tables;
  for (const auto& [page, name] : names) tables.push_back(readDefinition(file, page, name));
  return tables;
}

void requireWritableFormat(const PageFile& file) {
  if (&file.format() != &Jet4)
    throw jetError(OldFormat,
                   "Il database \"" + file.path() + "\" è di una versione precedente e non si scrive");
}

PageSpace readGlobalMap(const PageFile& file) {
  PageSpace space;
  for (std::uint32_t page = 0; page < file.pageCount(); ++page) space.use(page);
  for (const std::uint32_t page : readUsageMap(file, GlobalMap, PagesOutside::Ignored)) space.release(page);
  return space;
}

}  // namespace jet::file
