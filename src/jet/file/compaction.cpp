#include "jet/file/catalogue.h"
#include "jet/file/database_writer.h"
#include "jet/file/global_map.h"
#include "jet/file/page_use.h"
#include "jet/file/table_writer.h"

/// The compact copy of a database.
namespace jet::file {

namespace {

void compactTable(const PageFile& source, const TableDefinition& table, PageOutput& out, const TakePage& take,
                  MapPages& maps) {
  TableReader rows(source, table);
  TableWriter writer(table, out, take);
  writer.writeRows(rows);
  writer.writeIndexes();
  writer.writeMaps(maps);
  writer.writeDefinitionPages();
}

}  // namespace

void writeCompacted(const PageFile& source, platform::File& file) {
  requireWritableFormat(source);
  PageOutput out(file);
  PageSpace space;
  const TakePage take = [&space] { return space.take(); };
  const std::vector<TableDefinition> tables = readTables(source);
  space.use(0);
  space.use(GlobalMap.page);
  for (const TableDefinition& table : tables) space.use(table.page);

  out.write(0, source.page(0).all());
  // The four first tables have one page of usage maps together, every other table one of its own.
  MapPages systemMaps(out, take);
  for (const TableDefinition& table : tables) {
    if (table.page <= RelationshipsTable) {
      compactTable(source, table, out, take, systemMaps);
      continue;
    }
    MapPages maps(out, take);
    compactTable(source, table, out, take, maps);
    maps.finish();
  }
  systemMaps.finish();
  writeGlobalMap(space, std::vector<std::byte>(EmptyMapLength), out);
  out.finish(space.pageCount());
}

}  // namespace jet::file
