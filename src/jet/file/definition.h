#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A table's description as a file holds it, free of page layout.
namespace jet::file {

enum class ColumnType : std::uint8_t {
  Boolean = 1,
  Byte = 2,
  Integer = 3,
  Long = 4,
  Currency = 5,
  Single = 6,
  Double = 7,
  Date = 8,
  Binary = 9,
  Text = 10,
  Ole = 11,
  Memo = 12,
  Guid = 15,
  Numeric = 16,
  Raw = 17,  // the engine's own fixed block of bytes
};

constexpr bool isLongValue(ColumnType type) {
  return type == ColumnType::Ole || type == ColumnType::Memo;
}
constexpr bool isText(ColumnType type) {
  return type == ColumnType::Text || type == ColumnType::Memo;
}

/// Bytes of a field of the type in file form; 0 where they differ from value to value.
std::size_t valueSize(ColumnType type);

/// Row of a page that holds something: a record, a usage map. Page 0 row 0 means none.
struct RowPointer {
  std::uint32_t page = 0;
  std::uint8_t row = 0;
  bool operator==(const RowPointer&) const = default;
  explicit operator bool() const { return page != 0 || row != 0; }
};

struct Column {
  // Bits of `flags` and `extraFlags`.
  static constexpr std::uint8_t Fixed = 0x01, Updatable = 0x02, AutoNumber = 0x04, SystemColumn = 0x10,
                                OwnerColumn = 0x20, AutoGuid = 0x40, Hyperlink = 0x80;
  static constexpr std::uint8_t Compressed = 0x01;

  std::string name;
  ColumnType type = ColumnType::Long;
  std::uint16_t number = 0;        // bit in the presence bits; never reused
  std::uint16_t slot = 0;          // of a variable column
  std::uint16_t position = 0;      // display order
  std::uint16_t sortOrder = 1033;  // Text, Memo
  std::uint8_t sortVersion = 0;
  std::uint8_t precision = 0;  // Numeric
  std::uint8_t scale = 0;      // Numeric
  std::uint16_t codePage = 0;  // Jet 3 only
  std::uint8_t flags = Updatable;
  std::uint8_t extraFlags = 0;
  std::uint16_t fixedOffset = 0;  // of a fixed column, behind the column count
  std::uint16_t length = 0;       // bytes; Text of Jet 4 two a character; Memo, OLE 0
  RowPointer ownedMap, freeMap;   // Memo, OLE: usage maps of its long value pages

  bool fixed() const { return flags & Fixed; }
  bool autoNumber() const { return flags & AutoNumber; }
};

struct IndexColumn {
  std::uint16_t column = 0;  // Column::number
  bool ascending = true;
  bool operator==(const IndexColumn&) const = default;
};

/// A tree of keys in the file.
struct RealIndex {
  static constexpr std::uint8_t Unique = 0x01, IgnoreNulls = 0x02, Required = 0x08, Jet4Mark = 0x80;

  std::vector<IndexColumn> columns;  // 1 to 10
  std::uint8_t flags = Jet4Mark;
  std::uint32_t root = 0;
  RowPointer map;
  std::uint32_t distinctKeys = 0;
};

/// A name for a real index, or a relation's end.
struct LogicalIndex {
  enum class Kind : std::uint8_t { Ordinary = 0, Primary = 1, Relation = 2 };
  enum class Side : std::uint8_t { None = 0, Primary = 1, Foreign = 2 };

  std::string name;
  std::uint32_t number = 0;  // unique in the table, in creation order
  std::uint32_t real = 0;    // position in TableDefinition::realIndexes
  Side side = Side::None;
  std::int32_t otherNumber = -1;
  std::uint32_t otherTable = 0;     // definition page
  std::uint8_t cascadeUpdates = 4;  // 4 where there is no relation
  std::uint8_t cascadeDeletes = 4;
  Kind kind = Kind::Ordinary;
};

struct TableDefinition {
  std::uint32_t page = 0;  // first page; the table's id in the catalogue
  std::string name;        // not in the definition itself: from the catalogue, for messages
  bool system = false;     // 0x53 instead of 0x4E
  std::uint32_t rows = 0;
  std::int32_t autoNumber = 0;        // last one given out
  std::uint16_t maxColumns = 0;       // highest column number ever used + 1
  std::uint16_t variableColumns = 0;  // variable slots ever used
  std::vector<Column> columns;        // in the order of the column records
  std::vector<RealIndex> realIndexes;
  std::vector<LogicalIndex> logicalIndexes;
  RowPointer ownedMap, freeMap;
  std::vector<std::uint32_t> pages;  // of the definition itself, first page first

  /// Position in `columns`, by name without regard to case.
  std::optional<std::size_t> find(std::string_view columnName) const;
  std::optional<std::size_t> findNumber(std::uint16_t number) const;
  /// Positions in `columns` in display order, the order of `*`.
  std::vector<std::size_t> displayOrder() const;
  /// Length of the fixed part of a row: the largest offset + length of a fixed column, holes included.
  std::uint16_t fixedLength() const;
};

/// True if two names of objects or columns are the same to the engine: compared by text key, so without
/// regard to case and to what the key ignores.
bool sameName(std::string_view a, std::string_view b);
/// Text with which equal names are equal bytes.
std::string nameKey(std::string_view name);

}  // namespace jet::file
