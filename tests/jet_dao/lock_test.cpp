#include <gtest/gtest.h>

#include <fstream>

#include "office.h"
#include "platform/files.h"
#include "support/child_process.h"
#include "support/disk_faults.h"

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

/// By a program that knows nothing of our lock: writes into the file, and leaves its size, or its date too.
void changeInPlace(const std::string& path, std::uint64_t offset, bool dateToo) {
  const auto before = platform::inspectFile(path);
  std::fstream(platform::toSystemPath(path), std::ios::in | std::ios::out | std::ios::binary)
      .seekp(static_cast<std::streamoff>(offset))
      .write("?", 1);
  if (!dateToo) platform::setModified(path, before->modifiedUnixNanoseconds);
}

TEST(Locks, AFileThatWasChangedInPlaceMeanwhileIsLeftAsItIs) {
  const support::TempFolder folder;
  const std::string path = folder.path("a.mdb");
  const struct {
    const char* name;
    std::optional<platform::DiskOperation> during;  // nothing: before the save
    std::uint64_t offset;
    bool dateToo;
  } cases[] = {{"before", {}, 4 * 4096, true},
               {"before, the date put back", {}, 4 * 4096, false},
               {"longer", {}, 1'000'000, true},
               {"while saving", platform::DiskOperation::Write, 4 * 4096, true},
               {"while flushing", platform::DiskOperation::Flush, 4 * 4096, true}};
  for (const auto& test : cases) {
    SCOPED_TRACE(test.name);
    office::make(path, {"CREATE TABLE t (a LONG)"});
    Workspace workspace;
    const auto db = workspace.OpenDatabase(path, true);
    db->Execute("INSERT INTO t VALUES (1)");
    std::string changed;
    const auto change = [&] {
      changeInPlace(path, test.offset, test.dateToo);
      changed = platform::readWholeFile(path);
    };
    if (!test.during) change();
    support::AtFirst observer(test.during.value_or(platform::DiskOperation::Open), change);
    {
      support::ObservedDisk scope(observer);
      EXPECT_EQ(errorOf([&] { db->Close(); }), 3197);
    }
    EXPECT_EQ(platform::readWholeFile(path), changed);
    EXPECT_EQ(folder.names(), std::vector<std::string>{"a.mdb"});
    platform::removeFile(path);
  }
}

TEST(Locks, ASourceThatIsChangedWhileItIsCompactedGivesNoCopy) {
  const support::TempFolder folder;
  const std::string path = folder.path("a.mdb");
  office::make(path, {"CREATE TABLE t (a LONG)"});
  support::AtFirst observer(platform::DiskOperation::Write, [&] { changeInPlace(path, 4 * 4096, true); });
  {
    support::ObservedDisk scope(observer);
    EXPECT_EQ(errorOf([&] { DBEngine::CompactDatabase(path, folder.path("b.mdb")); }), 3197);
  }
  EXPECT_EQ(folder.names(), std::vector<std::string>{"a.mdb"});
}

TEST(Locks, ACompactCopyIsForThoseWhoMayUseItsSource) {
  const support::TempFolder folder;
  const std::string path = folder.path("a.mdb"), copy = folder.path("b.mdb");
  office::make(path, {});
  const auto rights = [](const std::string& file) {
    return std::filesystem::status(platform::toSystemPath(file)).permissions();
  };
  const auto ownersUse = std::filesystem::perms::owner_read | std::filesystem::perms::owner_write;
  std::filesystem::permissions(platform::toSystemPath(path), ownersUse);
  DBEngine::CompactDatabase(path, copy);
  EXPECT_EQ(rights(copy), ownersUse);
}

TEST(Locks, OwnSavesAreNoChangeByAnother) {
  const support::TempFolder folder;
  const std::string path = folder.path("a.mdb");
  office::make(path, {"CREATE TABLE t (a LONG)"});
  for (const bool exclusive : {true, false}) {
    Workspace workspace;
    const auto db = workspace.OpenDatabase(path, exclusive);
    for (int save = 0; save < 5; ++save) {
      workspace.BeginTrans();
      db->Execute("INSERT INTO t VALUES (1)");
      workspace.CommitTrans();
    }
    db->Close();
  }
  EXPECT_EQ(office::query(path, "SELECT Count(*) FROM t"), "10");
}

TEST(Locks, AFileOfSeveralNamesIsSavedThroughALinkAndRefusedWhereItsOtherNameWouldGoStale) {
  const support::TempFolder folder;
  const std::string path = folder.path("a.mdb"), link = folder.path("link.mdb"),
                    twin = folder.path("twin.mdb");
  office::make(path, {"CREATE TABLE t (a LONG)"});
  const auto insert = [](const std::string& name) {
    Workspace workspace;
    const auto db = workspace.OpenDatabase(name, true);
    db->Execute("INSERT INTO t VALUES (1)");
    return errorOf([&] { db->Close(); });
  };
  std::filesystem::create_symlink("a.mdb", platform::toSystemPath(link));
  EXPECT_EQ(insert(link), 0);
  EXPECT_TRUE(std::filesystem::is_symlink(platform::toSystemPath(link)));
  EXPECT_EQ(office::query(path, "SELECT Count(*) FROM t"), "1");
  std::filesystem::create_hard_link(platform::toSystemPath(path), platform::toSystemPath(twin));
  for (const auto& name : {path, link, twin}) EXPECT_EQ(insert(name), 3051);
  EXPECT_EQ(office::query(twin, "SELECT Count(*) FROM t"), "1");
  EXPECT_EQ(folder.names(), (std::vector<std::string>{"a.mdb", "link.mdb", "twin.mdb"}));
  platform::removeFile(twin);
  EXPECT_EQ(insert(path), 0);
}

}  // namespace
}  // namespace jet::dao
