#include <gtest/gtest.h>

#include <random>

#include "corpus.h"
#include "jet/file/properties.h"
#include "jet/file/read/catalogue.h"
#include "jet/file/read/definition_reader.h"
#include "jet/file/read/table_reader.h"
#include "jet/file/values.h"
#include "runtime/error.h"
#include "writing.h"

namespace jet::file {
namespace {

using Content = std::vector<std::byte>;

/// Does the content of a table; a value can't be longer than the file that it comes from.
void readTable(const PageFile& file, const CatalogueObject& object) {
  const std::size_t fileSize = std::size_t{file.pageCount()} * file.format().pageSize;
  const TableDefinition definition = readDefinition(file, object.id, object.name);
  TableReader reader(file, definition);
  for (Row row; reader.next(row);)
    for (std::size_t i = 0; i < row.size(); ++i) {
      ASSERT_LE(row[i].bytes.size(), fileSize);
      toVariant(file.format(), file.header().codePage, definition.columns[i], row[i]);
      if (!row[i].null && definition.columns[i].name == "LvProp")
        PropertyBlock(file.format(), row[i].bytes, file.header().codePage);
    }
}

/// Reads all that can be read; counts the numbered errors. Any other exception ends the test.
int errorsIn(const std::string& path) {
  int errors = 0;
  const auto trap = [&errors](auto&& step) {
    try {
      step();
    } catch (const runtime::Error& error) {
      EXPECT_NE(error.number(), 0);
      EXPECT_FALSE(error.description().empty());
      ++errors;
    }
  };
  trap([&] {
    const PageFile file(path, Sharing::Shared, true);
    trap([&] { readUsageMap(file, {1, 0}, PagesOutside::Ignored); });
    for (const CatalogueObject& object : readCatalogue(file))
      if (object.type == ObjectType::Table) trap([&] { readTable(file, object); });
  });
  return errors;
}

class Damager {
 public:
  explicit Damager(unsigned seed) : random_(seed) {}

  void damage(Content& content) {
    switch (below(8)) {
      case 0:
        content.resize(below(content.size()));
        break;  // cut anywhere
      case 1:
        content.resize(content.size() / 4096 / 2 * 4096);
        break;  // cut between pages
      case 2:
        fill(content, 1 + below(8192), std::byte{0});
        break;  // hole
      case 3:
        fill(content, 1 + below(4096), std::byte{0xFF});
        break;
      case 4:
        swapPages(content);
        break;
      default:
        for (std::size_t count = 1 + below(200); count > 0; --count)
          content[below(content.size())] = static_cast<std::byte>(below(256));
    }
  }
  /// Bytes where the structures are, since most of a file is content.
  void damageStructure(Content& content, std::size_t pageSize) {
    for (std::size_t count = 1 + below(6); count > 0; --count) {
      const std::size_t page = 1 + below(content.size() / pageSize - 1);
      const std::size_t offset = below(2) == 0 ? below(80) : pageSize - 1 - below(160);
      content[page * pageSize + offset] = static_cast<std::byte>(below(3) == 0 ? 0xFF : below(256));
    }
  }

 private:
  std::size_t below(std::size_t limit) {
    return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_);
  }
  void fill(Content& content, std::size_t length, std::byte value) {
    const std::size_t at = below(content.size());
    std::fill_n(content.begin() + static_cast<std::ptrdiff_t>(at), std::min(length, content.size() - at),
                value);
  }
  void swapPages(Content& content) {
    const std::size_t pages = content.size() / 4096;
    const auto a = content.begin() + static_cast<std::ptrdiff_t>(4096 * (1 + below(pages - 1)));
    const auto b = content.begin() + static_cast<std::ptrdiff_t>(4096 * (1 + below(pages - 1)));
    if (a != b) std::swap_ranges(a, a + 4096, b);
  }

  std::mt19937 random_;
};

/// A database with every way of keeping a value.
std::string rich() {
  using namespace writing;
  TableDefinition people = table("Soci",
                                 {{"Id", ColumnType::Long},
                                  {"Nome", ColumnType::Text, 100},
                                  {"Attivo", ColumnType::Boolean},
                                  {"Note", ColumnType::Memo},
                                  {"Foto", ColumnType::Ole}},
                                 {});
  const auto row = [](std::size_t i) -> Values {
    const Value note = i % 4 == 0 ? Value() : text(std::string(i * 37 % 9000, 'n'));
    return {raw(static_cast<std::int32_t>(i)), text("Rossi " + std::to_string(i)), bytes({1}), note,
            Bytes(i % 200)};
  };
  return withTable(emptyDatabase("vuoto.mdb"), std::move(people), made(60, row), "ricco.mdb");
}

TEST(Damage, BringsNumberedErrorsAndNothingElse) {
  std::vector<std::string> files = {rich()};
  if (corpus::available())
    for (const char* name : {"jet4\\overflowTestV2000.mdb", "jet4\\testIndexPropertiesV2000.mdb",
                             "jet3\\overflowTestV1997.mdb", "jet3\\queryTestV1997.mdb"})
      files.push_back(corpus::file(name));
  const std::string path = corpus::scratch("damaged.mdb");
  for (const std::string& file : files) {
    const Content whole = corpus::load(file);
    const std::size_t pageSize = whole[0x14] == std::byte{0} ? Jet3.pageSize : Jet4.pageSize;
    ASSERT_EQ(errorsIn(file), 0) << file;
    int errors = 0;
    for (unsigned seed = 1; seed <= 120; ++seed) {
      SCOPED_TRACE(file + " seed " + std::to_string(seed));
      Content content = whole;
      Damager damager(seed);
      if (seed % 2 == 0)
        damager.damageStructure(content, pageSize);
      else
        damager.damage(content);
      corpus::store(path, content);
      ASSERT_NO_THROW(errors += errorsIn(path));
    }
    EXPECT_GT(errors, 60) << file << ": the damage misses";
  }
}

}  // namespace
}  // namespace jet::file
