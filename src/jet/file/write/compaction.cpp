// The compact copy of a database.
#include "jet/file/write/compaction.h"

#include <algorithm>
#include <map>
#include <numeric>

#include "jet/file/errors.h"
#include "jet/file/index/index_numbers.h"
#include "jet/file/page/global_map.h"
#include "jet/file/read/catalogue.h"
#include "jet/file/read/page_use.h"
#include "jet/file/write/table_writer.h"

namespace jet::file {

namespace {

/// The columns in the order of a key.
template <typename Key>
std::vector<Column*> columnsBy(TableDefinition& table, Key key) {
  std::vector<Column*> sorted;
  for (Column& column : table.columns) sorted.push_back(&column);
  std::ranges::stable_sort(sorted, {}, key);
  return sorted;
}

/// Where each record of the compact table's columns comes from. They stand by number, so in display order; in
/// the tables that the engine's tools keep for themselves they stand by name, and stay so.
std::vector<std::size_t> recordOrder(const TableDefinition& table) {
  if (std::ranges::is_sorted(table.columns, {}, &Column::number)) return table.displayOrder();
  std::vector<std::size_t> order(table.columns.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  return order;
}

/// The same columns without the numbers, slots and bytes of those that were dropped, numbered in display
/// order: other readers of the format show them by number.
TableDefinition withoutHoles(const TableDefinition& source, const std::vector<std::size_t>& records) {
  TableDefinition table = source;
  std::map<std::uint16_t, std::uint16_t> numbers;
  for (const std::size_t column : source.displayOrder())
    numbers.emplace(source.columns[column].number, static_cast<std::uint16_t>(numbers.size()));
  for (std::size_t i = 0; i < records.size(); ++i) {
    table.columns[i] = source.columns[records[i]];
    table.columns[i].number = numbers.at(table.columns[i].number);
  }
  table.maxColumns = static_cast<std::uint16_t>(table.columns.size());
  for (RealIndex& index : table.realIndexes)
    for (IndexColumn& part : index.columns) {
      const auto number = numbers.find(part.column);
      if (number == numbers.end())
        throw damagedFile("tabella " + table.name + ": indice su un campo che manca");
      part.column = number->second;
    }

  std::uint16_t offset = 0;
  for (Column* column : columnsBy(table, [](const Column* each) { return each->fixedOffset; })) {
    if (!column->fixed() || column->type == ColumnType::Boolean) continue;
    column->fixedOffset = offset;
    offset = static_cast<std::uint16_t>(offset + column->length);
  }
  table.variableColumns = 0;
  const auto variable = [](const Column& column) {
    return !column.fixed() && column.type != ColumnType::Boolean;
  };
  for (Column* column : columnsBy(table, [](const Column* each) { return each->slot; }))
    if (variable(*column)) column->slot = table.variableColumns++;
  // A fixed column tells how many slots stood before it.
  std::uint16_t before = 0;
  for (Column* column : columnsBy(table, [](const Column* each) { return each->number; })) {
    if (variable(*column))
      ++before;
    else
      column->slot = before;
  }
  return table;
}

/// Rows with their fields in another order.
class Reordered : public RowSource {
 public:
  Reordered(RowSource& rows, const std::vector<std::size_t>& order) : rows_(rows), order_(order) {}
  bool next(Row& row) override {
    if (!rows_.next(read_)) return false;
    row.resize(order_.size());
    for (std::size_t i = 0; i < order_.size(); ++i) row[i] = read_[order_[i]];
    return true;
  }

 private:
  RowSource& rows_;
  const std::vector<std::size_t>& order_;
  Row read_;
};

void compactTable(const PageFile& source, const TableDefinition& table, PageOutput& out, const TakePage& take,
                  MapPages& maps) {
  TableReader reader(source, table);
  const std::vector<std::size_t> records = recordOrder(table);
  Reordered rows(reader, records);
  TableWriter writer(table.system ? table : withoutHoles(table, records), out, take);
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
  std::vector<TableDefinition> tables = readTables(source);
  renumberIndexes(tables);
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
