#include <gtest/gtest.h>

#include "office.h"
#include "platform/files.h"

namespace jet::dao {
namespace {

using office::errorOf;

class Transactions : public testing::Test {
 protected:
  Transactions() {
    office::make(path, {"CREATE TABLE t (a LONG, b TEXT(20))", "INSERT INTO t VALUES (1, 'uno')"});
    db = workspace.OpenDatabase(path, true);
  }
  std::string saved() const { return office::query(path, "SELECT a FROM t ORDER BY a"); }

  support::TempFolder folder;
  std::string path = folder.path("a.mdb");
  Workspace workspace;
  DatabasePtr db;
};

TEST_F(Transactions, WithoutOneTheCloseSaves) {
  const auto before = platform::readWholeFile(path);
  db->Execute("INSERT INTO t VALUES (2, 'due')");
  EXPECT_EQ(platform::readWholeFile(path), before);
  db->Close();
  EXPECT_EQ(saved(), "1 2");
  EXPECT_EQ(office::complaints(path), "");
}

TEST_F(Transactions, TheCommitSavesADatabaseThatIsClosedAlready) {
  workspace.BeginTrans();
  db->Execute("INSERT INTO t VALUES (2, 'due')");
  const auto before = platform::readWholeFile(path);
  db->Close();
  EXPECT_EQ(platform::readWholeFile(path), before);
  workspace.CommitTrans();
  EXPECT_EQ(saved(), "1 2");
}

TEST_F(Transactions, ARollbackLeavesTheFileByteForByte) {
  const auto before = platform::readWholeFile(path);
  workspace.BeginTrans();
  db->Execute("UPDATE t SET b = 'altro'");
  db->Execute("CREATE TABLE u (c LONG)");
  db->Execute("INSERT INTO u VALUES (1)");
  db->TableDefs("t")->Fields("b").setName("nuovo");
  db->Execute("DROP TABLE t");
  workspace.Rollback();
  EXPECT_EQ(office::rows(*db->OpenRecordset("t")), "1|uno");
  EXPECT_EQ(errorOf([&] { db->TableDefs("u"); }), 3265);
  db->Close();
  EXPECT_EQ(platform::readWholeFile(path), before);
}

TEST_F(Transactions, WhatWasChangedBeforeStaysAfterARollback) {
  db->Execute("INSERT INTO t VALUES (2, 'due')");
  workspace.BeginTrans();
  db->Execute("DELETE * FROM t");
  db->Close();
  workspace.Rollback();
  EXPECT_EQ(saved(), "1 2");
}

TEST_F(Transactions, Nest) {
  workspace.BeginTrans();
  db->Execute("INSERT INTO t VALUES (2, 'due')");
  workspace.BeginTrans();
  db->Execute("INSERT INTO t VALUES (3, 'tre')");
  workspace.Rollback();
  workspace.BeginTrans();
  db->Execute("INSERT INTO t VALUES (4, 'quattro')");
  workspace.CommitTrans();
  workspace.CommitTrans();
  db->Close();
  EXPECT_EQ(saved(), "1 2 4");
}

TEST_F(Transactions, GoOnAfterACommitWithTheDatabaseOpen) {
  workspace.BeginTrans();
  db->Execute("CREATE TABLE u (c COUNTER, d MEMO)");
  db->Execute("INSERT INTO u (d) VALUES ('primo')");
  workspace.CommitTrans();
  db->Execute("INSERT INTO u (d) VALUES ('secondo')");
  db->Execute("INSERT INTO t VALUES (2, 'due')");
  db->Close();
  EXPECT_EQ(saved(), "1 2");
  EXPECT_EQ(office::query(path, "SELECT * FROM u"), "1|primo 2|secondo");
  EXPECT_EQ(office::complaints(path), "");
}

TEST_F(Transactions, WithoutBeginAreError3034) {
  EXPECT_EQ(errorOf([&] { workspace.CommitTrans(); }), 3034);
  EXPECT_EQ(errorOf([&] { workspace.Rollback(); }), 3034);
}

TEST_F(Transactions, ClosingTheWorkspaceRollsBackAndLetsTheFileGo) {
  workspace.BeginTrans();
  db->Execute("DELETE * FROM t");
  workspace.Close();
  EXPECT_EQ(saved(), "1");
  EXPECT_EQ(errorOf([&] { db->Execute("DELETE * FROM t"); }), 3420);
}

}  // namespace
}  // namespace jet::dao
