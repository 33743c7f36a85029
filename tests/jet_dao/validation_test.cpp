#include <gtest/gtest.h>

#include "office.h"

namespace jet::dao {
namespace {

using office::errorOf;

TEST(Validation, ARowThatBreaksARuleIsRefusedHoweverItComes) {
  struct Case {
    const char *column, *rule, *value;
    int error;
  };
  const Case cases[] = {
      {"n", ">0", "0", 3317},
      {"n", ">0", "NULL", 0},
      {"n", "<>0 And <10", "10", 3317},
      {"n", "Is Null Or >5", "5", 3317},
      {"n", "Is Null Or >5", "NULL", 0},
      {"n", "Not Null", "NULL", 3317},
      {"n", "Not In (1, 2)", "2", 3317},
      {"n", "Between 1 And 9 Or -1", "-1", 0},
      {"n", "Between 1 And 9 Or -1", "10", 3317},
      {"n", "Not Between 1 And 9", "4", 3317},
      {"n", "[n] Mod 2 = 0", "3", 3317},
      {"s", "Like 'A*'", "'abc'", 0},
      {"s", "Like 'A*'", "'bca'", 3317},
      {"s", "\"M\" Or \"F\"", "'f'", 0},
      {"s", "\"M\" Or \"F\"", "'x'", 3317},
      {"s", "Len([s]) = 3 And Not Like '*[!a-z]*'", "'ab1'", 3317},
      {"d", "<#1/1/2000#", "#12/31/2001#", 3317},
      {"", "[n] > [m]", "1", 3316},
      {"", "[n] > [m] Or s Is Null", "NULL", 0},
      {"n", ">", "1", 3075},
      {"n", "> [manca]", "1", 3387},
      {"n", "> (SELECT Max(n) FROM t)", "1", 3387},
  };
  support::TempFolder folder;
  const auto path = folder.path("a.mdb");
  office::make(path,
               {"CREATE TABLE t (n LONG, m LONG, s TEXT(9), d DATETIME)", "INSERT INTO t (m) VALUES (1)"});
  for (const auto& each : cases) {
    SCOPED_TRACE(std::string(each.rule) + " " + each.value);
    Workspace workspace;
    const auto db = workspace.OpenDatabase(path, true);
    workspace.BeginTrans();
    const auto table = db->TableDefs("t");
    const std::string column = *each.column ? each.column : "n";
    if (*each.column)
      table->Fields(column).setValidationRule(each.rule);
    else
      table->Properties().Append(table->CreateProperty("ValidationRule", dbMemo, each.rule));
    EXPECT_EQ(errorOf([&] {
                db->Execute("INSERT INTO t (m, " + column + ") VALUES (2, " + each.value + ")",
                            dbFailOnError);
              }),
              each.error);
    const std::string update = "UPDATE t SET " + column + " = " + each.value + ", m = 2 WHERE m = 1";
    EXPECT_EQ(errorOf([&] { db->Execute(update, dbFailOnError); }), each.error);
    workspace.Rollback();
  }
}

TEST(Validation, RulesFollowTheirPropertiesAndHoldInRecordsets) {
  support::TempFolder folder;
  const auto path = folder.path("a.mdb");
  office::make(path, {"CREATE TABLE t (id COUNTER, n LONG, m LONG)", "INSERT INTO t (n) VALUES (1)",
                      "INSERT INTO t (n) VALUES (5)"});
  Workspace workspace;
  const auto db = workspace.OpenDatabase(path, true);
  const auto field = db->TableDefs("t")->Fields("n");
  const auto rows = db->OpenRecordset("t", dbOpenDynaset);
  const auto edit = [&](int n) {
    rows->MoveFirst();
    rows->Edit();
    rows->Fields("n").setValue(n);
    rows->Update();
  };
  edit(2);
  field.setValidationRule(">1 And <6");
  field.setValidationText("Troppo | o 'poco'");
  try {
    edit(0);
    FAIL();
  } catch (const runtime::Error& error) {
    EXPECT_EQ(std::to_string(error.number()) + error.description(), "3317Troppo | o 'poco'");
  }
  rows->CancelUpdate();
  rows->AddNew();
  rows->Fields("n").setValue(6);
  EXPECT_EQ(errorOf([&] { rows->Update(); }), 3317);
  rows->CancelUpdate();
  db->Execute("UPDATE t SET n = n + 1");  // the row that may change does
  EXPECT_EQ(db->RecordsAffected(), 1);
  db->Execute("INSERT INTO t (n) SELECT n - 1 AS meno FROM t");
  EXPECT_EQ(db->RecordsAffected(), 2);
  EXPECT_EQ(office::rows(*db->OpenRecordset("SELECT n FROM t ORDER BY id")), "3 5 2 4");
  // Rows that stood before a rule stay, and change where it doesn't look.
  field.Properties().Item("ValidationRule").setValue("=7");
  db->Execute("UPDATE t SET m = 1", dbFailOnError);
  db->Close();
  const auto again = workspace.OpenDatabase(path, true);
  EXPECT_EQ(errorOf([&] { again->Execute("UPDATE t SET n = 4", dbFailOnError); }), 3317);
  again->TableDefs("t")->Fields("n").setValidationRule("");
  again->Execute("UPDATE t SET n = 4", dbFailOnError);
}

}  // namespace
}  // namespace jet::dao
