#include "jet/file/index/index_key.h"

#include <gtest/gtest.h>

#include <map>

#include "corpus.h"
#include "jet/file/page/data_page.h"
#include "jet/file/read/page_use.h"
#include "support/errors.h"
#include "writing.h"

namespace jet::file {
namespace {

using writing::Bytes;
using writing::hex;
using writing::raw;
using writing::toHex;

TEST(IndexKey, OrdersEveryTypeInBothDirections) {
  using enum ColumnType;
  struct Case {
    ColumnType type;
    Bytes value;
    const char *ascending, *descending;
  };
  const Case cases[] = {
      {Boolean, hex("01"), "7F00", "80FF"},
      {Boolean, hex("00"), "7FFF", "8000"},
      {Byte, hex("2A"), "7F2A", "80D5"},
      {Integer, raw(std::int16_t{-2}), "7F7FFE", "808001"},
      {Long, raw(std::int32_t{1}), "7F80000001", "807FFFFFFE"},
      {Long, raw(std::int32_t{-1}), "7F7FFFFFFF", "8080000000"},
      {Currency, raw(std::int64_t{10000}), "7F8000000000002710", "807FFFFFFFFFFFD8EF"},
      {Single, raw(1.5f), "7FBFC00000", "80403FFFFF"},
      {Double, raw(-1.5), "7F4007FFFFFFFFFFFF", "80BFF8000000000000"},
      {Date, raw(2.0), "7FC000000000000000", "803FFFFFFFFFFFFFFF"},
      {Guid, hex("33221100554477668899AABBCCDDEEFF"), "7F0011223344556677098899AABBCCDDEEFF08",
       "80FFEEDDCCBBAA9988097766554433221100F7"},
      {Binary, hex("010203"), "7F010203000000000003", "80FEFDFCFFFFFFFFFFFC"},
      {Binary, hex("0102030405060708"), "7F010203040506070808", "80FEFDFCFBFAF9F8F7F7"},
      {Binary, {}, "7F", "80"},
      {Numeric,
       hex("00000000000000000000000000"
           "39300000"),
       "7FFF00000000000000000000000000003039", "80FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFCFC6"},
      {Numeric,
       hex("80000000000000000000000000"
           "39300000"),
       "7F00FFFFFFFFFFFFFFFFFFFFFFFFFFFFCFC6", "800000000000000000000000000000003039"},
      {Text, writing::text("Ab", false), "7F4A4C0100", "80B5B3FEFF00"},
      {Text, writing::text("Abé", true), "7F4A4C510102020E00", "80B5B3AEFEFDFDF1FF00"},
      {Text,
       hex("FFFE4100"
           "6200"
           "00"
           "6200"),
       "7F4A4C4C0100", "80B5B3B3FEFF00"},  // both modes of compression
      {Memo, writing::text(std::string(300, 'a')), nullptr, nullptr},
  };
  for (const Case& c : cases) {
    Column column;
    column.type = c.type;
    for (const bool ascending : {true, false}) {
      std::vector<std::byte> key;
      appendKey(Jet4, column, {false, c.value}, ascending, key);
      if (c.ascending == nullptr)
        EXPECT_EQ(key.size(), ascending ? 258u : 259u);  // 255 characters, flag, ends
      else
        EXPECT_EQ(toHex(key), ascending ? c.ascending : c.descending) << toHex(c.value);
      key.clear();
      appendKey(Jet4, column, {}, ascending, key);
      EXPECT_EQ(toHex(key), ascending ? "00" : "FF");
    }
  }
}

TEST(IndexKey, RefusesWhatHasNoOrder) {
  struct Case {
    ColumnType type;
    std::uint16_t sortOrder;
    Bytes value;
    int number;
  };
  const Case cases[] = {{ColumnType::Ole, 0, hex("00"), 3001},
                        {ColumnType::Text, 1041, writing::text("a"), 3001},
                        {ColumnType::Long, 0, hex("0000"), 3343},
                        {ColumnType::Text, 1033, hex("410042"), 3343}};
  for (const Case& c : cases) {
    Column column;
    column.type = c.type;
    column.sortOrder = c.sortOrder;
    std::vector<std::byte> key;
    EXPECT_EQ(support::errorOf([&] { appendKey(Jet4, column, {false, c.value}, true, key); }), c.number);
  }
}

using StoredKeys = std::map<std::pair<std::uint32_t, unsigned>, std::string>;  // by row

/// Entries of a leaf, which stores a common prefix only once.
void addLeaf(const Page& leaf, StoredKeys& keys) {
  std::vector<std::byte> prefix;
  std::size_t start = 0;
  for (std::size_t end = 1; end <= leaf.size() - Jet4.indexEntriesAt; ++end) {
    if ((leaf.u8(Jet4.indexBitmapAt + end / 8) >> end % 8 & 1) == 0) continue;
    std::vector<std::byte> entry = prefix;
    const auto stored = leaf.bytes(Jet4.indexEntriesAt + start, end - start);
    entry.insert(entry.end(), stored.begin(), stored.end());
    if (start == 0) prefix.assign(entry.begin(), entry.begin() + leaf.u16(Jet4.indexPrefixAt));
    start = end;
    const std::size_t at = entry.size() - 4;
    const auto byte = [&](std::size_t i) { return std::to_integer<unsigned>(entry[at + i]); };
    keys[{byte(0) << 16 | byte(1) << 8 | byte(2), byte(3)}] = toHex(std::span(entry).first(at));
  }
}

StoredKeys storedKeys(const PageFile& file, const RealIndex& index) {
  StoredKeys keys;
  for (const std::uint32_t number : readUsageMap(file, index.map))
    if (const Page page = file.page(number); page.u8(0) == static_cast<int>(PageKind::IndexLeaf))
      addLeaf(page, keys);
  return keys;
}

StoredKeys madeKeys(const PageFile& file, const TableDefinition& table, const RealIndex& index) {
  StoredKeys keys;
  TableReader reader(file, table);
  for (Row row; reader.next(row);) {
    std::vector<std::byte> key;
    std::size_t nulls = 0;
    indexKey(Jet4, table, index, row, key, nulls);
    if (nulls == index.columns.size() && (index.flags & RealIndex::IgnoreNulls) != 0) continue;
    keys[{reader.pointer().page, reader.pointer().row}] = toHex(key);
  }
  return keys;
}

TEST(IndexKey, EqualsEveryKeyThatEnginesStored) {
  REQUIRE_CORPUS();
  std::size_t compared = 0;
  for (const std::string& name : corpus::names()) {
    if (!name.starts_with("jet4")) continue;
    const PageFile file(corpus::file(name), Sharing::Shared, true);
    for (const TableDefinition& table : readTables(file))
      for (const RealIndex& index : table.realIndexes) {
        const StoredKeys stored = storedKeys(file, index);
        EXPECT_EQ(madeKeys(file, table, index), stored) << name << " " << table.name;
        compared += stored.size();
      }
  }
  EXPECT_GT(compared, 2500u);
}

}  // namespace
}  // namespace jet::file
