#include "platform/disk.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <ctime>
#include <functional>

#include "platform/files.h"
#include "runtime/date.h"
#include "support/child_process.h"
#include "support/disk_faults.h"
#include "support/temp_folder.h"

namespace platform {
namespace {

using support::TempFolder;

std::optional<DiskFault> faultOf(const std::function<void()>& work) {
  try {
    work();
    return std::nullopt;
  } catch (const DiskError& error) {
    return error.fault();
  }
}

std::span<const std::byte> bytes(std::string_view text) {
  return std::as_bytes(std::span(text));
}

TEST(Disk, EveryFailureHasItsFaultNumberAndPath) {
  TempFolder folder;
  const std::string file = folder.path("a.mdb"), inside = folder.path("sub"), none = folder.path("none.mdb");
  writeWholeFile(file, "x");
  ASSERT_EQ(::mkdir(folder.systemPath("sub").c_str(), 0777), 0);
  ASSERT_EQ(::mkfifo(folder.systemPath("pipe").c_str(), 0666), 0);
  ASSERT_EQ(::symlink("none.mdb", folder.systemPath("link").c_str()), 0);
  const std::string link = folder.path("link");
  const std::string farAway = folder.path("no\\where.mdb"), through = file + "\\b.mdb";
  const struct {
    const char* what;
    std::function<void()> work;
    DiskFault fault;
    int number;
    std::string path;
  } cases[] = {
      {"read none", [&] { openFile(none, OpenMode::Read); }, DiskFault::NotFound, 53, none},
      {"update none", [&] { openFile(none, OpenMode::Update); }, DiskFault::NotFound, 53, none},
      {"no folder", [&] { openFile(farAway, OpenMode::Read); }, DiskFault::PathNotFound, 76, farAway},
      {"create without folder", [&] { openFile(farAway, OpenMode::Create); }, DiskFault::PathNotFound, 76,
       farAway},
      {"file as folder", [&] { openFile(through, OpenMode::Read); }, DiskFault::PathNotFound, 76, through},
      {"read folder", [&] { openFile(inside, OpenMode::Read); }, DiskFault::IsFolder, 75, inside},
      {"update folder", [&] { openFile(inside, OpenMode::Update); }, DiskFault::IsFolder, 75, inside},
      {"create over folder", [&] { openFile(inside, OpenMode::Create); }, DiskFault::IsFolder, 75, inside},
      {"replace folder", [&] { replaceFile(file, inside); }, DiskFault::IsFolder, 75, inside},
      {"replace with none", [&] { replaceFile(none, file); }, DiskFault::NotFound, 53, none},
      {"replace into no folder", [&] { replaceFile(file, farAway); }, DiskFault::PathNotFound, 76, farAway},
      {"create over a file", [&] { createFile(file); }, DiskFault::Exists, 58, file},
      {"create over a link to nothing", [&] { createFile(link); }, DiskFault::Exists, 58, link},
      {"rename over a file", [&] { renameFile(folder.path("pipe"), file); }, DiskFault::Exists, 58, file},
      {"rename none", [&] { renameFile(none, folder.path("new")); }, DiskFault::NotFound, 53, none},
      {"remove none", [&] { removeFile(none); }, DiskFault::NotFound, 53, none},
      {"remove folder", [&] { removeFile(inside); }, DiskFault::IsFolder, 75, inside},
      {"pipe", [&] { openFile(folder.path("pipe"), OpenMode::Read); }, DiskFault::AccessDenied, 75,
       folder.path("pipe")},
      {"flush no folder", [&] { flushFolder(none); }, DiskFault::NotFound, 53, none},
      {"date of none", [&] { setModified(none, 0); }, DiskFault::NotFound, 53, none},
      {"NUL", [&] { openFile(file + std::string(1, '\0'), OpenMode::Create); }, DiskFault::PathNotFound, 76,
       file},
      {"write on a reader", [&] { openFile(file, OpenMode::Read).writeAt(0, bytes("y")); }, DiskFault::Io, 57,
       file},
  };
  for (const auto& test : cases) {
    try {
      test.work();
      ADD_FAILURE() << test.what;
    } catch (const DiskError& error) {
      EXPECT_EQ(error.fault(), test.fault) << test.what;
      EXPECT_EQ(error.number(), test.number) << test.what;
      EXPECT_TRUE(error.description().ends_with(": " + test.path))
          << test.what << ": " << error.description();
    }
  }
  EXPECT_EQ(readWholeFile(file), "x");
  EXPECT_FALSE(inspectFile(none) || inspectFile(farAway) || inspectFile(through));
}

TEST(Disk, AFileOfSomebodyElseIsAccessDenied) {
  if (::geteuid() != 0) GTEST_SKIP() << "needs the superuser, to become somebody else";
  TempFolder folder;
  const std::string file = folder.path("a.mdb");
  writeWholeFile(file, "x");
  ::chmod(folder.systemPath("a.mdb").c_str(), 0600);
  const int status = support::runInChild([&] {
    if (::setuid(65534) != 0) return 1;
    if (faultOf([&] { openFile(file, OpenMode::Read); }) != DiskFault::AccessDenied) return 2;
    if (faultOf([&] { openFile(folder.path("b"), OpenMode::Create); }) != DiskFault::AccessDenied) return 3;
    if (faultOf([&] { removeFile(file); }) != DiskFault::AccessDenied) return 4;
    return 0;
  });
  EXPECT_EQ(status, 0);
}

TEST(Disk, ReadsWritesAndResizesAtAnyPlace) {
  TempFolder folder;
  File file = openFile(folder.path("a.mdb"), OpenMode::Create);
  file.writeAt(4, bytes("wxyz"));
  std::string content(10, '?');
  EXPECT_EQ(file.readAt(0, std::as_writable_bytes(std::span(content))), 8u);
  EXPECT_EQ(content.substr(0, 8), std::string(4, '\0') + "wxyz");
  EXPECT_EQ(file.readAt(100, std::as_writable_bytes(std::span(content))), 0u);
  file.resize(6);
  EXPECT_EQ(file.size(), 6u);
  file.flush();
  EXPECT_EQ(readWholeFile(folder.path("a.mdb")).size(), 6u);
}

TEST(Disk, BeyondTheFileSizeLimitIsNoSpaceAndKillsNobody) {
  TempFolder folder;
  const std::string file = folder.path("a.mdb");
  const int status = support::runInChild([&] {
    const rlimit limit{65536, 65536};
    if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) return 1;
    File big = openFile(file, OpenMode::Create);
    const std::string content(100000, 'x');
    if (faultOf([&] { big.writeAt(0, bytes(content)); }) != DiskFault::NoSpace) return 2;
    if (faultOf([&] { big.resize(100000); }) != DiskFault::NoSpace) return 3;
    return 0;
  });
  EXPECT_EQ(status, 0);
}

TEST(Disk, ModificationDateIsLocalTime) {
  ::setenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3", 1);
  ::tzset();
  TempFolder folder;
  const std::string file = folder.path("a.mdb");
  writeWholeFile(file, "");
  const struct {
    std::int64_t unixNanoseconds;
    const char* local;
  } cases[] = {
      {1'763'309'760'500'000'000, "16/11/2025 17:16:00"},  // winter, 16:16 UTC
      {1'752'682'560'000'000'000, "16/07/2025 18:16:00"},  // summer
      {-1'000'000'000, "01/01/1970 00:59:59"},
  };
  for (const auto& test : cases) {
    setModified(file, test.unixNanoseconds);
    EXPECT_EQ(inspectFile(file)->modifiedUnixNanoseconds, test.unixNanoseconds);
    EXPECT_EQ(runtime::dateText({inspectFile(file)->modified}), test.local);
  }
  ::unsetenv("TZ");
  ::tzset();
}

TEST(Disk, ObserverSeesTheNumberedCallsAndMayRefuseThem) {
  TempFolder folder;
  const std::string file = folder.path("a.mdb");
  support::RecordCalls record;
  {
    support::ObservedDisk scope(record);
    writeWholeFile(file, "abc");
    replaceFile(file, folder.path("b.mdb"));
  }
  ASSERT_EQ(record.calls.size(), 4u);
  EXPECT_EQ(record.calls[1].number, 2u);
  EXPECT_EQ(record.calls[1].operation, DiskOperation::Write);
  EXPECT_EQ(record.calls[1].data.size(), 3u);
  EXPECT_EQ(record.calls[3].otherPath, folder.path("b.mdb"));
  support::FailNth fail(1, DiskFault::Io);
  support::ObservedDisk scope(fail);
  EXPECT_EQ(faultOf([&] { removeFile(folder.path("b.mdb")); }), DiskFault::Io);
  EXPECT_TRUE(fileExists(folder.path("b.mdb")));
}

class DiskLock : public testing::Test {
 protected:
  void SetUp() override { writeWholeFile(path_, "old"); }
  TempFolder folder_;
  const std::string path_ = folder_.path("a.mdb");
};

TEST_F(DiskLock, HoldsAgainstAnotherProcessAndNamesItsHolder) {
  File mine = openFile(path_, OpenMode::Update);
  ASSERT_TRUE(mine.tryLock(LockMode::Exclusive));
  const std::string me = " (" + std::to_string(::getpid()) + ")";
  const int status = support::runInChild([&] {
    File other = openFile(path_, OpenMode::Read);
    if (other.tryLock(LockMode::Shared)) return 1;
    if (faultOf([&] { openFile(path_, OpenMode::Create); }) != DiskFault::Sharing) return 2;
    return lockHolder(path_).ends_with(me) ? 0 : 3;
  });
  EXPECT_EQ(status, 0);
  EXPECT_EQ(readWholeFile(path_), "old");
  mine.close();
  EXPECT_EQ(lockHolder(path_), "");
}

TEST_F(DiskLock, EndsWithAKilledProcess) {
  int ready[2];
  ASSERT_EQ(::pipe(ready), 0);
  support::Child holder([&] {
    File file = openFile(path_, OpenMode::Update);
    if (!file.tryLock(LockMode::Exclusive) || ::write(ready[1], "x", 1) != 1) return 1;
    for (;;) ::pause();
  });
  char byte;
  ASSERT_EQ(::read(ready[0], &byte, 1), 1);
  File mine = openFile(path_, OpenMode::Update);
  EXPECT_FALSE(mine.tryLock(LockMode::Shared));
  EXPECT_EQ(faultOf([&] { copyFile(path_, folder_.path("b.mdb")); }), DiskFault::Sharing);
  holder.kill();
  EXPECT_EQ(holder.wait(), -SIGKILL);
  EXPECT_TRUE(mine.tryLock(LockMode::Exclusive));
  ::close(ready[0]);
  ::close(ready[1]);
}

TEST_F(DiskLock, ARefusedConversionKeepsTheLockThatWasHeld) {
  File mine = openFile(path_, OpenMode::Update), other = openFile(path_, OpenMode::Update);
  ASSERT_TRUE(mine.tryLock(LockMode::Shared));
  ASSERT_TRUE(other.tryLock(LockMode::Shared));
  EXPECT_FALSE(mine.tryLock(LockMode::Exclusive));
  EXPECT_FALSE(other.tryLock(LockMode::Exclusive));
  mine.close();
  EXPECT_TRUE(other.tryLock(LockMode::Exclusive));
}

TEST_F(DiskLock, AFileThatWasReplacedIsNoLongerAtItsPath) {
  const File old = openFile(path_, OpenMode::Read);
  EXPECT_TRUE(old.isStillAt(path_));
  writeWholeFile(folder_.path("b.mdb"), "new");
  replaceFile(folder_.path("b.mdb"), path_);
  EXPECT_FALSE(old.isStillAt(path_));
  removeFile(path_);
  EXPECT_FALSE(old.isStillAt(path_));
}

}  // namespace
}  // namespace platform
