// The power is cut behind every call on the disk, and each disk that this may leave is looked at.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <optional>
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

/// The content of a file; nothing where there is none.
using Version = std::optional<std::string>;

Version at(const Files& files, const std::string& path) {
  const auto found = files.find(path);
  return found == files.end() ? Version() : found->second;
}

/// The contents that `path` has one after the other while the power stays on, as whole files take each
/// other's place.
std::vector<Version> versions(const Recording& recording, const std::string& path) {
  DiskModel disk(recording.before);
  std::vector<Version> result{at(recording.before, path)};
  for (const auto& call : recording.calls) {
    disk.carryOut(call);
    if (call.operation == platform::DiskOperation::Replace && call.otherPath == path)
      result.push_back(at(disk.files(), path));
  }
  EXPECT_EQ(result.back(), platform::readWholeFile(path)) << "the model is wrong";
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
}

testing::AssertionResult isOneOf(const Version& left, const std::vector<Version>& whole) {
  if (std::find(whole.begin(), whole.end(), left) != whole.end()) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "neither the old file nor a new one: "
                                     << (left ? std::to_string(left->size()) + " bytes" : "none");
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
      if (done < recording.calls.size()) return isOneOf(at(left, target), whole);
      return isOneOf(at(left, target), {whole[1]});
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
  expectOldOrNew(recording, copy);
  cutEverywhere(recording, [&](std::size_t, const Files& left) {
    return isOneOf(at(left, path), {at(recording.before, path)});
  });
  EXPECT_EQ(::office::query(copy, "SELECT Count(*) FROM t"), "100");
}

/// Number of calls behind which a run believes its backup safe.
std::size_t callsToBackup(const Recording& recording, const std::string& backup) {
  std::size_t done = 0;
  while (recording.calls.at(done).otherPath != backup) ++done;
  ++done;
  return recording.calls.at(done).operation == platform::DiskOperation::FlushFolder ? done + 1 : done;
}

class PowerCutOfARun : public testing::Test {
 protected:
  int update() const {
    std::ostringstream out, errors;
    return console::runBatch(office.batch(), out, errors);
  }

  /// The target is one of its whole versions at each cut and the last of them at the end; the backup is whole
  /// as soon as the run relies on it.
  void expectWhole(const Recording& recording, std::size_t count) {
    const auto targets = versions(recording, office.target);
    ASSERT_EQ(targets.size(), count);
    EXPECT_EQ(::office::complaints(office.target), "");
    const std::size_t backupDone = callsToBackup(recording, office.backup);
    cutEverywhere(recording, [&](std::size_t done, const Files& left) {
      const Version target = at(left, office.target);
      auto result = isOneOf(target, done < recording.calls.size() ? targets : std::vector{targets.back()});
      if (result && (done >= backupDone || target != targets[0]))
        result = isOneOf(at(left, office.backup), {targets[0]}) << ", the backup";
      return result;
    });
  }

  office::Office office;
  const std::vector<std::string> folders{office.data, office.program};
};

TEST_F(PowerCutOfARun, LeavesAWholeTargetAndFromTheBackupOnTheBackupToo) {
  int status = 0;
  const auto recording = record(folders, [&] { status = update(); });
  ASSERT_EQ(status, console::Done);
  expectWhole(recording, 3);  // old, committed, compacted
}

TEST_F(PowerCutOfARun, ThatEndsInARestoreLeavesAWholeTargetAndTheBackup) {
  const auto recording = record(folders, [&] {
    office::Window window(office);
    bool done = false;
    window.desktop.setEventsHook([&] {
      if (done || window.summary().find("Compattazione") == std::string::npos) return;
      done = true;  // a record goes behind the run's back
      const auto db = jet::dao::DBEngine::OpenDatabase(office.target);
      db->Execute("DELETE FROM gruppi WHERE id = 2");
      db->Close();
    });
    window.update();
    ASSERT_EQ(window.form.UltimaCorsa.esito, console::Esito::Ripristinata);
  });
  expectWhole(recording, 5);  // old, committed, one record less, restored twice
}

/// Whatever lies around after a cut, the next run does its work.
TEST_F(PowerCutOfARun, LeavesNothingThatTheNextRunStumblesOver) {
  const auto recording = record(folders, [&] { ASSERT_EQ(update(), console::Done); });
  const std::string updated = office::contentOf(office.target);
  DiskModel disk(recording.before);
  for (std::size_t done = 1; done <= recording.calls.size(); ++done) {
    using enum platform::DiskOperation;
    const auto& call = recording.calls[done - 1];
    if (!disk.carryOut(call) || call.operation == Flush || call.operation == FlushFolder) continue;
    for (const unsigned seed : {1u, 2u, static_cast<unsigned>(4 + done)}) {
      SCOPED_TRACE(testing::Message() << "cut behind call " << done << ", seed " << seed);
      putFiles(disk.afterCut(seed), folders);
      ASSERT_EQ(support::runInChild([&] { return update(); }), console::Done);
      ASSERT_EQ(office::contentOf(office.target), updated);
    }
  }
}

}  // namespace
}  // namespace power_cut
