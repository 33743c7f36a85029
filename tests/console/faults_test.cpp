// Every call on the disk of a small batch run is made to fail, and every one to be the last.
#include <gtest/gtest.h>

#include <filesystem>

#include "office.h"
#include "platform/files.h"
#include "support/child_process.h"
#include "support/disk_faults.h"

namespace {

using office::contentOf;
using office::Office;
using platform::DiskFault;
using support::Faulty;

/// What a child tells by its exit status.
enum Told : int { Status = 7, Hit = 8, Tolerated = 16 };

/// An old installation with so much between its tables that each is read by calls of its own.
std::vector<std::string> spreadInstallation() {
  std::vector<std::string> statements;
  int filler = 0;
  for (const std::string& statement : office::oldInstallation()) {
    if (statement.starts_with("CREATE TABLE italia") || statement.starts_with("CREATE TABLE ragioniere")) {
      const std::string table = "riempimento" + std::to_string(++filler);
      statements.push_back("CREATE TABLE " + table + " (a TEXT(255), b TEXT(255), c TEXT(255), d TEXT(255))");
      const std::string value = "'" + std::string(255, 'x') + "'";
      for (int row = 0; row < 200; ++row)
        statements.push_back("INSERT INTO " + table + " VALUES (" + value + "," + value + "," + value + "," +
                             value + ")");
    }
    statements.push_back(statement);
  }
  return statements;
}

class Faults : public testing::Test {
 protected:
  void SetUp() override {
    office_.makeTarget(spreadInstallation());
    old_ = platform::readWholeFile(office_.target);
    support::RecordCalls calls;
    {
      support::ObservedDisk scope(calls);
      ASSERT_EQ(batch(), console::Done);
    }
    new_ = contentOf(office_.target);
    calls_ = calls.calls.size();
    // Up to the backup the run only looks: it reads settings, opens the target once to see whether it is
    // free, and passes over a patch list or a marker file that it can't read.
    while (calls.calls.at(backupBegins_).path.find("Backup") == std::string::npos) ++backupBegins_;
    RecordProperty("calls", static_cast<int>(calls_));
  }

  int batch() { return office::batch(office_.batch()).status; }

  /// The office as it was before the first run.
  void reset() {
    for (const std::string& folder : {office_.data, office_.program})
      for (const auto& entry : std::filesystem::directory_iterator(platform::toSystemPath(folder)))
        if (entry.path().filename() != "AggNorvo.mdb") std::filesystem::remove(entry.path());
    platform::writeWholeFile(office_.target, old_);
  }

  bool isOld() { return platform::readWholeFile(office_.target) == old_; }
  bool isNew() { return contentOf(office_.target) == new_; }

  /// What must hold after any end: a whole file, old or new, that nobody holds, and a next run that works.
  void judge() {
    ASSERT_TRUE(isOld() || isNew()) << "a third thing";
    // contentOf has opened the file exclusively; the next run does, to write.
    ASSERT_EQ(support::runInChild([this] { return batch(); }), console::Done);
    ASSERT_TRUE(isNew());
  }

  Office office_;
  std::string old_, new_;
  std::size_t calls_ = 0;
  std::size_t backupBegins_ = 0;  // calls before it
};

TEST_F(Faults, ACallThatFailsLosesNothingAndIsNeverReportedAsSuccess) {
  constexpr DiskFault kinds[] = {DiskFault::Io, DiskFault::NoSpace, DiskFault::AccessDenied,
                                 DiskFault::Sharing};
  int runs = 0;
  for (const Faulty duration : {Faulty::Once, Faulty::FromThenOn}) {
    bool hit = true;
    for (std::uint64_t n = 1; hit; ++n) {
      hit = false;
      for (std::size_t kind = 0; kind < std::size(kinds); ++kind) {
        if (n <= backupBegins_ && kind != n % std::size(kinds)) continue;
        SCOPED_TRACE(testing::Message() << "call " << n << " kind " << kind << " from then on "
                                        << (duration == Faulty::FromThenOn));
        ++runs;
        reset();
        const int told = support::runInChild([&] {
          support::FailNth fault(n, kinds[kind], duration);
          support::ObservedDisk scope(fault);
          const int status = batch();
          // The summary file that can't be written has its box, and the run its own result.
          const bool tolerated =
              n <= backupBegins_ || (fault.hit() && fault.hit()->path.find(".log") != std::string::npos);
          return status + (fault.wasHit() ? Hit : 0) + (tolerated ? Tolerated : 0);
        });
        ASSERT_LT(told, 32) << "the child has crashed";
        const int status = told & Status;
        hit |= (told & Hit) != 0;
        ASSERT_TRUE(status == console::Done || status == console::FailedUnchanged ||
                    status == console::Refused || status == console::FailedChanged)
            << status;
        if (status == console::Done) {
          ASSERT_TRUE(!(told & Hit) || (told & Tolerated)) << "success over a fault";
          ASSERT_TRUE(isNew());
        }
        if (status == console::FailedUnchanged || status == console::Refused) {
          ASSERT_TRUE(isOld());
        }
        ASSERT_NO_FATAL_FAILURE(judge());
      }
    }
  }
  RecordProperty("runs", runs);
}

TEST_F(Faults, ADeathAtAnyCallLeavesTheOldFileOrTheNewOne) {
  int ended = -SIGKILL;
  for (std::uint64_t n = 1; ended == -SIGKILL; ++n) {
    SCOPED_TRACE(testing::Message() << "call " << n);
    reset();
    ended = support::runInChild([&] {
      support::DieAtNth death(n);
      support::ObservedDisk scope(death);
      return batch();
    });
    ASSERT_NO_FATAL_FAILURE(judge());
  }
  EXPECT_EQ(ended, console::Done);
}

}  // namespace
