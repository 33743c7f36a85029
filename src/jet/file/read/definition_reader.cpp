// Turns a table definition's pages into a TableDefinition.
#include "jet/file/read/definition_reader.h"

#include <algorithm>

#include "jet/file/errors.h"
#include "jet/file/page/data_page.h"
#include "jet/file/page/format.h"
#include "jet/file/text/text.h"

namespace jet::file {

namespace {

// The largest definition (255 columns, 32 indexes) fits several times.
constexpr std::size_t MostPages = 256;
constexpr std::size_t IndexColumns = 10;
constexpr std::uint8_t SystemKind = 0x53;

bool isKnown(std::uint8_t type) {
  return (type >= 1 && type <= 12) || (type >= 15 && type <= 17);
}

/// The bytes of a definition, joined from its pages.
class DefinitionBytes {
 public:
  DefinitionBytes(const PageFile& file, std::uint32_t first) : number_(first) {
    std::size_t length = 0;
    for (std::uint32_t next = first; next != 0;) {
      const Page page = file.page(next);
      if (page.u8(0) != static_cast<std::uint8_t>(PageKind::Definition))
        page.damaged("non è la definizione di una tabella");
      if (pages_.size() == MostPages || std::ranges::find(pages_, next) != pages_.end())
        page.damaged("definizione di tabella senza fine");
      const auto part = page.all().subspan(pages_.empty() ? 0 : ContinuationAt);
      bytes_.insert(bytes_.end(), part.begin(), part.end());
      pages_.push_back(next);
      next = page.u32(NextPageAt);
      if (length == 0) length = page.u32(file.format().definitionLengthAt);
      if (bytes_.size() >= length) break;
    }
    if (length > bytes_.size()) damaged("definizione di tabella incompleta");
    bytes_.resize(length);
  }

  const std::vector<std::uint32_t>& pages() const { return pages_; }
  std::span<const std::byte> bytes(std::size_t offset, std::size_t length) const {
    if (length > bytes_.size() || offset > bytes_.size() - length)
      damaged("definizione di tabella troppo corta");
    return std::span(bytes_).subspan(offset, length);
  }
  std::uint8_t u8(std::size_t offset) const { return std::to_integer<std::uint8_t>(bytes(offset, 1)[0]); }
  std::uint16_t u16(std::size_t offset) const { return readU16(bytes(offset, 2).data()); }
  std::uint32_t u32(std::size_t offset) const { return readU32(bytes(offset, 4).data()); }
  RowPointer pointer(std::size_t offset) const {
    const auto at = bytes(offset, 4);
    return {readU24(&at[1]), std::to_integer<std::uint8_t>(at[0])};
  }
  [[noreturn]] void damaged(const std::string& what) const {
    throw damagedFile("pagina " + std::to_string(number_) + ": " + what);
  }

 private:
  std::uint32_t number_;
  std::vector<std::byte> bytes_;
  std::vector<std::uint32_t> pages_;
};

/// Walks the parts of a definition in their order.
class DefinitionParser {
 public:
  DefinitionParser(const PageFile& file, const DefinitionBytes& bytes, TableDefinition& table)
      : format_(file.format()), codePage_(file.header().codePage), bytes_(bytes), table_(table) {}

  void parse() {
    parseHeader();
    for (Column& column : table_.columns) column = parseColumn();
    for (Column& column : table_.columns) column.name = parseName();
    checkColumns();
    for (RealIndex& index : table_.realIndexes) parseRealIndex(index);
    for (LogicalIndex& index : table_.logicalIndexes) index = parseLogicalIndex();
    for (LogicalIndex& index : table_.logicalIndexes) index.name = parseName();
    parseLongValueMaps();
  }

 private:
  /// `count` of things that take at least `size` bytes each, checked before anything is allocated for them.
  std::size_t checkedCount(std::size_t count, std::size_t size) const {
    bytes_.bytes(0, count * size);
    return count;
  }

  void parseHeader() {
    table_.rows = bytes_.u32(format_.rowsAt);
    table_.autoNumber = static_cast<std::int32_t>(bytes_.u32(format_.autoNumberAt));
    table_.system = bytes_.u8(format_.tableKindAt) == SystemKind;
    table_.maxColumns = bytes_.u16(format_.maxColumnsAt);
    table_.variableColumns = bytes_.u16(format_.variableColumnsAt);
    table_.ownedMap = bytes_.pointer(format_.ownedMapAt);
    table_.freeMap = bytes_.pointer(format_.freeMapAt);
    table_.columns.resize(checkedCount(bytes_.u16(format_.columnsAt), format_.columnSize));
    table_.realIndexes.resize(checkedCount(bytes_.u32(format_.realIndexesAt), format_.realIndexSize));
    table_.logicalIndexes.resize(
        checkedCount(bytes_.u32(format_.logicalIndexesAt), format_.logicalIndexSize));
    at_ = format_.countersAt;
    for (RealIndex& index : table_.realIndexes) {
      index.distinctKeys = bytes_.u32(at_ + format_.counterValueAt);
      at_ += format_.counterSize;
    }
  }

  Column parseColumn() {
    const std::uint8_t type = bytes_.u8(at_);
    if (!isKnown(type)) bytes_.damaged("colonna di tipo sconosciuto " + std::to_string(type));
    Column column;
    column.type = static_cast<ColumnType>(type);
    column.number = bytes_.u16(at_ + format_.columnNumberAt);
    column.slot = bytes_.u16(at_ + format_.columnSlotAt);
    column.position = bytes_.u16(at_ + format_.columnPositionAt);
    if (column.type == ColumnType::Numeric) {
      column.precision = bytes_.u8(at_ + format_.columnPrecisionAt);
      column.scale = bytes_.u8(at_ + format_.columnPrecisionAt + 1);
      column.sortOrder = 0;
    } else {
      column.sortOrder = bytes_.u16(at_ + format_.columnSortAt);
      if (format_.columnCodePageAt != 0) column.codePage = bytes_.u16(at_ + format_.columnCodePageAt);
    }
    if (format_.columnSortVersionAt != 0) column.sortVersion = bytes_.u8(at_ + format_.columnSortVersionAt);
    column.flags = bytes_.u8(at_ + format_.columnFlagsAt);
    if (format_.columnExtraFlagsAt != 0) column.extraFlags = bytes_.u8(at_ + format_.columnExtraFlagsAt);
    column.fixedOffset = bytes_.u16(at_ + format_.columnFixedAt);
    column.length = bytes_.u16(at_ + format_.columnLengthAt);
    at_ += format_.columnSize;
    return column;
  }

  std::string parseName() {
    const std::size_t length = format_.nameLengthSize == 1 ? bytes_.u8(at_) : bytes_.u16(at_);
    std::string name = nameText(format_, bytes_.bytes(at_ + format_.nameLengthSize, length), codePage_);
    at_ += format_.nameLengthSize + length;
    return name;
  }

  void checkColumns() const {
    std::vector<bool> seen(table_.maxColumns);
    for (const Column& column : table_.columns) {
      const auto wrong = [&](const char* what) {
        bytes_.damaged("colonna \"" + column.name + "\": " + what);
      };
      if (column.number >= table_.maxColumns || seen[column.number]) wrong("numero errato");
      seen[column.number] = true;
      if (column.type == ColumnType::Boolean) continue;
      if (column.fixed() && (column.fixedOffset + column.length > static_cast<int>(format_.pageSize) ||
                             isLongValue(column.type)))
        wrong("posto errato");
      if (column.fixed() && column.type != ColumnType::Boolean && valueSize(column.type) != 0 &&
          column.length != valueSize(column.type))
        wrong("lunghezza errata");
      if (!column.fixed() && column.slot >= table_.variableColumns) wrong("posto errato");
    }
  }

  void parseRealIndex(RealIndex& index) {
    for (std::size_t i = 0; i < IndexColumns; ++i) {
      const std::size_t at = at_ + format_.realIndexColumnsAt + 3 * i;
      const std::uint16_t number = bytes_.u16(at);
      if (number == NoColumn) continue;
      if (!table_.findNumber(number)) bytes_.damaged("indice su una colonna che non esiste");
      index.columns.push_back({number, bytes_.u8(at + 2) != 0});
    }
    if (index.columns.empty()) bytes_.damaged("indice senza colonne");
    index.map = bytes_.pointer(at_ + format_.realIndexMapAt);
    index.root = bytes_.u32(at_ + format_.realIndexRootAt);
    index.flags = bytes_.u8(at_ + format_.realIndexFlagsAt);
    at_ += format_.realIndexSize;
  }

  LogicalIndex parseLogicalIndex() {
    const std::size_t at = at_ + format_.logicalIndexAt;
    at_ += format_.logicalIndexSize;
    LogicalIndex index;
    index.number = bytes_.u32(at);
    index.real = bytes_.u32(at + 4);
    index.side = static_cast<LogicalIndex::Side>(bytes_.u8(at + 8));
    index.otherNumber = static_cast<std::int32_t>(bytes_.u32(at + 9));
    index.otherTable = bytes_.u32(at + 13);
    index.cascadeUpdates = bytes_.u8(at + 17);
    index.cascadeDeletes = bytes_.u8(at + 18);
    index.kind = static_cast<LogicalIndex::Kind>(bytes_.u8(at + 19));
    if (index.real >= table_.realIndexes.size() || index.side > LogicalIndex::Side::Foreign ||
        index.kind > LogicalIndex::Kind::Relation)
      bytes_.damaged("indice errato");
    return index;
  }

  void parseLongValueMaps() {
    for (std::uint16_t number = bytes_.u16(at_); number != EndMark; number = bytes_.u16(at_)) {
      const auto column = table_.findNumber(number);
      if (!column || !isLongValue(table_.columns[*column].type))
        bytes_.damaged("mappa di una colonna che non esiste");
      table_.columns[*column].ownedMap = bytes_.pointer(at_ + 2);
      table_.columns[*column].freeMap = bytes_.pointer(at_ + 6);
      at_ += 10;
    }
  }

  const Format& format_;
  const std::uint16_t codePage_;
  const DefinitionBytes& bytes_;
  TableDefinition& table_;
  std::size_t at_ = 0;
};

}  // namespace

TableDefinition readDefinition(const PageFile& file, std::uint32_t page, std::string name) {
  TableDefinition table;
  table.page = page;
  table.name = std::move(name);
  try {
    const DefinitionBytes bytes(file, page);
    table.pages = bytes.pages();
    DefinitionParser(file, bytes, table).parse();
  } catch (runtime::Error& error) {
    error.addPlace("tabella " + table.name);
    throw;
  }
  return table;
}

}  // namespace jet::file
