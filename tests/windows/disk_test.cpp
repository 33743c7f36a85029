#include "platform/disk.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "platform/files.h"
#include "platform/paths.h"
#include "support/errors.h"
#include "support/temp_folder.h"

namespace platform {
namespace {

using support::errorOf;

HANDLE openByAnotherProgram(const std::string& path) {
  return ::CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                       0, nullptr);
}

class WindowsDisk : public testing::Test {
 protected:
  support::TempFolder folder_;
  const std::string path_ = folder_.path("archivio.mdb"), fresh_ = folder_.path("nuovo è.mdb");
};

TEST_F(WindowsDisk, WritesReadsResizesAndDatesFiles) {
  const std::string block(100'000, 'x');
  File file = openFile(path_, OpenMode::Create);
  file.writeAt(5, std::as_bytes(std::span(block)));
  file.flush();
  file.setModified(1'234'567'890'123'456'700);
  EXPECT_EQ(inspectFile(path_)->modifiedUnixNanoseconds, 1'234'567'890'123'456'700);
  file.resize(50'000);
  EXPECT_EQ(file.size(), 50'000u);
  std::vector<std::byte> read(60'000);
  EXPECT_EQ(file.readAt(1, read), 49'999u);
  EXPECT_EQ(read[3], std::byte{0});
  EXPECT_EQ(read[4], std::byte{'x'});
  EXPECT_EQ(file.readAt(70'000, read), 0u);
  EXPECT_TRUE(file.isStillAt(folder_.path("ARCHIVIO.MDB")));
  setModified(path_, -1'000'000'000);
  EXPECT_EQ(inspectFile(path_)->modifiedUnixNanoseconds, -1'000'000'000);
  EXPECT_NO_THROW(flushFolder(folder_.path()));
}

TEST_F(WindowsDisk, NumbersItsErrors) {
  writeWholeFile(path_, "a");
  const std::string none = folder_.path("manca.mdb"), nowhere = folder_.path("manca\\a.mdb"),
                    folder = folder_.path();
  const struct {
    const char* call;
    std::function<void()> work;
    int number;
  } cases[] = {
      {"open none", [&] { openFile(none, OpenMode::Read); }, 53},
      {"open far", [&] { openFile(nowhere, OpenMode::Update); }, 76},
      {"open folder", [&] { openFile(folder, OpenMode::Read); }, 75},
      {"open empty", [&] { openFile("", OpenMode::Read); }, 76},
      {"open with NUL", [&] { openFile(path_ + std::string("\0x", 2), OpenMode::Read); }, 76},
      {"open no text", [&] { openFile("\xff\xfe", OpenMode::Read); }, 76},
      {"create far", [&] { openFile(nowhere, OpenMode::Create); }, 76},
      {"replace with none", [&] { replaceFile(none, path_); }, 53},
      {"replace far", [&] { replaceFile(path_, nowhere); }, 76},
      {"remove none", [&] { removeFile(none); }, 53},
      {"remove folder", [&] { removeFile(folder); }, 75},
      {"date of none", [&] { setModified(none, 0); }, 53},
      {"flush no folder", [&] { flushFolder(none); }, 76},
  };
  for (const auto& test : cases) EXPECT_EQ(errorOf(test.work), test.number) << test.call;
  EXPECT_FALSE(inspectFile(none));
  EXPECT_FALSE(inspectFile(nowhere));
  EXPECT_TRUE(inspectFile(folder)->folder);
  EXPECT_EQ(readWholeFile(path_), "a");
}

TEST_F(WindowsDisk, LocksExcludeOtherOpenersAndLeaveTheContentReadable) {
  writeWholeFile(path_, "contenuto");
  File first = openFile(path_, OpenMode::Update), second = openFile(path_, OpenMode::Update);
  EXPECT_TRUE(first.tryLock(LockMode::Shared));
  EXPECT_TRUE(second.tryLock(LockMode::Shared));
  EXPECT_FALSE(first.tryLock(LockMode::Exclusive));
  second.close();
  EXPECT_TRUE(first.tryLock(LockMode::Exclusive));
  EXPECT_TRUE(first.tryLock(LockMode::Exclusive));
  second = openFile(path_, OpenMode::Update);
  EXPECT_FALSE(second.tryLock(LockMode::Shared));
  EXPECT_EQ(readWholeFile(path_), "contenuto");
  EXPECT_EQ(errorOf([&] { openFile(path_, OpenMode::Create); }), 70);
  EXPECT_TRUE(first.tryLock(LockMode::Shared));
  EXPECT_TRUE(second.tryLock(LockMode::Shared));
}

TEST_F(WindowsDisk, AFileThatAnotherProgramHasOpenIsNotLockedExclusively) {
  writeWholeFile(path_, "vecchio");
  writeWholeFile(fresh_, "nuovo");
  File file = openFile(path_, OpenMode::Update);
  const HANDLE other = openByAnotherProgram(path_);
  ASSERT_NE(other, INVALID_HANDLE_VALUE);
  EXPECT_TRUE(file.tryLock(LockMode::Shared));
  EXPECT_FALSE(file.tryLock(LockMode::Exclusive));
  file.close();
  EXPECT_EQ(errorOf([&] { copyFile(fresh_, path_); }), 70);
  ::CloseHandle(other);
  EXPECT_EQ(readWholeFile(path_), "vecchio");
  EXPECT_EQ(errorOf([&] { copyFile(fresh_, path_); }), 0);
}

TEST_F(WindowsDisk, CopiesAreReplacedWholeWithTheirDateAndLeaveNothingBehind) {
  const std::string content(3'000'000, 'n');
  writeWholeFile(fresh_, content);
  setModified(fresh_, 1'234'567'890'000'000'000);
  for (int times = 0; times < 2; ++times) {  // a new name, then over a file
    copyFile(fresh_, path_);
    EXPECT_EQ(readWholeFile(path_), content);
    EXPECT_EQ(inspectFile(path_)->modifiedUnixNanoseconds, 1'234'567'890'000'000'000);
    EXPECT_EQ(folder_.names().size(), 2u);
  }
}

TEST_F(WindowsDisk, APublishedReplacementStaysOpenUnderItsNameWithItsLock) {
  writeWholeFile(path_, "vecchio");
  Replacement replacement(path_);
  replacement.file().writeAt(0, std::as_bytes(std::span(std::string_view("nuovo"))));
  File published = replacement.publish(LockMode::Shared);
  EXPECT_TRUE(replacement.renamed());
  EXPECT_TRUE(published.isStillAt(path_));
  EXPECT_EQ(readWholeFile(path_), "nuovo");
  File other = openFile(path_, OpenMode::Update);
  EXPECT_TRUE(other.tryLock(LockMode::Shared));
  EXPECT_FALSE(other.tryLock(LockMode::Exclusive));
}

TEST_F(WindowsDisk, NeighboursOfAReplacedFileStay) {
  writeWholeFile(path_, "vecchio");
  writeWholeFile(fresh_, "nuovo");
  for (const char* neighbour : {".tmp", ".precedente"}) writeWholeFile(path_ + neighbour, neighbour);
  copyFile(fresh_, path_);
  EXPECT_EQ(readWholeFile(path_), "nuovo");
  for (const char* neighbour : {".tmp", ".precedente"})
    EXPECT_EQ(readWholeFile(path_ + neighbour), neighbour);
  EXPECT_EQ(folder_.names().size(), 4u);
  EXPECT_EQ(errorOf([&] { createFile(path_); }), 58);
  EXPECT_EQ(errorOf([&] { renameFile(fresh_, path_); }), 58);
}

TEST_F(WindowsDisk, AnUnpublishedReplacementIsRemoved) {
  writeWholeFile(path_, "vecchio");
  { Replacement replacement(path_); }
  EXPECT_EQ(folder_.names().size(), 1u);
  EXPECT_EQ(readWholeFile(path_), "vecchio");
}

TEST(WindowsPaths, AreAbsoluteWithoutAClosingBackslash) {
  const struct {
    const char *given, *kept;
  } cases[] = {{"C:/a/./b/../c/", "C:\\a\\c"},
               {"C:\\", "C:\\"},
               {"C:\\è", "C:\\è"},
               {"\\\\srv\\p\\a", "\\\\srv\\p\\a"}};
  for (const auto& test : cases) EXPECT_EQ(fromSystemPath(test.given), test.kept);
  EXPECT_EQ(executableName(), "test_windows");
  EXPECT_TRUE(inspectFile(executableFolder() + "\\test_windows.exe"));
}

}  // namespace
}  // namespace platform
