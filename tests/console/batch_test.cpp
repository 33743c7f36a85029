// The update from the command line: what it refuses, what it prints, its exit status.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>

#include "office.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "support/case_file.h"
#include "support/command.h"
#include "support/usage.h"

namespace {

using office::batch;
using office::Office;
using office::with;
using support::runCommand;
using support::shellWord;
using testing::ContainsRegex;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::MatchesRegex;

std::string command(const Office& office, const std::string& arguments) {
  return AGGNORVO " " + arguments + " --program-dir " + shellWord(platform::toSystemPath(office.program)) +
         " --settings " + shellWord(platform::toSystemPath(office.settings));
}

TEST(Batch, RunsInOneFolderAndSecondHaveABackupEach) {
  Office office;
  constexpr int runs = 3, trials = 2;
  const std::string folder = platform::toSystemPath(office.data);
  for (int trial = 0; trial < trials; ++trial) {
    std::string line;
    std::set<std::string> before;
    for (int run = 0; run < runs; ++run) {
      const std::string name = folder + "/albo" + std::to_string(run) + ".mdb";
      std::filesystem::copy_file(platform::toSystemPath(office.target), name,
                                 std::filesystem::copy_options::overwrite_existing);
      const auto db = jet::dao::DBEngine::OpenDatabase(platform::fromSystemPath(name), true);
      db->Execute("INSERT INTO gruppi VALUES (" + std::to_string(100 + run) + ")", jet::dao::dbFailOnError);
      db->Close();
      before.insert(support::contentOf(name));
      line += command(office, "--batch --app collgeometri --database " + shellWord(name)) + " & p" +
              std::to_string(run) + "=$!; ";
    }
    for (int run = 0; run < runs; ++run) line += "wait $p" + std::to_string(run) + " || exit 1; ";
    const auto result = runCommand(line);
    EXPECT_EQ(result.status, 0) << result.errors;
    std::set<std::string> backups;
    for (const std::string& name : office.dataFiles())
      if (name.starts_with("Backup")) {
        backups.insert(support::contentOf(folder + "/" + name));
        std::filesystem::remove(folder + "/" + name);
      }
    EXPECT_TRUE(backups == before) << backups.size() << " backups of " << runs;
  }
}

TEST(Batch, LeavesWhatHasTheNameOfItsBackup) {
  namespace fs = std::filesystem;
  for (const char* kind : {"file", "folder", "link"}) {
    SCOPED_TRACE(kind);
    Office office;
    const std::string taken = platform::toSystemPath(office.backup), own = "Backup20261116171601.mdb";
    if (*kind == 'l') {
      fs::create_symlink("nessuno", taken);
    } else if (kind == std::string("folder")) {
      fs::create_directory(taken);
    } else {
      platform::writeWholeFile(office.backup, "mio");
    }
    const std::string before = platform::readWholeFile(office.target);
    const auto result = batch(office.batch());
    EXPECT_EQ(result.status, console::Done) << result.out << result.err;
    EXPECT_THAT(office.dataFiles(), ElementsAre("Backup20261116171600.mdb", own, "studio.mdb"));
    EXPECT_EQ(platform::readWholeFile(office.file(own)), before);
    if (kind == std::string("file")) {
      EXPECT_EQ(support::contentOf(taken), "mio");
    }
  }
}

/// Runs a command line in an office that the case has changed by statements and by a line of the shell. The
/// files beside the target are told, with the digits of their names left out, and whether the target changed.
std::string told(const support::Case& each) {
  Office office(each.one("folder", "dati"));
  office.makeTarget(with(office::oldInstallation(), each.all("design")));
  office.makeReference(with(office::reference(), each.all("reference")));
  std::string line;
  const std::pair<const char*, std::string> names[] = {
      {"T", office.target}, {"D", office.data}, {"P", office.program}, {"S", office.settings}};
  for (const auto& [name, path] : names)
    line += std::string(name) + "=" + shellWord(platform::toSystemPath(path)) + "; ";
  const auto prepared = runCommand(line + each.one("before", ":"));
  EXPECT_EQ(prepared.errors, "");
  const std::string before = platform::readWholeFile(office.target);
  const auto result = runCommand(line + AGGNORVO " " + each.statement);
  EXPECT_EQ(result.output.find('\r'), std::string::npos);
  for (const std::string& part : each.all("output")) EXPECT_THAT(result.output, ContainsRegex(part));
  for (const std::string& whole : each.all("errors")) EXPECT_THAT(result.errors, MatchesRegex(whole));
  if (each.all("errors").empty()) {
    EXPECT_EQ(result.errors.empty(), result.status == console::Done || result.status == console::WouldChange)
        << result.errors;
  }
  std::string files;
  for (const std::string& name : office.dataFiles())
    if (name != "studio.mdb") files += ", " + name.substr(0, name.find_first_of("0123456789"));
  return std::to_string(result.status) + files +
         (platform::readWholeFile(office.target) == before ? "" : ", updated");
}

TEST(Program, DoesWhatItsCommandLineSays) {
  support::CaseFile(CASES "/commands.cases").expectResults(told);
}

TEST(Program, NeverTurnsADryRunIntoTheRealOne) {
  support::CaseFile(CASES "/dry_runs.cases").expectResults(told);
}

TEST(Program, AnswersInItalianAndRefusesWrongUsage) {
  support::expectUsage(AGGNORVO, CASES "/usage.cases");
}

}  // namespace
