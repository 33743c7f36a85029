#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include "office.h"
#include "platform/files.h"

namespace jet::dao {
namespace {

namespace fs = std::filesystem;

/// Rows of all tables of a file as the format's checker reads them, one line a row, the table's name in front.
constexpr char DumpScript[] = R"(
import argparse, json, sys
sys.path.insert(0, sys.argv[1])
import jetcheck
args = argparse.Namespace(summary=False, dump=None, notes=False, stats=False, strict=False, allow=set(), pages=False)
db = jetcheck.Database(sys.argv[2], args)
db.run()
for name in sys.argv[3:]:
    for row in db.rows_of(name)[1]:
        print(name, json.dumps(row, sort_keys=True))
)";

using Contents = std::map<std::string, std::string>;  // by table

Contents withSecondReader(const std::string& path, const std::vector<std::string>& tables) {
  Contents contents;
  for (const auto& table : tables) contents[table] = office::exported(path, table);
  return contents;
}

Contents withChecker(const std::string& path, const std::vector<std::string>& tables) {
  std::string command = "python3 -c " + support::shellWord(DumpScript) + " " +
                        support::shellWord(office::jetData() + "/jet") + " " + office::system(path);
  for (const auto& table : tables) command += " " + support::shellWord(table);
  const auto result = support::runCommand(command);
  EXPECT_EQ(result.status, 0) << result.errors;
  return {{"", result.output}};
}

Contents withOurs(const std::string& path, const std::vector<std::string>& tables) {
  Contents contents;
  for (const auto& table : tables) contents[table] = office::query(path, "SELECT * FROM [" + table + "]");
  return contents;
}

struct Changed {
  std::string table, field;
};

/// Changes a value that no index holds in one row of the first user table that has one.
std::optional<Changed> changeOneRow(Database& db) {
  for (const auto& name : db.tableNames()) {
    if (name.starts_with("MSys")) continue;
    const auto table = db.TableDefs(name);
    const auto rows = db.OpenRecordset(name);
    if (rows->atEnd()) continue;
    for (std::size_t i = 0; i < table->fieldCount(); ++i) {
      auto field = rows->Fields(i);
      const bool number = field.Type() == dbLong || field.Type() == dbInteger || field.Type() == dbDouble;
      if (!number && field.Type() != dbText) continue;
      bool indexed = false;
      for (const auto& index : table->Indexes())
        for (const auto& part : index.Fields) indexed |= part.name == field.Name();
      if (indexed) continue;
      rows->Edit();
      field.setValue(number ? runtime::Variant(std::int32_t{77}) : runtime::Variant("à"));
      rows->Update();
      return Changed{name, field.Name()};
    }
  }
  return std::nullopt;
}

TEST(Corpus, OneChangedRowLeavesEveryOtherTableAsItWas) {
  if (office::jetData().empty()) GTEST_SKIP() << "AGGNORVO_JET_DATA is not set";
  const support::TempFolder folder;
  std::size_t changedFiles = 0;
  for (const auto& entry : fs::directory_iterator(office::jetData() + "/corpus/jet4")) {
    const std::string file = entry.path().filename().string();
    SCOPED_TRACE(file);
    const std::string original = platform::fromSystemPath(entry.path().string()), copy = folder.path(file);
    platform::copyFile(original, copy);
    Workspace workspace;
    const auto db = workspace.OpenDatabase(copy, true);
    auto tables = db->tableNames();
    const auto changed = changeOneRow(*db);
    db->Close();
    if (!changed) continue;
    ++changedFiles;
    std::erase(tables, changed->table);
    EXPECT_EQ(withSecondReader(copy, tables), withSecondReader(original, tables));
    EXPECT_EQ(withChecker(copy, tables), withChecker(original, tables));
    EXPECT_EQ(withOurs(copy, tables), withOurs(original, tables));
    EXPECT_EQ(office::complaints(copy, ""), "");
    const auto value = office::query(copy, "SELECT TOP 1 [" + changed->field + "] FROM [" + changed->table + "]");
    EXPECT_TRUE(value.starts_with("77") || value.starts_with("à")) << value;
    EXPECT_NE(office::exported(copy, changed->table), office::exported(original, changed->table));
  }
  EXPECT_GE(changedFiles, 12u);
}

TEST(Corpus, ACompactCopyReadsTheSame) {
  if (office::jetData().empty()) GTEST_SKIP() << "AGGNORVO_JET_DATA is not set";
  const support::TempFolder folder;
  for (const auto& entry : fs::directory_iterator(office::jetData() + "/corpus/jet4")) {
    const std::string file = entry.path().filename().string();
    SCOPED_TRACE(file);
    const std::string original = platform::fromSystemPath(entry.path().string()), copy = folder.path(file);
    platform::copyFile(original, folder.path("da-compattare.mdb"));
    DBEngine::CompactDatabase(folder.path("da-compattare.mdb"), copy);
    Workspace workspace;
    const auto tables = workspace.OpenDatabase(copy, true)->tableNames();
    workspace.Close();
    EXPECT_EQ(withSecondReader(copy, tables), withSecondReader(original, tables));
    EXPECT_EQ(withOurs(copy, tables), withOurs(original, tables));
    EXPECT_EQ(office::complaints(copy), "");
  }
}

TEST(Corpus, Jet3OpensForReadingOnly) {
  if (office::jetData().empty()) GTEST_SKIP() << "AGGNORVO_JET_DATA is not set";
  const std::string path = platform::fromSystemPath(office::jetData() + "/corpus/jet3/nwind.mdb");
  EXPECT_EQ(office::query(path, "SELECT Count(*) FROM Customers"), "91");
  EXPECT_EQ(office::errorOf([&] { Workspace().OpenDatabase(path, true); }), 3041);
}

}  // namespace
}  // namespace jet::dao
