#include <gtest/gtest.h>

#include "office.h"

namespace jet::dao {
namespace {

using office::errorOf;

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
