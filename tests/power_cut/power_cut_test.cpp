// The power is cut behind every call on the disk, and each disk that this may leave is looked at.
#include <gtest/gtest.h>

#include <functional>
#include <sstream>

#include "console/office.h"
#include "disk_model.h"
#include "jet_dao/office.h"
#include "platform/files.h"
#include "support/child_process.h"

namespace power_cut {
namespace {

constexpr unsigned Seeds = 20;

/// The calls of a piece of work and the files that it began with.
struct Recording {
  Files before;
  std::vector<support::RecordedCall> calls;
};

template <typename Work>
Recording record(const std::vector<std::string>& folders, const Work& work) {
  Recording recording{filesIn(folders), {}};
  support::RecordCalls recorder;
  {
    support::ObservedDisk scope(recorder);
    work();
  }
  recording.calls = std::move(recorder.calls);
  return recording;
}

/// What a disk shows at `path`; empty: no file.
std::string at(const Files& files, const std::string& path) {
  const auto found = files.find(path);
  return found == files.end() ? std::string() : found->second;
}

/// The contents that `path` has one after the other while the power stays on, as whole files take each
/// other's place.
std::vector<std::string> versions(const Recording& recording, const std::string& path) {
  DiskModel disk(recording.before);
  std::vector<std::string> result{at(recording.before, path)};
  for (const auto& call : recording.calls) {
    disk.carryOut(call);
    if (call.operation == platform::DiskOperation::Replace && call.otherPath == path)
      result.push_back(at(disk.files(), path));
  }
  EXPECT_EQ(result.back(), platform::fileExists(path) ? platform::readWholeFile(path) : "")
      << "the model is wrong";
  return result;
}

/// Judges a disk after a cut behind so many calls.
using Judge = std::function<testing::AssertionResult(std::size_t calls, const Files& left)>;

/// Cuts the power behind every call that changes something, and behind the last one; up to the first wrong
/// disk.
void cutEverywhere(const Recording& recording, const Judge& judge) {
  DiskModel disk(recording.before);
  int cuts = 0;
  for (std::size_t done = 0; done <= recording.calls.size(); ++done) {
    const bool changed = done > 0 && disk.carryOut(recording.calls[done - 1]);
    if (!changed && done > 0 && done < recording.calls.size()) continue;
    ++cuts;
    for (unsigned seed = 0; seed < Seeds; ++seed)
      ASSERT_TRUE(judge(done, disk.afterCut(seed))) << "cut behind call " << done << ", seed " << seed;
  }
  testing::Test::RecordProperty("cuts", cuts);
  std::cout << cuts << " cuts x " << Seeds << " seeds\n";
}

testing::AssertionResult expectOneOf(const std::string& content, const std::vector<std::string>& whole) {
  if (std::find(whole.begin(), whole.end(), content) != whole.end()) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "neither the old file nor a new one: " << content.size() << " bytes";
}

class PowerCut : public testing::Test {
 protected:
  PowerCut() {
    ::office::make(path, {"CREATE TABLE t (a COUNTER CONSTRAINT k PRIMARY KEY, b TEXT(50), c MEMO)"});
    jet::dao::Workspace workspace;
    const auto db = workspace.OpenDatabase(path, true);
    for (int row = 0; row < 100; ++row)
      db->Execute("INSERT INTO t (b, c) VALUES ('riga', '" +
                  std::string(static_cast<std::size_t>(row * 60), 'n') + "')");
    db->Close();
  }

  /// The target is old or new at each cut, and new once the work has reported success.
  void expectOldOrNew(const Recording& recording, const std::string& target) {
    const auto whole = versions(recording, target);
    ASSERT_EQ(whole.size(), 2u);
    ASSERT_NE(whole[0], whole[1]);
    EXPECT_EQ(::office::complaints(target), "");
    cutEverywhere(recording, [&](std::size_t done, const Files& left) {
      if (done < recording.calls.size()) return expectOneOf(at(left, target), whole);
      return expectOneOf(at(left, target), {whole[1]});
    });
  }

  support::TempFolder folder;
  const std::string path = folder.path("a.mdb");
};

TEST_F(PowerCut, DuringACloseLeavesTheOldFileOrTheNewOne) {
  const auto recording = record({folder.path()}, [&] {
    jet::dao::Workspace workspace;
    const auto db = workspace.OpenDatabase(path, true);
    db->Execute("UPDATE t SET b = 'altra riga', c = c & 'x'");
    db->Close();
  });
  expectOldOrNew(recording, path);
  EXPECT_EQ(::office::query(path, "SELECT Count(*) FROM t WHERE b = 'altra riga'"), "100");
}

TEST_F(PowerCut, DuringACommitThatOutlivesItsDatabaseLeavesTheOldFileOrTheNewOne) {
  const auto recording = record({folder.path()}, [&] {
    jet::dao::Workspace workspace;
    const auto db = workspace.OpenDatabase(path, true);
    workspace.BeginTrans();
    db->Execute("DELETE FROM t WHERE a > 10");
    db->Execute("CREATE TABLE u (a LONG)");
    db->Close();
    workspace.CommitTrans();
  });
  expectOldOrNew(recording, path);
  EXPECT_EQ(::office::query(path, "SELECT Count(*) FROM t"), "10");
}

TEST_F(PowerCut, DuringACompactionLeavesTheSourceAndAWholeCopyOrNone) {
  const std::string copy = folder.path("b.mdb");
  const auto recording = record({folder.path()}, [&] { jet::dao::DBEngine::CompactDatabase(path, copy); });
  for (const auto& call : recording.calls)
    EXPECT_TRUE(call.path != path || call.operation != platform::DiskOperation::Write);
  expectOldOrNew(recording, copy);
  EXPECT_EQ(::office::query(copy, "SELECT Count(*) FROM t"), "100");
}

/// Number of the call behind which the run believes its backup safe.
std::size_t callsToBackup(const Recording& recording, const std::string& backup) {
  std::size_t done = 0;
  while (recording.calls.at(done).otherPath != backup) ++done;
  ++done;
  return recording.calls.at(done).operation == platform::DiskOperation::FlushFolder ? done + 1 : done;
}

TEST(PowerCutOfARun, LeavesAWholeTargetAndFromTheBackupOnTheBackupToo) {
  office::Office office;
  const auto run = [&] {
    std::ostringstream out, errors;
    return console::runBatch(office.batch(), out, errors);
  };
  const std::vector<std::string> folders{office.data, office.program};
  int status = 0;
  const auto recording = record(folders, [&] { status = run(); });
  ASSERT_EQ(status, console::Done);

  const auto targets = versions(recording, office.target);
  ASSERT_EQ(targets.size(), 3u) << "old, committed, compacted";
  EXPECT_EQ(::office::complaints(office.target), "");
  const std::size_t backupDone = callsToBackup(recording, office.backup);
  cutEverywhere(recording, [&](std::size_t done, const Files& left) -> testing::AssertionResult {
    const std::string target = at(left, office.target);
    if (auto whole = expectOneOf(target, targets); !whole) return whole << ", the target";
    if (done >= backupDone || target != targets[0])
      if (auto whole = expectOneOf(at(left, office.backup), {targets[0]}); !whole)
        return whole << ", the backup";
    if (done == recording.calls.size() && target != targets[2])
      return testing::AssertionFailure() << "success was reported for another file";
    return testing::AssertionSuccess();
  });
}

/// Whatever lies around after a cut, the next run does its work.
TEST(PowerCutOfARun, LeavesNothingThatTheNextRunStumblesOver) {
  office::Office office;
  const auto run = [&] {
    std::ostringstream out, errors;
    return console::runBatch(office.batch(), out, errors);
  };
  const std::vector<std::string> folders{office.data, office.program};
  const auto recording = record(folders, [&] { ASSERT_EQ(run(), console::Done); });
  const std::string updated = office::contentOf(office.target);
  DiskModel disk(recording.before);
  for (std::size_t done = 1; done <= recording.calls.size(); ++done) {
    using enum platform::DiskOperation;
    const auto& call = recording.calls[done - 1];
    if (!disk.carryOut(call) || call.operation == Flush || call.operation == FlushFolder) continue;
    for (const unsigned seed : {1u, 2u, static_cast<unsigned>(4 + done)}) {
      SCOPED_TRACE(testing::Message() << "cut behind call " << done << ", seed " << seed);
      putFiles(disk.afterCut(seed), folders);
      ASSERT_EQ(support::runInChild(run), console::Done);
      ASSERT_EQ(office::contentOf(office.target), updated);
    }
  }
}

}  // namespace
}  // namespace power_cut
