// A table definition as the bytes of its pages.
#include "jet/file/write/definition_writer.h"

#include <algorithm>

#include "jet/file/errors.h"
#include "jet/file/page/data_page.h"
#include "jet/file/page/format.h"
#include "jet/file/page/put_bytes.h"
#include "jet/file/text/text.h"

namespace jet::file {

namespace {

using Bytes = std::vector<std::byte>;

constexpr std::uint32_t DefinitionMark = 1625, RealIndexMark = 1923;
constexpr std::uint8_t UserTable = 0x4E, SystemTable = 0x53;
constexpr std::size_t MostColumns = 255, MostIndexColumns = 10, LongestName = 64;

void appendPointer(Bytes& out, RowPointer pointer) {
  appendU8(out, pointer.row);
  appendU16(out, pointer.page & 0xFFFF);
  appendU8(out, pointer.page >> 16);
}

void appendName(Bytes& out, const std::string& name) {
  const std::u16string units = toUtf16(name);
  if (units.empty() || units.size() > LongestName)
    throw jetError(InvalidArgument, "Il nome \"" + name + "\" è vuoto o più lungo di 64 caratteri");
  appendU16(out, 2 * units.size());
  for (const char16_t unit : units) appendU16(out, unit);
}

void appendHeader(Bytes& out, const TableDefinition& table) {
  appendU8(out, static_cast<std::size_t>(PageKind::Definition));
  appendU8(out, 1);
  appendZeros(out, Jet4.definitionLengthAt + 4 - out.size());  // filled in at the end
  appendU32(out, DefinitionMark);
  appendU32(out, table.rows);
  appendU32(out, static_cast<std::uint32_t>(table.autoNumber));
  appendU8(out, 1);
  appendZeros(out, Jet4.tableKindAt - out.size());
  appendU8(out, table.system ? SystemTable : UserTable);
  appendU16(out, table.maxColumns);
  appendU16(out, table.variableColumns);
  appendU16(out, table.columns.size());
  appendU32(out, static_cast<std::uint32_t>(table.logicalIndexes.size()));
  appendU32(out, static_cast<std::uint32_t>(table.realIndexes.size()));
  appendPointer(out, table.ownedMap);
  appendPointer(out, table.freeMap);
  for (const RealIndex& index : table.realIndexes) {
    appendU32(out, 0);
    appendU32(out, index.distinctKeys);
    appendU32(out, 0);
  }
}

void appendColumn(Bytes& out, const Column& column) {
  appendU8(out, static_cast<std::size_t>(column.type));
  appendU32(out, DefinitionMark);
  appendU16(out, column.number);
  appendU16(out, column.slot);
  appendU16(out, column.position);
  if (column.type == ColumnType::Numeric) {
    appendU8(out, column.precision);
    appendU8(out, column.scale);
  } else {
    appendU16(out, column.sortOrder);
  }
  appendU8(out, 0);
  appendU8(out, column.sortVersion);
  appendU8(out, column.flags);
  appendU8(out, column.extraFlags);
  appendU32(out, 0);
  appendU16(out, column.fixed() ? column.fixedOffset : 0);
  appendU16(out, column.length);
}

void appendRealIndex(Bytes& out, const RealIndex& index) {
  appendU32(out, RealIndexMark);
  for (std::size_t i = 0; i < MostIndexColumns; ++i) {
    const bool used = i < index.columns.size();
    appendU16(out, used ? index.columns[i].column : NoColumn);
    appendU8(out, used && index.columns[i].ascending);
  }
  appendPointer(out, index.map);
  appendU32(out, index.root);
  appendU32(out, 0);
  appendU8(out, index.flags);
  appendZeros(out, 5);
}

void appendLogicalIndex(Bytes& out, const LogicalIndex& index) {
  appendU32(out, DefinitionMark);
  appendU32(out, index.number);
  appendU32(out, index.real);
  appendU8(out, static_cast<std::size_t>(index.side));
  appendU32(out, static_cast<std::uint32_t>(index.otherNumber));
  appendU32(out, index.otherTable);
  appendU8(out, index.cascadeUpdates);
  appendU8(out, index.cascadeDeletes);
  appendU8(out, static_cast<std::size_t>(index.kind));
  appendU32(out, 0);
}

/// Name without the case of the letters that Western names use.
std::u16string foldedName(const std::string& name) {
  std::u16string units = toUtf16(name);
  for (char16_t& unit : units)
    if ((unit >= u'A' && unit <= u'Z') || (unit >= 0xC0 && unit <= 0xDE && unit != 0xD7)) unit += 0x20;
  return units;
}

std::vector<const LogicalIndex*> byName(const std::vector<LogicalIndex>& indexes) {
  std::vector<const LogicalIndex*> sorted;
  for (const LogicalIndex& index : indexes) sorted.push_back(&index);
  std::ranges::stable_sort(sorted, {}, [](const LogicalIndex* index) { return foldedName(index->name); });
  return sorted;
}

void checkCounts(const TableDefinition& table) {
  const auto tooMany = [](const RealIndex& index) { return index.columns.size() > MostIndexColumns; };
  if (table.maxColumns > MostColumns || table.columns.size() > table.maxColumns ||
      std::ranges::any_of(table.realIndexes, tooMany))
    throw jetError(InvalidArgument, "Troppi campi nella tabella o in un indice: \"" + table.name + "\"");
}

}  // namespace

std::vector<std::byte> encodeDefinition(const TableDefinition& table) {
  checkCounts(table);
  Bytes out;
  appendHeader(out, table);
  for (const Column& column : table.columns) appendColumn(out, column);
  for (const Column& column : table.columns) appendName(out, column.name);
  for (const RealIndex& index : table.realIndexes) appendRealIndex(out, index);
  const std::vector<const LogicalIndex*> logical = byName(table.logicalIndexes);
  for (const LogicalIndex* index : logical) appendLogicalIndex(out, *index);
  for (const LogicalIndex* index : logical) appendName(out, index->name);
  for (const Column& column : table.columns) {
    if (!isLongValue(column.type)) continue;
    appendU16(out, column.number);
    appendPointer(out, column.ownedMap);
    appendPointer(out, column.freeMap);
  }
  appendU16(out, EndMark);
  putU32(&out[Jet4.definitionLengthAt], static_cast<std::uint32_t>(out.size()));
  return out;
}

std::size_t definitionPages(std::size_t length) {
  if (length <= Jet4.pageSize) return 1;
  const std::size_t room = Jet4.pageSize - ContinuationAt;
  return 1 + (length - Jet4.pageSize + room - 1) / room;
}

void writeDefinition(Bytes definition, const std::vector<std::uint32_t>& pages, PageOutput& out) {
  Bytes page;
  std::size_t at = ContinuationAt;
  for (std::size_t i = 0; i < pages.size(); ++i) {
    page.assign(definition.begin(), definition.begin() + ContinuationAt);
    const std::size_t length = std::min(definition.size() - at, Jet4.pageSize - ContinuationAt);
    appendBytes(page, std::span(definition).subspan(at, length));
    at += length;
    const bool last = i + 1 == pages.size();
    const std::size_t unused = Jet4.pageSize - page.size();
    putU16(&page[FreeBytesAt], last && unused > ContinuationAt ? unused - ContinuationAt : 0);
    putU32(&page[NextPageAt], last ? 0 : pages[i + 1]);
    // The length and what else follows the page's head stand on the first page alone.
    page.resize(Jet4.pageSize);
    out.write(pages[i], page);
  }
}

}  // namespace jet::file
