#include <gtest/gtest.h>

#include "corpus.h"
#include "jet/file/database_writer.h"
#include "jet/file/page_use.h"
#include "writing.h"

namespace jet::file {
namespace {

using writing::contentOf;
using writing::objections;

/// Every database of an engine that the product writes, with the tables that its test picks.
class Rewrite : public testing::TestWithParam<std::string> {
 protected:
  void SetUp() override {
    if (GetParam().empty()) GTEST_SKIP() << "AGGNORVO_JET_DATA is not set";
    path_ = corpus::file(GetParam());
    before_ = contentOf(path_);
  }
  /// Each table is a change of its own; `rows` tells whether its rows are written anew.
  std::string change(bool rows, const std::string& only = {}) const {
    const PageFile source(path_, Sharing::Shared, true);
    const std::vector<TableDefinition> tables = readTables(source);
    Changes changes;
    for (const TableDefinition& table : tables)
      if (only.empty() || table.name == only)
        changes.tables.push_back({table, rows ? std::make_unique<TableReader>(source, table) : nullptr});
    return writing::changed(path_, std::move(changes), "rewritten.mdb");
  }
  void expectSame(const std::string& written) const {
    EXPECT_EQ(objections(written, false), "");
    EXPECT_EQ(contentOf(written), before_);
  }

  std::string path_;
  std::vector<std::string> before_;
};

TEST_P(Rewrite, WithoutChangesCarriesEverythingOver) {
  expectSame(writing::changed(path_, {}, "same.mdb"));
}

TEST_P(Rewrite, OfOneTableKeepsTheOthers) {
  expectSame(change(true, "MSysObjects"));
}

TEST_P(Rewrite, OfAllRowsKeepsThem) {
  expectSame(change(true));
}

TEST_P(Rewrite, OfDefinitionsLeavesRowsInPlace) {
  expectSame(change(false));
}

TEST_P(Rewrite, CompactsToAFaultlessFile) {
  const std::string written = writing::compacted(path_, "compacted.mdb");
  EXPECT_EQ(objections(written), "");
  EXPECT_EQ(contentOf(written), before_);
  const PageFile old(path_, Sharing::Shared, true), compact(written, Sharing::Shared, true);
  EXPECT_LE(compact.pageCount(), old.pageCount());
}

std::vector<std::string> writableFiles() {
  if (!corpus::available()) return {""};
  std::vector<std::string> files = corpus::names();
  std::erase_if(files, [](const std::string& name) { return !name.starts_with("jet4"); });
  return files;
}

INSTANTIATE_TEST_SUITE_P(Corpus, Rewrite, testing::ValuesIn(writableFiles()), [](const auto& file) {
  std::string name = file.param.substr(file.param.find('\\') + 1);
  std::erase_if(name, [](unsigned char c) { return !std::isalnum(c); });
  return name.empty() ? std::string("None") : name;
});

TEST(RewriteOldFormat, IsRefused) {
  REQUIRE_CORPUS();
  const std::string path = corpus::file("jet3\\testV1997.mdb");
  for (const bool compact : {true, false}) {
    try {
      compact ? writing::compacted(path, "old.mdb") : writing::changed(path, {}, "old.mdb");
      ADD_FAILURE() << "written";
    } catch (const runtime::Error& error) {
      EXPECT_EQ(error.number(), 3041);
    }
  }
}

}  // namespace
}  // namespace jet::file
