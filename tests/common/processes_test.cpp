#include "common/processes.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <fstream>

#include "controls/form.h"
#include "platform/computer.h"
#include "platform/files.h"
#include "support/fixed_clock.h"
#include "support/scripted_desktop.h"
#include "support/temp_folder.h"

namespace {

using controls::MousePointer;

/// Real children, awaited on a clock that runs as fast as it is asked.
class Children : public testing::Test {
 protected:
  ~Children() override { platform::useComputerFile(""); }

  /// Runs the command to its end and returns the seconds that this took on the clock.
  float secondsOf(const std::string& command) {
    const float start = clock_.seconds;
    common::EseguiEAttendi(command, 1);
    return clock_.seconds - start;
  }
  /// A program of this test, made of lines of the shell.
  std::string program(const std::string& name, const std::string& lines) {
    std::ofstream(folder_.systemPath(name)) << "#!/bin/sh\n" << lines;
    ::chmod(folder_.systemPath(name).c_str(), 0755);
    return folder_.path(name);
  }
  bool hasChildren() const {
    siginfo_t info;
    return ::waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) == 0;
  }

  support::TempFolder folder_;
  support::FixedClock clock_;
  support::ScriptedDesktop desktop_;
  controls::DesktopScope scope_{desktop_};
};

TEST_F(Children, ThatCannotBeStartedAreSilentAndCostNoTime) {
  std::ofstream(folder_.systemPath("senza diritto")) << "#!/bin/sh\n";
  std::ofstream(folder_.systemPath("niente")) << "non è un programma\n";
  ::chmod(folder_.systemPath("niente").c_str(), 0755);
  for (const std::string& command :
       {std::string(), std::string("  "), std::string("\"\""), folder_.path("manca.exe") + " a b",
        std::string("un-programma-che-non-esiste"), '"' + folder_.path("senza diritto") + '"',
        folder_.path("niente"), folder_.path(), std::string("true\0x", 6), std::string("true;true")}) {
    EXPECT_EQ(secondsOf(command), 0) << command;
    EXPECT_FALSE(hasChildren()) << command;
  }
  EXPECT_EQ(desktop_.eventRounds, 0);
  EXPECT_TRUE(desktop_.pointers.empty());
}

TEST_F(Children, ThatEndWithinASecondAreNoticedAtTheFirstLook) {
  desktop_.setEventsHook([] {
    siginfo_t info;
    ::waitid(P_ALL, 0, &info, WEXITED | WNOWAIT);  // until the child has ended, without taking note of it
  });
  for (const char* command : {"true", "false", "/bin/sh -c \"kill -9 $$\""}) {
    EXPECT_NEAR(secondsOf(command), 1, 0.05) << command;
    EXPECT_FALSE(hasChildren()) << command;
  }
  EXPECT_EQ(desktop_.pointers, (std::vector(3, MousePointer::Default)));
  clock_.seconds = 86399.5;  // midnight in between
  common::EseguiEAttendi("true", 1);
  EXPECT_LT(clock_.seconds, 1);
}

TEST_F(Children, AreAwaitedWithTheWindowAliveForAsLongAsTheyRun) {
  ASSERT_EQ(::mkfifo(folder_.systemPath("segnale").c_str(), 0600), 0);
  const float end = clock_.seconds + 3;
  bool told = false;
  desktop_.setEventsHook([&] {
    if (clock_.seconds < end || told) return;
    told = true;
    ::close(::open(folder_.systemPath("segnale").c_str(), O_WRONLY));
  });
  EXPECT_GE(secondsOf("cat " + folder_.path("segnale")), 3);
  EXPECT_GT(desktop_.eventRounds, 100);
  EXPECT_FALSE(hasChildren());
}

TEST_F(Children, GetTheirWordsWithoutAShell) {
  const std::string script = program("un programma", "printf '%s\\n' \"$@\" >\"$0.parole\"\n");
  secondsOf('"' + script + "\" \\a\\b.ocx /u \"due parole\" $HOME `id` *;true");
  EXPECT_EQ(platform::readWholeFile(script + ".parole"), "/a/b.ocx\n/u\ndue parole\n$HOME\n`id`\n*;true\n");
}

TEST_F(Children, AreWhatTheAdministratorPutsInAProgramsPlace) {
  const std::string script = program("registra", "printf '%s\\n' \"$@\" >\"$0.parole\"\n");
  platform::writeWholeFile(
      folder_.path("computer.ini"),
      "[Comandi]\nRegSvr32.exe = " + folder_.systemPath("registra") + " --nome \"x y\"\n");
  platform::useComputerFile(folder_.path("computer.ini"));
  secondsOf("\\win\\sys\\REGSVR32.EXE \\srv\\a.ocx /s");
  EXPECT_EQ(platform::readWholeFile(script + ".parole"), "--nome\nx y\n/srv/a.ocx\n/s\n");
}

TEST_F(Children, PauseLetsEventsRunUntilTheTimeIsPast) {
  for (const int seconds : {0, 1, 4}) {
    const float start = clock_.seconds;
    const int rounds = desktop_.eventRounds;
    common::Pausa(seconds);
    EXPECT_NEAR(clock_.seconds - start, seconds, 0.05);
    EXPECT_GE(desktop_.eventRounds - rounds, 49 * seconds);
  }
}

TEST_F(Children, BringAWindowBackByItselfOrByItsNumber) {
  controls::Form form("frmProva", "Prova"), other("frmAltra", "Altra");
  common::FinestraInPrimoPiano(form, true);
  common::FinestraInPrimoPiano(other.hwnd(), false);
  common::FinestraInPrimoPiano(-1, true);  // no window has it
  EXPECT_EQ(desktop_.forms, (std::vector<std::string>{"top frmProva", "not top frmAltra"}));
}

}  // namespace
