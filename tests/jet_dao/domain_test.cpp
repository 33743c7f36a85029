#include <gtest/gtest.h>

#include "office.h"

namespace jet::dao {
namespace {

/// Three tables, of which one is large enough to be read from the file without being loaded.
class Domains : public testing::Test {
 protected:
  Domains() {
    std::vector<std::string> statements = {
        "CREATE TABLE cifre (n LONG)",
        "CREATE TABLE grande (id LONG CONSTRAINT pk PRIMARY KEY, quota CURRENCY)",
        "CREATE TABLE nomi (tabella TEXT(20), chiave LONG)",
        "INSERT INTO nomi VALUES ('cifre', 7)",
        "INSERT INTO nomi VALUES ('grande', 3)",
    };
    for (const char digit : std::string("01234567"))
      statements.push_back("INSERT INTO cifre VALUES (" + std::string(1, digit) + ")");
    statements.push_back(
        "INSERT INTO grande SELECT a.n + 8 * b.n + 64 * c.n + 512 * d.n AS id, 1.5 AS quota "
        "FROM cifre AS a, cifre AS b, cifre AS c, cifre AS d");
    office::make(path, statements);
  }
  support::TempFolder folder;
  std::string path = folder.path("a.mdb");
  Workspace workspace;
};

TEST_F(Domains, AreAskedWhateverIsLoaded) {
  const struct {
    const char* sql;
    const char* expected;
  } cases[] = {
      {"SELECT chiave, DLookup('quota', 'grande', 'id = ' & chiave) FROM nomi", "7|1,5 3|1,5"},
      {"SELECT tabella, DCount('*', tabella) FROM nomi", "cifre|8 grande|4096"},
      {"SELECT DCount('*', 'grande', 'id < ' & id) FROM grande WHERE id = 100", "100"},
      {"SELECT chiave FROM nomi WHERE DCount('*', 'grande', "
       "'id IN (SELECT n FROM cifre WHERE n < ' & chiave & ')') = 3",
       "3"},
  };
  for (const auto& test : cases) EXPECT_EQ(office::query(path, test.sql), test.expected) << test.sql;
}

TEST_F(Domains, GiveAnUpdateItsValuesAndFailItAsAWhole) {
  const auto db = workspace.OpenDatabase(path);
  db->Execute("UPDATE nomi SET chiave = DMax('id', 'grande', 'id < ' & chiave)", dbFailOnError);
  // What only the row tells can't be loaded while rows change.
  const char* late =
      "UPDATE nomi SET chiave = DCount('*', 'grande', 'id IN (' & Left('SELECT n FROM cifre', 99) & ')')";
  EXPECT_EQ(office::errorOf([&] { db->Execute(late, dbFailOnError); }), 3211);
  const char* overflow =
      "UPDATE nomi SET chiave = chiave + DCount('*', tabella, 'n > 3 AND 1 \\ (6 - ' & chiave & ') = 0')";
  EXPECT_NE(office::errorOf([&] { db->Execute(overflow, dbFailOnError); }), 0);
  db->Execute(
      "UPDATE nomi SET chiave = chiave + DCount('*', 'grande', 'id IN (SELECT n FROM ' & tabella & ')') "
      "WHERE tabella = 'cifre'",
      dbFailOnError);
  db->Close();
  EXPECT_EQ(office::query(path, "SELECT chiave FROM nomi"), "14 2");
  EXPECT_EQ(office::complaints(path), "");
}

}  // namespace
}  // namespace jet::dao
