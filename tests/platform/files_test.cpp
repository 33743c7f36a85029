#include "platform/files.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>
#include <functional>

#include "support/child_process.h"
#include "support/command.h"
#include "support/disk_faults.h"
#include "support/errors.h"
#include "support/temp_folder.h"

namespace platform {
namespace {

using support::Faulty;
using support::ObservedDisk;

constexpr DiskFault allFaults[] = {
    DiskFault::NotFound, DiskFault::PathNotFound, DiskFault::AccessDenied, DiskFault::Sharing,
    DiskFault::NoSpace,  DiskFault::Exists,       DiskFault::IsFolder,     DiskFault::Io};

/// A source of more than one block and a target that it is copied over.
class CopyFile : public testing::Test {
 protected:
  void SetUp() override {
    for (std::size_t i = 0; i < (1 << 20) + 12345; ++i) fresh_ += static_cast<char>(i * 2654435761u >> 13);
    writeWholeFile(source_, fresh_);
    setModified(source_, date_);
    putOldTarget();
  }
  void putOldTarget() { writeWholeFile(target_, old_); }
  void expectOldTargetAndNothingElse() {
    EXPECT_EQ(readWholeFile(target_), old_);
    expectNothingElse();
  }
  /// No file but these two and what a test has put there.
  void expectNothingElse(std::vector<std::string> others = {}) {
    others.insert(others.end(), {"archivio.mdb", "nuovo.mdb"});
    std::ranges::sort(others);
    EXPECT_EQ(folder_.names(), others);
  }
  int errorOfCopy() {
    return support::errorOf([&] { copyFile(source_, target_); });
  }

  support::TempFolder folder_;
  const std::string source_ = folder_.path("nuovo.mdb"), target_ = folder_.path("archivio.mdb");
  const std::string old_ = std::string(70000, 'o');
  std::string fresh_;
  static constexpr std::int64_t date_ = 1'234'567'890'123'456'789;
};

TEST_F(CopyFile, TakesContentAndDateAndKeepsTheTargetsPermissions) {
  ASSERT_EQ(::chmod(folder_.systemPath("archivio.mdb").c_str(), 0664), 0);
  copyFile(source_, target_);
  EXPECT_TRUE(sameContent(source_, target_));
  EXPECT_EQ(inspectFile(target_)->modifiedUnixNanoseconds, date_);
  struct stat info;
  ASSERT_EQ(::stat(folder_.systemPath("archivio.mdb").c_str(), &info), 0);
  EXPECT_EQ(info.st_mode & 0777u, 0664u);
  expectNothingElse();
  File free = openFile(target_, OpenMode::Update);
  EXPECT_TRUE(free.tryLock(LockMode::Exclusive));
}

TEST_F(CopyFile, UnderANewNameGrantsWhatTheSourceDoesWithinTheUsersDefaults) {
  const struct {
    mode_t source, mask, copy;
  } cases[] = {{0755, 022, 0755}, {0777, 077, 0700}, {0644, 022, 0644}, {0555, 027, 0750},
               {0600, 0, 0600},   {0400, 0, 0600},   {0666, 002, 0664}};
  for (const auto& test : cases) {
    ASSERT_EQ(::chmod(folder_.systemPath("nuovo.mdb").c_str(), test.source), 0);
    const mode_t before = ::umask(test.mask);
    const std::string copy = folder_.path("copia");
    copyFile(source_, copy);
    ::umask(before);
    struct stat info;
    ASSERT_EQ(::stat(folder_.systemPath("copia").c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777u, test.copy) << std::oct << test.source << " " << test.mask;
    removeFile(copy);
  }
}

TEST_F(CopyFile, AnyFaultAtAnyCallLeavesTheOldFileOrTheNewOne) {
  for (const Faulty duration : {Faulty::Once, Faulty::FromThenOn}) {
    for (const DiskFault fault : allFaults) {
      for (std::uint64_t n = 1;; ++n) {
        putOldTarget();
        support::FailNth observer(n, fault, duration);
        int error = 0;
        {
          ObservedDisk scope(observer);
          error = errorOfCopy();
        }
        const std::string content = readWholeFile(target_);
        if (!observer.wasHit()) {
          EXPECT_EQ(error, 0);
          EXPECT_EQ(content, fresh_);
          EXPECT_GT(n, 10u);
          break;
        }
        EXPECT_EQ(error, DiskError(fault, "").number()) << "call " << n << " failed in silence";
        const bool afterRename = observer.hit()->operation == DiskOperation::FlushFolder;
        EXPECT_EQ(content == fresh_, afterRename) << "call " << n;
        EXPECT_EQ(content == old_, !afterRename) << "call " << n;
        if (duration == Faulty::Once) {
          SCOPED_TRACE(n);
          expectNothingElse();
        }
        ASSERT_EQ(readWholeFile(source_), fresh_);
      }
    }
  }
}

TEST_F(CopyFile, KilledAtAnyCallItLeavesTheOldFileOrTheNewOneAndCanBeRepeated) {
  int status = -SIGKILL;
  for (std::uint64_t n = 1; status == -SIGKILL; ++n) {
    putOldTarget();
    status = support::runInChild([&] {
      support::DieAtNth observer(n);
      ObservedDisk scope(observer);
      return errorOfCopy();
    });
    const std::string content = readWholeFile(target_);
    EXPECT_TRUE(content == old_ || content == fresh_) << "call " << n;
    copyFile(source_, target_);
    ASSERT_EQ(readWholeFile(target_), fresh_) << "call " << n;
  }
  EXPECT_EQ(status, 0);
}

TEST_F(CopyFile, ADiskThatFillsUpLeavesTheOldFile) {
  const int status = support::runInChild([&] {
    const rlimit limit{1050000, 1050000};
    if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) return 1;
    return errorOfCopy();
  });
  EXPECT_EQ(status, 61);
  expectOldTargetAndNothingElse();
}

TEST_F(CopyFile, AFileThatIsHeldElsewhereIsRefused) {
  {
    File held = openFile(target_, OpenMode::Read);
    ASSERT_TRUE(held.tryLock(LockMode::Shared));
    EXPECT_EQ(errorOfCopy(), 70);
  }
  {
    File held = openFile(source_, OpenMode::Read);
    ASSERT_TRUE(held.tryLock(LockMode::Exclusive));
    EXPECT_EQ(errorOfCopy(), 70);
    ASSERT_TRUE(held.tryLock(LockMode::Shared));
    EXPECT_EQ(errorOfCopy(), 0);
  }
  putOldTarget();
  expectOldTargetAndNothingElse();
}

TEST_F(CopyFile, OntoItselfOrWithoutSourceOrFolderIsRefused) {
  ASSERT_EQ(::link(folder_.systemPath("nuovo.mdb").c_str(), folder_.systemPath("uguale.mdb").c_str()), 0);
  ASSERT_EQ(::symlink("nuovo.mdb", folder_.systemPath("rinvio.mdb").c_str()), 0);
  const struct {
    std::string from, to;
    int error;
  } cases[] = {
      {source_, source_, 70},
      {source_, folder_.path("uguale.mdb"), 70},
      {source_, folder_.path("rinvio.mdb"), 70},
      {folder_.path("manca.mdb"), target_, 53},
      {source_, folder_.path("manca\\archivio.mdb"), 76},
      {folder_.path(), target_, 75},
      {source_, folder_.path(), 75},
  };
  for (const auto& test : cases)
    EXPECT_EQ(support::errorOf([&] { copyFile(test.from, test.to); }), test.error)
        << test.from << " " << test.to;
  EXPECT_EQ(readWholeFile(source_), fresh_);
  EXPECT_EQ(readWholeFile(target_), old_);
  expectNothingElse({"rinvio.mdb", "uguale.mdb"});
}

TEST_F(CopyFile, AFileThatComesToItsPlaceMeanwhileStays) {
  const std::string free = folder_.path("libero.mdb");
  support::AtFirst other(DiskOperation::Write, [&] { writeWholeFile(free, "d'altri"); });
  {
    ObservedDisk scope(other);
    EXPECT_EQ(support::errorOf([&] { copyFile(source_, free); }), 58);
  }
  EXPECT_EQ(readWholeFile(free), "d'altri");
  expectNothingElse({"libero.mdb"});
}

TEST_F(CopyFile, ASourceThatIsChangedInPlaceMeanwhileGivesNoMixture) {
  // By a program that knows nothing of our lock, and puts the date back.
  support::AtFirst other(DiskOperation::Write, [&] {
    std::fstream(folder_.systemPath("nuovo.mdb"), std::ios::in | std::ios::out) << "altro";
    setModified(source_, date_);
  });
  {
    ObservedDisk scope(other);
    EXPECT_EQ(errorOfCopy(), 70);
  }
  expectOldTargetAndNothingElse();
}

/// What others have beside the file, and to what its name may lead.
TEST_F(CopyFile, LeavesItsNeighboursAlone) {
  const std::string neighbour = target_ + ".tmp", own = folder_.path("mio.txt");
  const std::string system = folder_.systemPath("archivio.mdb.tmp"),
                    systemOwn = folder_.systemPath("mio.txt");
  const struct {
    const char* name;
    std::function<void()> put;
  } cases[] = {
      {"a file", [&] { writeWholeFile(neighbour, "prezioso"); }},
      {"a symbolic link", [&] { ASSERT_EQ(::symlink("mio.txt", system.c_str()), 0); }},
      {"a link to nothing", [&] { ASSERT_EQ(::symlink("manca.txt", system.c_str()), 0); }},
      {"a hard link", [&] { ASSERT_EQ(::link(systemOwn.c_str(), system.c_str()), 0); }},
      {"a folder", [&] { ASSERT_EQ(::mkdir(system.c_str(), 0777), 0); }},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.name);
    putOldTarget();
    writeWholeFile(own, "prezioso");
    test.put();
    const auto kind = std::filesystem::symlink_status(system).type();
    const std::string content = support::contentOf(system);
    EXPECT_EQ(errorOfCopy(), 0);
    EXPECT_EQ(readWholeFile(target_), fresh_);
    EXPECT_EQ(std::filesystem::symlink_status(system).type(), kind);
    EXPECT_EQ(support::contentOf(system), content);
    EXPECT_EQ(readWholeFile(own), "prezioso");
    EXPECT_FALSE(std::filesystem::is_symlink(folder_.systemPath("archivio.mdb")));
    expectNothingElse({"archivio.mdb.tmp", "mio.txt"});
    std::filesystem::remove(system);
  }
}

TEST_F(CopyFile, AnErrorOfTheTemporaryFileNamesIt) {
  support::RecordCalls record;
  {
    ObservedDisk scope(record);
    copyFile(source_, target_);
  }
  for (const auto& call : record.calls) {
    if (call.operation != DiskOperation::Write && call.operation != DiskOperation::Create) continue;
    putOldTarget();
    support::FailNth observer(call.number, DiskFault::NoSpace);
    ObservedDisk scope(observer);
    try {
      copyFile(source_, target_);
      ADD_FAILURE();
    } catch (const DiskError& error) {
      EXPECT_NE(error.path(), target_);
      EXPECT_TRUE(error.description().ends_with(": " + error.path())) << error.description();
      EXPECT_EQ(folderOf(error.path()), folder_.path());
    }
  }
}

TEST_F(CopyFile, ThroughASymbolicLinkReplacesTheFileThatItNames) {
  ASSERT_EQ(::mkdir(folder_.systemPath("sub").c_str(), 0777), 0);
  ASSERT_EQ(::symlink("../archivio.mdb", folder_.systemPath("sub\\secondo.mdb").c_str()), 0);
  ASSERT_EQ(::symlink("sub/secondo.mdb", folder_.systemPath("primo.mdb").c_str()), 0);
  copyFile(source_, folder_.path("primo.mdb"));
  EXPECT_TRUE(std::filesystem::is_symlink(folder_.systemPath("primo.mdb")));
  EXPECT_TRUE(std::filesystem::is_symlink(folder_.systemPath("sub\\secondo.mdb")));
  EXPECT_EQ(readWholeFile(target_), fresh_);
}

TEST(Replacement, GivesTheNewFileBackUnderItsNameWithItsLock) {
  support::TempFolder folder;
  const std::string path = folder.path("archivio.mdb");
  Replacement replacement(path);
  replacement.file().writeAt(0, std::as_bytes(std::span(std::string_view("new"))));
  EXPECT_FALSE(fileExists(path));
  File published = replacement.publish(LockMode::Shared);
  EXPECT_TRUE(replacement.renamed());
  EXPECT_EQ(published.path(), path);
  EXPECT_TRUE(published.isStillAt(path));
  File other = openFile(path, OpenMode::Update);
  EXPECT_TRUE(other.tryLock(LockMode::Shared));
  EXPECT_FALSE(other.tryLock(LockMode::Exclusive));
}

TEST(Replacement, FlushesTheFileBeforeTheRenameAndTheFolderAfterIt) {
  support::TempFolder folder;
  support::RecordCalls record;
  {
    ObservedDisk scope(record);
    Replacement replacement(folder.path("archivio.mdb"));
    replacement.file().writeAt(0, std::as_bytes(std::span(std::string_view("new"))));
    replacement.publish();
  }
  std::vector<DiskOperation> order;
  for (const auto& call : record.calls) order.push_back(call.operation);
  using enum DiskOperation;
  EXPECT_EQ(order, (std::vector{Inspect, Inspect, Create, Write, Flush, Replace, FlushFolder}));
  EXPECT_EQ(record.calls.back().path, folder.path());
}

TEST(SameContent, ComparesToTheLastByte) {
  support::TempFolder folder;
  const std::string block(1 << 20, 'x');
  const struct {
    std::string a, b;
  } cases[] = {
      {"", ""}, {"a", ""}, {"a", "b"}, {block, block}, {block, block + "y"}, {block + "z", block + "y"}};
  for (const auto& test : cases) {
    writeWholeFile(folder.path("a"), test.a);
    writeWholeFile(folder.path("b"), test.b);
    EXPECT_EQ(sameContent(folder.path("a"), folder.path("b")), test.a == test.b);
  }
  EXPECT_THROW(sameContent(folder.path("a"), folder.path("none")), DiskError);
}

}  // namespace
}  // namespace platform
