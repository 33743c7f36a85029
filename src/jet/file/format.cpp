#include "jet/file/format.h"

namespace jet::file {

const Format Jet3 = {
    .version = 3, .pageSize = 2048, .wideText = false,
    .headerMaskLength = 126,
    .sortOrderAt = 0x3A, .codePageAt = 0x3C, .cipherKeyAt = 0x3E, .passwordAt = 0x42, .passwordLength = 20,
    .creationDateAt = 0, .sortVersionAt = 0,
    .propertyMark = "KKD",
    .rowCountAt = 8, .rowDirectoryAt = 10,
    .columnCountSize = 1, .offsetJumps = true,
    .definitionLengthAt = 8, .rowsAt = 12, .autoNumberAt = 16, .tableKindAt = 20, .maxColumnsAt = 21,
    .variableColumnsAt = 23, .columnsAt = 25, .logicalIndexesAt = 27, .realIndexesAt = 31, .ownedMapAt = 35,
    .freeMapAt = 39, .countersAt = 43,
    .counterSize = 8, .counterValueAt = 4,
    .columnSize = 18, .columnNumberAt = 1, .columnSlotAt = 3, .columnPositionAt = 5, .columnSortAt = 9,
    .columnFlagsAt = 13, .columnFixedAt = 14, .columnLengthAt = 16,
    .columnPrecisionAt = 11,
    .columnCodePageAt = 11, .columnSortVersionAt = 0, .columnExtraFlagsAt = 0,
    .nameLengthSize = 1,
    .realIndexSize = 39, .realIndexColumnsAt = 0, .realIndexMapAt = 30, .realIndexRootAt = 34,
    .realIndexFlagsAt = 38,
    .logicalIndexSize = 20, .logicalIndexAt = 0,
    .indexPreviousAt = 8, .indexNextAt = 12, .indexTailAt = 16, .indexPrefixAt = 20, .indexPrefixSize = 1,
    .indexLevelAt = 21, .indexBitmapAt = 22, .indexEntriesAt = 0xF8,
    .inlineMapBytes = 128, .mapPageBits = (2048 - 4) * 8,
};

const Format Jet4 = {
    .version = 4, .pageSize = 4096, .wideText = true,
    .headerMaskLength = 128,
    .sortOrderAt = 0x6E, .codePageAt = 0x3C, .cipherKeyAt = 0x3E, .passwordAt = 0x42, .passwordLength = 40,
    .creationDateAt = 0x72, .sortVersionAt = 0x71,
    .propertyMark = "MR2",
    .rowCountAt = 12, .rowDirectoryAt = 14,
    .columnCountSize = 2, .offsetJumps = false,
    .definitionLengthAt = 8, .rowsAt = 16, .autoNumberAt = 20, .tableKindAt = 40, .maxColumnsAt = 41,
    .variableColumnsAt = 43, .columnsAt = 45, .logicalIndexesAt = 47, .realIndexesAt = 51, .ownedMapAt = 55,
    .freeMapAt = 59, .countersAt = 63,
    .counterSize = 12, .counterValueAt = 4,
    .columnSize = 25, .columnNumberAt = 5, .columnSlotAt = 7, .columnPositionAt = 9, .columnSortAt = 11,
    .columnFlagsAt = 15, .columnFixedAt = 21, .columnLengthAt = 23,
    .columnPrecisionAt = 11,
    .columnCodePageAt = 0, .columnSortVersionAt = 14, .columnExtraFlagsAt = 16,
    .nameLengthSize = 2,
    .realIndexSize = 52, .realIndexColumnsAt = 4, .realIndexMapAt = 34, .realIndexRootAt = 38,
    .realIndexFlagsAt = 46,
    .logicalIndexSize = 28, .logicalIndexAt = 4,
    .indexPreviousAt = 12, .indexNextAt = 16, .indexTailAt = 20, .indexPrefixAt = 24, .indexPrefixSize = 2,
    .indexLevelAt = 26, .indexBitmapAt = 27, .indexEntriesAt = 0x1E0,
    .inlineMapBytes = 64, .mapPageBits = (4096 - 4) * 8,
};

}  // namespace jet::file
