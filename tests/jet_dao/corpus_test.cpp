#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <set>
#include <sstream>

#include "office.h"
#include "platform/files.h"

namespace jet::dao {
namespace {

namespace fs = std::filesystem;

/// Rows of all tables of a file as the format's checker reads them, one line a row, the table's name in
/// front.
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

/// Tables that differ, line for line in any order: a row that had moved is given elsewhere by the second
/// reader.
std::string differences(const Contents& before, const Contents& after) {
  const auto lines = [](const std::string& text) {
    std::multiset<std::string> result;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) result.insert(line);
    return result;
  };
  std::string names;
  for (const auto& [table, text] : before)
    if (const auto other = after.find(table); other == after.end() || lines(text) != lines(other->second))
      names += table + " ";
  return names;
}

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
  std::string table, field, value;
};

/// A value of a type other than any that the corpus holds; nothing for types that are not tried.
std::optional<runtime::Variant> otherValue(int type) {
  switch (type) {
    case dbLong:
    case dbInteger:
    case dbDouble:
    case dbCurrency:
      return runtime::Variant(std::int32_t{77});
    case dbText:
    case dbMemo:
      return runtime::Variant("à");
    case dbDate:
      return runtime::Variant(runtime::Date{77});
    default:
      return std::nullopt;
  }
}

/// Of all tables of the file, links left out.
std::vector<std::string> tableNames(Database& db) {
  std::vector<std::string> names;
  for (const auto& table : db.TableDefs())
    if (table->Connect().empty()) names.push_back(table->Name());
  return names;
}

/// Changes a value that no unique index and no relation holds in the first row of the first user table that
/// has one. `any`: whether there was any row to change.
std::optional<Changed> changeOneRow(Database& db, bool& any) {
  any = false;
  for (const auto& table : db.TableDefs()) {
    if (table->Attributes() != 0) continue;
    const std::string name = table->Name();
    const auto rows = db.OpenRecordset(name);
    if (rows->atEnd()) continue;
    any = true;
    std::set<std::string> bound;
    for (const auto& index : table->Indexes())
      for (const auto& part : index->Fields())
        if (index->Unique() || index->Foreign()) bound.insert(part.Name());
    for (const auto& field : rows->Fields()) {
      const auto value = otherValue(field.Type());
      if (!value || bound.contains(field.Name())) continue;
      rows->Edit();
      field.setValue(*value);
      rows->Update();
      return Changed{name, field.Name(), office::text(field.Value())};
    }
  }
  return std::nullopt;
}

TEST(Corpus, OneChangedRowLeavesEveryOtherTableAsItWas) {
  if (office::jetData().empty()) GTEST_SKIP() << "AGGNORVO_JET_DATA is not set";
  const support::TempFolder folder;
  std::string unchanged;
  for (const auto& entry : fs::directory_iterator(office::jetData() + "/corpus/jet4")) {
    const std::string file = entry.path().filename().string();
    SCOPED_TRACE(file);
    const std::string original = platform::fromSystemPath(entry.path().string()), copy = folder.path(file);
    platform::copyFile(original, copy);
    Workspace workspace;
    const auto db = workspace.OpenDatabase(copy, true);
    auto tables = tableNames(*db);
    bool any = false;
    const auto changed = changeOneRow(*db, any);
    db->Close();
    if (!changed) {
      if (any) unchanged += file + " ";
      continue;
    }
    std::erase(tables, changed->table);
    EXPECT_EQ(differences(withSecondReader(original, tables), withSecondReader(copy, tables)), "");
    EXPECT_EQ(differences(withChecker(original, tables), withChecker(copy, tables)), "");
    EXPECT_EQ(differences(withOurs(original, tables), withOurs(copy, tables)), "");
    EXPECT_EQ(office::complaints(copy, ""), "");
    EXPECT_EQ(office::query(copy, "SELECT TOP 1 [" + changed->field + "] FROM [" + changed->table + "]"),
              changed->value);
    EXPECT_EQ(
        differences(withSecondReader(original, {changed->table}), withSecondReader(copy, {changed->table})),
        changed->table + " ");
  }
  EXPECT_EQ(unchanged, "") << "files with rows, none of which could be changed";
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
    const auto tables = tableNames(*workspace.OpenDatabase(copy, true));
    workspace.Close();
    EXPECT_EQ(differences(withSecondReader(original, tables), withSecondReader(copy, tables)), "");
    EXPECT_EQ(differences(withOurs(original, tables), withOurs(copy, tables)), "");
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
