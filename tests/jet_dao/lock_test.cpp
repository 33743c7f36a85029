#include <gtest/gtest.h>

#include "office.h"
#include "platform/disk.h"
#include "support/child_process.h"

namespace jet::dao {
namespace {

using office::errorOf;

struct Opening {
  bool exclusive, readOnly;
};

struct LockCase {
  Opening first, second;
  int error;
};

TEST(Locks, AnotherProcessMeetsAnOpenFile) {
  const support::TempFolder folder;
  const std::string path = folder.path("a.mdb");
  office::make(path, {"CREATE TABLE t (a LONG)"});
  const LockCase cases[] = {
      {{true, false}, {true, false}, 3356}, {{true, false}, {false, false}, 3356},
      {{true, false}, {false, true}, 3356}, {{false, false}, {true, false}, 3356},
      {{false, true}, {true, false}, 3356}, {{false, false}, {false, false}, 0},
      {{false, true}, {false, true}, 0},
  };
  for (const auto& [first, second, error] : cases) {
    Workspace workspace;
    const auto db = workspace.OpenDatabase(path, first.exclusive, first.readOnly);
    const int seen = support::runInChild([&] {
      return errorOf([&] { Workspace().OpenDatabase(path, second.exclusive, second.readOnly); }) == 3356 ? 1
                                                                                                         : 0;
    });
    EXPECT_EQ(seen, error == 3356 ? 1 : 0)
        << first.exclusive << first.readOnly << second.exclusive << second.readOnly;
    EXPECT_EQ(errorOf([&] { Workspace().OpenDatabase(path, second.exclusive, second.readOnly); }), error);
  }
}

TEST(Locks, TheMessageNamesTheHolder) {
  const support::TempFolder folder;
  const std::string path = folder.path("a.mdb");
  office::make(path, {});
  Workspace workspace;
  const auto db = workspace.OpenDatabase(path, true);
  try {
    Workspace().OpenDatabase(path, true);
    FAIL();
  } catch (const runtime::Error& error) {
    EXPECT_NE(error.description().find(std::to_string(::getpid())), std::string::npos) << error.description();
  }
}

TEST(Locks, DieWithTheirProcess) {
  const support::TempFolder folder;
  const std::string path = folder.path("a.mdb");
  office::make(path, {});
  int ready[2];
  ASSERT_EQ(::pipe(ready), 0);
  support::Child child([&] {
    Workspace workspace;
    const auto db = workspace.OpenDatabase(path, true);
    if (::write(ready[1], "x", 1) != 1) return 1;
    ::pause();
    return 0;
  });
  char byte;
  ASSERT_EQ(::read(ready[0], &byte, 1), 1);
  EXPECT_EQ(errorOf([&] { Workspace().OpenDatabase(path, true); }), 3356);
  child.kill();
  child.wait();
  EXPECT_EQ(errorOf([&] { Workspace().OpenDatabase(path, true); }), 0);
}

TEST(Locks, AFileInsideATransactionStaysHeldUntilTheCommit) {
  const support::TempFolder folder;
  const std::string path = folder.path("a.mdb");
  office::make(path, {"CREATE TABLE t (a LONG)"});
  Workspace workspace;
  const auto db = workspace.OpenDatabase(path, true);
  workspace.BeginTrans();
  db->Execute("INSERT INTO t VALUES (1)");
  db->Close();
  EXPECT_EQ(errorOf([&] { Workspace().OpenDatabase(path); }), 3356);
  workspace.CommitTrans();
  EXPECT_EQ(office::query(path, "SELECT * FROM t"), "1");
}

TEST(Locks, ASharerThatSavesDoesNotOverwriteAnother) {
  const support::TempFolder folder;
  const std::string path = folder.path("a.mdb");
  office::make(path, {"CREATE TABLE t (a LONG)"});
  Workspace one, two;
  const auto first = one.OpenDatabase(path), second = two.OpenDatabase(path);
  first->Execute("INSERT INTO t VALUES (1)");
  second->Execute("INSERT INTO t VALUES (2)");
  EXPECT_EQ(errorOf([&] { first->Close(); }), 3356);
  second->Close();
  EXPECT_EQ(office::query(path, "SELECT * FROM t"), "2");
}

TEST(Locks, AFileThatWasReplacedMeanwhileIsNotOverwritten) {
  const support::TempFolder folder;
  const std::string path = folder.path("a.mdb"), restored = folder.path("b.mdb");
  office::make(path, {"CREATE TABLE t (a LONG)"});
  office::make(restored, {"CREATE TABLE t (a LONG)", "INSERT INTO t VALUES (7)"});
  Workspace workspace;
  const auto db = workspace.OpenDatabase(path, true);
  db->Execute("INSERT INTO t VALUES (1)");
  platform::replaceFile(restored, path);
  EXPECT_EQ(errorOf([&] { db->Close(); }), 3197);
  EXPECT_EQ(office::query(path, "SELECT * FROM t"), "7");
}

}  // namespace
}  // namespace jet::dao
