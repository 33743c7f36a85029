#pragma once

#include <cstddef>
#include <cstdint>

namespace jet::file {

/// Places in each page of a table's definition; what follows the first page continues it at ContinuationAt.
inline constexpr std::size_t FreeBytesAt = 2, NextPageAt = 4, ContinuationAt = 8;
/// Where the bits of a usage map begin: behind kind and first page in its record, and on a page of bits.
inline constexpr std::size_t MapHead = 5, BitsAt = 4;
/// Bytes of the child's page behind an entry of an index node.
inline constexpr std::size_t ChildLength = 4;
/// In a definition: no column in this place of an index, and the end of the list of long columns' maps.
inline constexpr std::uint16_t NoColumn = 0xFFFF, EndMark = 0xFFFF;

/// Every offset and size of one format version; page code asks it and never which version it is.
/// Offsets count from the start of the page, record or definition string that the comment names.
struct Format {
  int version;  // 3 or 4
  std::size_t pageSize;
  bool wideText;  // UTF-16LE, else the header's code page

  // Page 0
  std::size_t headerMaskLength;
  std::size_t sortOrderAt, codePageAt, cipherKeyAt, passwordAt, passwordLength;
  std::size_t creationDateAt, sortVersionAt;  // 0: this version has none

  const char* propertyMark;  // with its closing zero the four bytes in front of a property block

  // Data pages
  std::size_t rowCountAt, rowDirectoryAt;
  // Records
  std::size_t
      columnCountSize;  // bytes of the column count in front; offsets and slot counts have the same size
  bool offsetJumps;     // one-byte offsets with a jump table

  // Table definition, first page
  std::size_t definitionLengthAt, rowsAt, autoNumberAt, tableKindAt, maxColumnsAt, variableColumnsAt,
      columnsAt, logicalIndexesAt, realIndexesAt, ownedMapAt, freeMapAt, countersAt;
  std::size_t counterSize, counterValueAt;
  // Column record
  std::size_t columnSize, columnNumberAt, columnSlotAt, columnPositionAt, columnSortAt, columnFlagsAt,
      columnFixedAt, columnLengthAt;
  std::size_t columnPrecisionAt;                                          // Numeric: precision and scale
  std::size_t columnCodePageAt, columnSortVersionAt, columnExtraFlagsAt;  // 0: this version has none
  std::size_t nameLengthSize;
  // Real index record
  std::size_t realIndexSize, realIndexColumnsAt, realIndexMapAt, realIndexRootAt, realIndexFlagsAt;
  // Logical index record
  std::size_t logicalIndexSize, logicalIndexAt;  // "At": where the number stands

  // Index pages
  std::size_t indexPreviousAt, indexNextAt, indexTailAt, indexPrefixAt, indexPrefixSize, indexLevelAt,
      indexBitmapAt, indexEntriesAt;

  // Usage maps
  std::size_t inlineMapBytes;  // of a normal inline bitmap
  std::size_t mapPageBits;     // pages that one bitmap page covers
};

extern const Format Jet3;
extern const Format Jet4;

}  // namespace jet::file
