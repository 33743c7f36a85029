// Columns of existing tables: added, replaced, resized, renamed, moved and dropped.
#include "jet/image/column_changes.h"

#include <algorithm>

#include "jet/file/errors.h"
#include "jet/file/text/text.h"
#include "jet/image/catalogue_rows.h"
#include "jet/image/row_codec.h"
#include "jet/image/transaction.h"

namespace jet::image {

namespace {

using file::Column;
using file::ColumnType;

constexpr std::uint32_t TextSizeLimit = 255, BinarySizeLimit = 510;

std::size_t positionOf(const file::TableDefinition& design, std::string_view name) {
  const auto position = design.find(name);
  if (!position)
    throw runtime::Error(ItemNotFound, source::TableDef, "Campo inesistente: " + std::string(name));
  return *position;
}

/// Properties of `from` that `to` lacks become its own; `from` is gone then.
void inheritProperties(file::PropertyBlock& block, const std::string& from, const std::string& to) {
  std::vector<file::PropertyItem> inherited;
  for (const auto& group : block.groups())
    if (group.kind == file::PropertyGroup::OfColumn && file::sameName(group.owner, from))
      for (const auto& item : group.items)
        if (!block.find(to, item.name)) inherited.push_back(item);
  for (auto& item : inherited) block.set(to, std::move(item));
  block.removeOwner(from);
}

/// Lets index parts over column `from` lie over `to`; the positions of the indexes that have one.
std::vector<std::size_t> moveIndexes(file::TableDefinition& design, const Column& from, const Column& to) {
  std::vector<std::size_t> moved;
  for (std::size_t i = 0; i < design.realIndexes.size(); ++i)
    for (auto& part : design.realIndexes[i].columns)
      if (part.column == from.number) {
        checkIndexable(to);
        part.column = to.number;
        moved.push_back(i);
      }
  return moved;
}

}  // namespace

ColumnChanges::ColumnChanges(Tables& tables, Rows& rows, Catalogue& catalogue, AutoNumbers& autoNumbers,
                             TableChanges& tableChanges)
    : tables_(tables),
      rows_(rows),
      catalogue_(catalogue),
      autoNumbers_(autoNumbers),
      tableChanges_(tableChanges),
      connection_(tables.connection()) {}

std::uint16_t ColumnChanges::add(std::uint32_t page, Column column) {
  auto& changed = tables_.changeable(page);
  auto design = rows_.definition(changed);
  image::addColumn(design, std::move(column));
  const Column added = design.columns.back();
  const bool firstVariable = !added.fixed() && added.type != ColumnType::Boolean && added.slot == 0;

  Transaction whole(tables_);
  rows_.dropScan(changed);
  rows_.dropTriggers(changed);
  // Rows without variable columns have no table of offsets, which readers expect from now on.
  if (firstVariable) changed.note(Unsaved::Rows);
  if (added.autoNumber() || firstVariable) rows_.load(changed);
  if (changed.made())
    connection_.execute("ALTER TABLE " + tableName(page) + " ADD COLUMN " + columnName(added.number) + " " +
                        columnDeclaration(added.type));
  if (added.autoNumber()) {
    autoNumbers_.goOnFrom(page, 0);
    autoNumbers_.fill(design, added);
    changed.note(Unsaved::Rows);
  }
  tableChanges_.setDefinition(changed, std::move(design));
  whole.keep();
  return added.number;
}

void ColumnChanges::replace(std::uint32_t page, std::string_view name, std::string_view with) {
  auto& changed = tables_.changeable(page);
  auto design = rows_.definition(changed);
  const auto oldAt = positionOf(design, name), newAt = positionOf(design, with);
  const Column old = design.columns[oldAt];
  requireUnrelated(changed, old);
  Column& fresh = design.columns[newAt];
  const std::string temporary = fresh.name;
  fresh.name = old.name;
  fresh.position = old.position;
  const auto indexes = moveIndexes(design, old, fresh);
  design.columns.erase(design.columns.begin() + static_cast<std::ptrdiff_t>(oldAt));

  Transaction whole(tables_);
  rows_.dropScan(changed);
  rows_.dropIndexesAndTriggers(changed);
  for (const auto index : indexes) tableChanges_.checkRows(changed, design, index);
  auto block = catalogue_.properties(page);
  inheritProperties(block, old.name, temporary);
  block.renameOwner(temporary, old.name);
  catalogue_.changeProperties(page, std::move(block));
  forgetSlotZero(changed, old);
  tableChanges_.setDefinition(changed, std::move(design));
  whole.keep();
}

void ColumnChanges::resize(std::uint32_t page, std::string_view name, std::uint16_t size) {
  auto& changed = tables_.changeable(page);
  auto design = rows_.definition(changed);
  auto& column = design.columns[positionOf(design, name)];
  const bool text = column.type == ColumnType::Text;
  if ((!text && column.type != ColumnType::Binary) || column.fixed() || size == 0 ||
      size > (text ? TextSizeLimit : BinarySizeLimit))
    throw runtime::Error(InvalidDataType, source::TableDef,
                         "Dimensione non valida per il campo " + column.name);
  const auto length = static_cast<std::uint16_t>(text ? 2 * size : size);
  Transaction whole(tables_);
  if (length < column.length) {
    rows_.load(changed);
    // A character is one or two units of the size, so that only longer texts need be counted.
    auto rows = connection_.prepare("SELECT " + columnName(column.number) + " FROM " + tableName(page) +
                                    " WHERE length(" + columnName(column.number) + ") * 2 > ?1");
    rows.bind(1, std::int64_t{size});
    while (rows.step()) {
      const std::string value = rows.text(0);
      if ((text ? file::utf16Length(value) : value.size()) > size)
        throw runtime::Error(FieldTooSmall, source::TableDef,
                             "Un valore è troppo lungo per il campo " + design.name + "." + column.name);
    }
  }
  column.length = length;
  tableChanges_.setDefinition(changed, std::move(design));
  whole.keep();
}

void ColumnChanges::rename(std::uint32_t page, std::string_view name, const std::string& newName) {
  checkName(newName);
  auto& changed = tables_.changeable(page);
  auto design = rows_.definition(changed);
  const auto position = positionOf(design, name);
  const auto other = design.find(newName);
  if (other && *other != position)
    throw runtime::Error(DuplicateField, source::TableDef, "Campo già presente: " + newName);
  const std::string oldName = design.columns[position].name;
  design.columns[position].name = newName;

  Transaction whole(tables_);
  auto block = catalogue_.properties(page);
  block.renameOwner(oldName, newName);
  catalogue_.changeProperties(page, std::move(block));
  catalogue_.changeSystemTable(file::RelationshipsTable);
  renameColumnInRelations(connection_, changed.name, oldName, newName);
  tableChanges_.setDefinition(changed, std::move(design));
  whole.keep();
}

void ColumnChanges::move(std::uint32_t page, std::string_view name, std::int32_t position) {
  auto& changed = tables_.changeable(page);
  auto design = rows_.definition(changed);
  const auto moved = positionOf(design, name);
  if (position > LastPosition)
    throw runtime::Error(InvalidDataType, source::TableDef,
                         "Posizione non valida per il campo " + design.columns[moved].name);
  if (position < 0) {
    // There is no place before the first one: the others make room.
    const auto order = design.displayOrder();
    for (std::size_t i = 0; i < order.size(); ++i)
      design.columns[order[i]].position = static_cast<std::uint16_t>(i + 1);
    position = 0;
  }
  design.columns[moved].position = static_cast<std::uint16_t>(position);
  Transaction whole(tables_);
  tableChanges_.setDefinition(changed, std::move(design));
  whole.keep();
}

void ColumnChanges::makeAutoNumber(std::uint32_t page, std::string_view name) {
  auto& changed = tables_.changeable(page);
  auto design = rows_.definition(changed);
  auto& column = design.columns[positionOf(design, name)];
  requireNoAutoNumber(design);
  if (column.type != ColumnType::Long)
    throw runtime::Error(InvalidDataType, source::TableDef,
                         "Tipo di dati non valido per un contatore: " + column.name);
  Transaction whole(tables_);
  rows_.load(changed);
  rows_.dropTriggers(changed);
  auto largest = connection_.prepare("SELECT max(" + columnName(column.number) + ") FROM " + tableName(page));
  largest.step();
  autoNumbers_.goOnFrom(page, static_cast<std::int32_t>(std::max<std::int64_t>(largest.integer(0), 0)));
  column.flags |= Column::AutoNumber;
  tableChanges_.setDefinition(changed, std::move(design));
  whole.keep();
}

void ColumnChanges::drop(std::uint32_t page, std::string_view name) {
  auto& changed = tables_.changeable(page);
  auto design = rows_.definition(changed);
  const auto position = positionOf(design, name);
  const auto column = design.columns[position];
  requireUnrelated(changed, column);
  if (isIndexed(design, column.number))
    throw runtime::Error(FieldInIndex, source::TableDef,
                         "Il campo " + column.name + " fa parte di un indice");
  if (design.columns.size() == 1)
    throw runtime::Error(NoFieldDefined, source::TableDef,
                         "La tabella " + design.name + " deve avere almeno un campo");
  design.columns.erase(design.columns.begin() + static_cast<std::ptrdiff_t>(position));

  Transaction whole(tables_);
  rows_.dropScan(changed);
  rows_.dropTriggers(changed);
  forgetSlotZero(changed, column);
  auto block = catalogue_.properties(page);
  block.removeOwner(column.name);
  catalogue_.changeProperties(page, std::move(block));
  tableChanges_.setDefinition(changed, std::move(design));
  whole.keep();
}

void ColumnChanges::forgetSlotZero(Table& changed, const Column& column) {
  // Which rows were written before a table had variable columns is told by the column of the first slot.
  if (column.fixed() || column.type == ColumnType::Boolean || column.slot != 0) return;
  rows_.load(changed);
  changed.note(Unsaved::Rows);
}

void ColumnChanges::requireUnrelated(const Table& owner, const Column& column) {
  for (const auto& relation : catalogue_.relations())
    for (const auto& pair : relation.pairs)
      if ((file::sameName(relation.table, owner.name) && file::sameName(pair.column, column.name)) ||
          (file::sameName(relation.foreignTable, owner.name) &&
           file::sameName(pair.foreignColumn, column.name)))
        throw runtime::Error(FieldInRelation, source::TableDef,
                             "Il campo " + column.name + " fa parte della relazione " + relation.name);
}

}  // namespace jet::image
