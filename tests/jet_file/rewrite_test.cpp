#include <gtest/gtest.h>

#include "corpus.h"
#include "jet/file/read/page_use.h"
#include "jet/file/write/database_writer.h"
#include "support/errors.h"
#include "writing.h"

/// Databases of real engines, written anew: the same rows in a file without fault.
namespace jet::file {
namespace {

using writing::contentOf;
using writing::objections;

enum class Rows { Kept, Written };

/// Makes each table of the file (or the one named) a change that changes nothing.
std::string rewritten(const std::string& path, Rows rows, const std::string& name,
                      const std::string& only = {}) {
  const PageFile source(path, Sharing::Shared, true);
  const std::vector<TableDefinition> tables = readTables(source);
  Changes changes;
  for (const TableDefinition& table : tables)
    if (only.empty() || table.name == only)
      changes.tables.push_back(
          {table, rows == Rows::Written ? std::make_unique<TableReader>(source, table) : nullptr});
  return writing::changed(path, std::move(changes), name);
}

class Rewrite : public testing::Test {
 protected:
  void SetUp() override {
    REQUIRE_CORPUS();
    for (const std::string& name : corpus::names())
      if (name.starts_with("jet4")) files_.push_back(name.substr(name.find('\\') + 1));
    ASSERT_GE(files_.size(), 10u);
  }
  /// Writes every file of the corpus with `write`, compares the rows and has the new files checked.
  void expectSame(const std::function<std::string(const std::string& path, const std::string& name)>& write,
                  writing::Check check) const {
    std::vector<std::string> written;
    for (const std::string& name : files_) {
      const std::string path = corpus::file("jet4\\" + name);
      written.push_back(write(path, name));
      EXPECT_EQ(contentOf(written.back()), contentOf(path)) << name;
    }
    EXPECT_EQ(objections(written, check), "");
  }

  std::vector<std::string> files_;
};

TEST_F(Rewrite, WithoutChangesCarriesEverythingOver) {
  expectSame(
      [](const std::string& path, const std::string& name) { return writing::changed(path, {}, name); },
      writing::Check::Damage);
}

TEST_F(Rewrite, OfOneTableKeepsTheOthers) {
  expectSame([](const std::string& path,
                const std::string& name) { return rewritten(path, Rows::Written, name, "MSysObjects"); },
             writing::Check::Damage);
}

TEST_F(Rewrite, OfAllRowsKeepsThem) {
  expectSame(
      [](const std::string& path, const std::string& name) { return rewritten(path, Rows::Written, name); },
      writing::Check::Damage);
}

TEST_F(Rewrite, OfDefinitionsLeavesRowsInPlace) {
  expectSame(
      [](const std::string& path, const std::string& name) { return rewritten(path, Rows::Kept, name); },
      writing::Check::Damage);
}

TEST_F(Rewrite, CompactsToAFaultlessFile) {
  expectSame(
      [](const std::string& path, const std::string& name) {
        const std::string written = writing::compacted(path, name);
        const PageFile old(path, Sharing::Shared, true), compact(written, Sharing::Shared, true);
        EXPECT_LE(compact.pageCount(), old.pageCount()) << name;
        return written;
      },
      writing::Check::Strict);
}

TEST(RewriteOldFormat, IsRefused) {
  REQUIRE_CORPUS();
  const std::string path = corpus::file("jet3\\testV1997.mdb");
  for (const bool compact : {true, false}) {
    const auto write = [&] {
      compact ? writing::compacted(path, "old.mdb") : writing::changed(path, {}, "old.mdb");
    };
    EXPECT_EQ(support::errorOf(write), 3041);
  }
}

}  // namespace
}  // namespace jet::file
