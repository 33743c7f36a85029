// Columns of existing tables: added, replaced, resized, renamed, moved and dropped.
#include <algorithm>

#include "jet/file/errors.h"
#include "jet/file/text/text.h"
#include "jet/image/catalogue_rows.h"
#include "jet/image/image.h"
#include "jet/image/row_codec.h"

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

std::uint16_t Image::addColumn(std::uint32_t page, Column column) {
  auto& changed = changeable(page);
  auto design = definition(changed);
  image::addColumn(design, std::move(column));
  const Column added = design.columns.back();
  const bool firstVariable = !added.fixed() && added.type != ColumnType::Boolean && added.slot == 0;

  Transaction whole(*this);
  dropScan(changed);
  dropTriggers(changed);
  // Rows without variable columns have no table of offsets, which readers expect from now on.
  if (firstVariable) changed.rowsChanged = true;
  if (added.autoNumber() || firstVariable) load(changed);
  if (changed.made)
    connection_.execute("ALTER TABLE " + tableName(page) + " ADD COLUMN " + columnName(added.number) + " " +
                        columnDeclaration(added.type));
  if (added.autoNumber()) {
    state_.autoNumbers[page] = 0;
    connection_.execute("UPDATE " + tableName(page) + " SET " + columnName(added.number) +
                        " = jet_auto_number(" + std::to_string(page) + ", NULL)");
    changed.rowsChanged = true;
  }
  setDefinition(changed, std::move(design));
  whole.keep();
  return added.number;
}

void Image::replaceColumn(std::uint32_t page, std::string_view name, std::string_view with) {
  auto& changed = changeable(page);
  auto design = definition(changed);
  const auto oldAt = positionOf(design, name), newAt = positionOf(design, with);
  const Column old = design.columns[oldAt];
  requireUnrelated(changed, old);
  Column& fresh = design.columns[newAt];
  const std::string temporary = fresh.name;
  fresh.name = old.name;
  fresh.position = old.position;
  const auto indexes = moveIndexes(design, old, fresh);
  design.columns.erase(design.columns.begin() + static_cast<std::ptrdiff_t>(oldAt));

  Transaction whole(*this);
  dropScan(changed);
  dropRules(changed);
  for (const auto index : indexes) checkRows(changed, design, index);
  auto block = properties(page);
  inheritProperties(block, old.name, temporary);
  block.renameOwner(temporary, old.name);
  changeProperties(page, std::move(block));
  forgetSlotZero(changed, old);
  setDefinition(changed, std::move(design));
  whole.keep();
}

void Image::resizeColumn(std::uint32_t page, std::string_view name, std::uint16_t size) {
  auto& changed = changeable(page);
  auto design = definition(changed);
  auto& column = design.columns[positionOf(design, name)];
  const bool text = column.type == ColumnType::Text;
  if ((!text && column.type != ColumnType::Binary) || column.fixed() || size == 0 ||
      size > (text ? TextSizeLimit : BinarySizeLimit))
    throw runtime::Error(InvalidDataType, source::TableDef,
                         "Dimensione non valida per il campo " + column.name);
  const auto length = static_cast<std::uint16_t>(text ? 2 * size : size);
  Transaction whole(*this);
  if (length < column.length) {
    load(changed);
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
  setDefinition(changed, std::move(design));
  whole.keep();
}

void Image::renameColumn(std::uint32_t page, std::string_view name, const std::string& newName) {
  checkName(newName);
  auto& changed = changeable(page);
  auto design = definition(changed);
  const auto position = positionOf(design, name);
  const auto other = design.find(newName);
  if (other && *other != position)
    throw runtime::Error(DuplicateField, source::TableDef, "Campo già presente: " + newName);
  const std::string oldName = design.columns[position].name;
  design.columns[position].name = newName;

  Transaction whole(*this);
  auto block = properties(page);
  block.renameOwner(oldName, newName);
  changeProperties(page, std::move(block));
  changeSystemTable(file::RelationshipsTable);
  renameColumnInRelations(connection_, changed.name, oldName, newName);
  setDefinition(changed, std::move(design));
  whole.keep();
}

void Image::moveColumn(std::uint32_t page, std::string_view name, std::int32_t position) {
  auto& changed = changeable(page);
  auto design = definition(changed);
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
  Transaction whole(*this);
  setDefinition(changed, std::move(design));
  whole.keep();
}

void Image::makeAutoNumber(std::uint32_t page, std::string_view name) {
  auto& changed = changeable(page);
  auto design = definition(changed);
  auto& column = design.columns[positionOf(design, name)];
  requireNoAutoNumber(design);
  if (column.type != ColumnType::Long)
    throw runtime::Error(InvalidDataType, source::TableDef,
                         "Tipo di dati non valido per un contatore: " + column.name);
  Transaction whole(*this);
  load(changed);
  dropTriggers(changed);
  auto largest = connection_.prepare("SELECT max(" + columnName(column.number) + ") FROM " + tableName(page));
  largest.step();
  state_.autoNumbers[page] = static_cast<std::int32_t>(std::max<std::int64_t>(largest.integer(0), 0));
  column.flags |= Column::AutoNumber;
  setDefinition(changed, std::move(design));
  whole.keep();
}

void Image::dropColumn(std::uint32_t page, std::string_view name) {
  auto& changed = changeable(page);
  auto design = definition(changed);
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

  Transaction whole(*this);
  dropScan(changed);
  dropTriggers(changed);
  forgetSlotZero(changed, column);
  auto block = properties(page);
  block.removeOwner(column.name);
  changeProperties(page, std::move(block));
  setDefinition(changed, std::move(design));
  whole.keep();
}

void Image::forgetSlotZero(Table& changed, const Column& column) {
  // Which rows were written before a table had variable columns is told by the column of the first slot.
  if (column.fixed() || column.type == ColumnType::Boolean || column.slot != 0) return;
  load(changed);
  changed.rowsChanged = true;
}

void Image::requireUnrelated(const Table& owner, const Column& column) {
  for (const auto& relation : relations())
    for (const auto& pair : relation.pairs)
      if ((file::sameName(relation.table, owner.name) && file::sameName(pair.column, column.name)) ||
          (file::sameName(relation.foreignTable, owner.name) &&
           file::sameName(pair.foreignColumn, column.name)))
        throw runtime::Error(FieldInRelation, source::TableDef,
                             "Il campo " + column.name + " fa parte della relazione " + relation.name);
}

}  // namespace jet::image
