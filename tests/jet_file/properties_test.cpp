#include "jet/file/properties.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "corpus.h"
#include "jet/file/read/catalogue.h"
#include "jet/file/read/definition_reader.h"
#include "jet/file/read/table_reader.h"
#include "runtime/error.h"
#include "support/errors.h"

namespace jet::file {
namespace {

std::vector<std::byte> bytesOf(std::string_view text) {
  const auto* at = reinterpret_cast<const std::byte*>(text.data());
  return {at, at + text.size()};
}

PropertyItem item(const std::string& name, std::string_view data) {
  return {name, ColumnType::Text, 1, bytesOf(data)};
}

TEST(Properties, EveryBlockOfTheCorpusComesBackAsItWas) {
  REQUIRE_CORPUS();
  int blocks = 0;
  for (const std::string& name : corpus::names()) {
    SCOPED_TRACE(name);
    const PageFile file(corpus::file(name), Sharing::Shared, true);
    const TableDefinition catalogue = readDefinition(file, CatalogueTable, "MSysObjects");
    const std::size_t at = catalogue.find("LvProp").value();
    TableReader reader(file, catalogue, std::vector{at});
    for (Row row; reader.next(row);) {
      if (row[at].null) continue;
      const auto stored = row[at].bytes;
      const PropertyBlock block(file.format(), stored, file.header().codePage);
      const auto encoded = block.encode();
      EXPECT_TRUE(!file.format().wideText || std::ranges::equal(encoded, stored));
      EXPECT_EQ(PropertyBlock(Jet4, encoded).groups(), block.groups());
      ++blocks;
    }
  }
  EXPECT_GT(blocks, 100);
}

TEST(Properties, EditsReachTheOwnerMeantAndNothingElse) {
  PropertyBlock block;
  block.set("", item("Description", "d"));
  block.set("Cognome", item("Required", "1"));
  block.set("Nome", item("Required", "0"));
  block.set("cognome", item("REQUIRED", "2"));  // names compare without regard to case
  ASSERT_EQ(block.groups().size(), 3u);
  EXPECT_EQ(block.find("Cognome", "Required")->data, bytesOf("2"));
  EXPECT_EQ(block.find("Cognome", "Required")->name, "Required");
  EXPECT_EQ(block.find("Nome", "Required")->data, bytesOf("0"));
  EXPECT_EQ(block.find("", "Required"), nullptr);

  block.renameOwner("Cognome", "Denominazione");
  block.removeOwner("Nome");
  block.remove("", "Description");
  EXPECT_EQ(block.find("Denominazione", "Required")->data, bytesOf("2"));
  ASSERT_EQ(block.groups().size(), 1u);
  EXPECT_EQ(PropertyBlock(Jet4, block.encode()).groups(), block.groups());
}

TEST(Properties, KeepsChunksAndOwnerPartsThatItDoesNotKnow) {
  const std::string_view known(
      "MR2\0"
      "\x0C\0\0\0\x80\0\x04\0A\0B\0"                           // names: AB
      "\x15\0\0\0\0\0\x06\0\0\0\0\0\x09\0\x81\x0B\0\0\x01\0x"  // object: AB = x
      "\x09\0\0\0\x07\0xyz"                                    // a kind of chunk nobody knows
      "\x0F\0\0\0\x01\0\x09\0\0\0\x02\0C\0!",                  // column C, something behind its name
      4 + 12 + 21 + 9 + 15);
  const PropertyBlock block(Jet4, bytesOf(known));
  EXPECT_EQ(block.find("", "AB")->flag, 0x81);
  EXPECT_EQ(block.encode(), bytesOf(known));
}

TEST(Properties, DamageIsError3343) {
  const std::string_view damaged[] = {
      {"MR2", 3},                                                       // no mark
      {"KKD\0", 4},                                                     // the other version's mark
      {"MR2\0\x05\0\0\0\x80\0", 10},                                    // chunk shorter than its head
      {"MR2\0\xFF\xFF\xFF\xFF\x80\0", 10},                              // chunk behind the end
      {"MR2\0\x08\0\0\0\x80\0\x09\0", 12},                              // name behind the end
      {"MR2\0\x0A\0\0\0\0\0\x03\0\0\0", 14},                            // owner part shorter than its length
      {"MR2\0\x14\0\0\0\0\0\x06\0\0\0\0\0\x08\0\x01\x0A\0\0\0\0", 24},  // name number without a name
  };
  for (const std::string_view block : damaged)
    EXPECT_EQ(support::errorOf([&] { PropertyBlock(Jet4, bytesOf(block)); }), 3343)
        << testing::PrintToString(block);
}

}  // namespace
}  // namespace jet::file
