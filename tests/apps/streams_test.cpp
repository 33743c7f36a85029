// Programs that are started without one of their standard streams.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <thread>

#include "office.h"
#include "support/child_process.h"

namespace {

using support::contentOf;
using support::runCommand;
using support::shellWord;

class Streams : public testing::Test {
 protected:
  Streams() {
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    std::ofstream(folder_.systemPath("nessuna.ini"));
  }

  void make(const std::string& file) {
    const auto made = runCommand(JETSQL " --create " + shellWord(folder_.systemPath(file)),
                                 "CREATE TABLE t (a LONG, b TEXT(10));\nINSERT INTO t VALUES (1, 'uno');\n");
    ASSERT_EQ(made.status, 0) << made.errors;
  }
  std::string word(const std::string& file) { return shellWord(folder_.systemPath(file)); }

  support::TempFolder folder_;
};

TEST_F(Streams, ThatAreClosedAreNoFiles) {
  make("a.mdb");
  make("modello.mdb");
  ASSERT_EQ(runCommand(CATALOGO " --create " + word("AggNorvo.mdb") + " " + word("modello.mdb")).status, 0);
  const std::string jetsql = JETSQL " " + word("a.mdb"), insert = " \"INSERT INTO t VALUES (2, 'due')\"",
                    catalogo = CATALOGO " --norvo ordcommec " + word("AggNorvo.mdb") + " ",
                    batch = AGGNORVO " --settings " + word("nessuna.ini") + " --program-dir " + word("") +
                            " --batch --app ordcommec --database " + word("a.mdb");
  const struct {
    std::string command;
    int status;
    bool changes;
  } cases[] = {
      // Rows that reach nobody, a script that nobody gives: nothing of it is done.
      {jetsql + insert + " \"SELECT * FROM t\" >&-", 1, false},
      {jetsql + insert + " .tables >&- 2>&-", 1, false},
      {jetsql + " <&-", 1, false},
      {jetsql + " <&- >&- 2>&-", 1, false},
      {jetsql + " \"SELEC\" 2>&-", 1, false},
      {jetsql + insert + " 2>&-", 0, true},
      {jetsql + insert + " <&- 2>&-", 0, true},
      {JETSQL " --help >&-", 1, false},
      {catalogo + word("modello.mdb") + " >&-", 1, false},
      {catalogo + word("manca.mdb") + " 2>&-", 1, false},
      {catalogo + word("modello.mdb") + " <&- 2>&-", 0, true},
      {CATALOGO " --version >&-", 1, false},
      {batch + " >&-", 2, false},
      {batch + " --plan >&- 2>&-", 2, false},
      {AGGNORVO " --list >&-", 2, false},
      {AGGNORVO " --patch " + word("") + " >&-", 2, false},
      {AGGNORVO " --help >&-", 1, false},
      {WINDOW " --help >&-", 1, false},
  };
  const auto files = [this] {
    return contentOf(folder_.systemPath("a.mdb")) + contentOf(folder_.systemPath("AggNorvo.mdb"));
  };
  for (const auto& test : cases) {
    const std::string before = files();
    EXPECT_EQ(runCommand(test.command).status, test.status) << test.command;
    EXPECT_EQ(files() != before, test.changes) << test.command;
    for (const char* file : {"a.mdb", "AggNorvo.mdb"})
      EXPECT_EQ(office::complaints(folder_.systemPath(file)), "") << test.command;
    EXPECT_EQ(contentOf(folder_.systemPath("modello.mdb")).substr(4, 15), "Standard Jet DB") << test.command;
  }
}

TEST_F(Streams, ThatAreFullAreToldOf) {
  std::ofstream(folder_.systemPath("PatchList.txt")) << "Norvo-PRG=albo\n";
  const auto patched = runCommand(AGGNORVO " --patch " + word("") + " --program-dir " + word("") +
                                  " --settings " + word("nessuna.ini") + " >/dev/full");
  EXPECT_EQ(patched.errors, "Lo standard output non si può scrivere.\n");
}

/// What each descriptor of a running process leads to.
std::string at(pid_t process, int descriptor) {
  std::error_code failure;
  return std::filesystem::read_symlink(
             "/proc/" + std::to_string(process) + "/fd/" + std::to_string(descriptor), failure)
      .string();
}

/// The window keeps its reference open, so one can look which descriptor it has.
TEST_F(Streams, OfTheWindowAreNoFilesEither) {
  make("modello.mdb");
  ASSERT_EQ(runCommand(CATALOGO " --create " + word("AggNorvo.mdb") + " " + word("modello.mdb")).status, 0);
  const std::string reference = folder_.systemPath("AggNorvo.mdb"), programs = folder_.systemPath(),
                    settings = folder_.systemPath("nessuna.ini");
  for (const char* program : {WINDOW, AGGNORVO}) {
    support::Child window([&] {
      for (const int stream : {0, 1, 2}) ::close(stream);
      ::execl(program, program, "--program-dir", programs.c_str(), "--settings", settings.c_str(), nullptr);
      return 1;
    });
    bool opened = false;
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (!opened && std::chrono::steady_clock::now() < deadline) {
      std::this_thread::sleep_for(std::chrono::milliseconds(20));
      for (int descriptor = 0; descriptor < 64; ++descriptor)
        opened = opened || at(window.process(), descriptor) == reference;
    }
    EXPECT_TRUE(opened) << program;
    for (const int stream : {0, 1, 2}) EXPECT_EQ(at(window.process(), stream), "/dev/null") << program;
  }
}

}  // namespace
