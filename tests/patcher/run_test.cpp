// What a run does to the files, what it reports, how it is stopped.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "patch.h"
#include "platform/files.h"
#include "support/disk_faults.h"

namespace {

using patch::Computer;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;

constexpr std::int64_t None = INT64_MIN;
const char* const Finished = "Aggiornamento terminato, puoi uscire.";

std::int64_t modified(const Computer& computer, const std::string& name) {
  return platform::inspectFile(computer.path(name))->modifiedUnixNanoseconds;
}

TEST(Update, CopiesWhatIsNotOlderAndTellsEachStep) {
  const struct {
    const char* name;
    std::int64_t source, target;  // ages in seconds
    const char *outcome, *totals, *content;
  } cases[] = {
      {"same date", 0, 0, "fatto.", "File Aggiornati 1\r\n", "nuovo"},
      {"source newer", 0, 1, "fatto.", "File Aggiornati 1\r\n", "nuovo"},
      {"target newer", 1, 0, "non necessario.", "File NON Aggiornati 1\r\n", "vecchio"},
      {"no target", 0, None, "fatto.", "File Aggiornati 1\r\n", "nuovo"},
      {"no source", None, 0, "ERRORE!!!", "ERRORI 1\r\n\r\n", "vecchio"},
      {"neither", None, None, "ERRORE!!!", "ERRORI 1\r\n\r\n", ""},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.name);
    Computer computer;
    computer.list("Norvo-PRG=albo\nNORVODB-agg=dati.mdb");
    if (test.source != None) computer.write("patch\\dati.mdb", "nuovo", test.source);
    if (test.target != None) computer.write("norvo\\db\\dati.mdb", "vecchio", test.target);
    const std::int64_t before = test.target == None ? 0 : modified(computer, "norvo\\db\\dati.mdb");
    computer.run();
    EXPECT_EQ(computer.report(), "Aggiorna 'dati.mdb'\r\n in '" + computer.path("norvo\\db\\") + "'..." +
                                     test.outcome + "\r\n\r\n" + test.totals + Finished);
    if (*test.content) {
      EXPECT_EQ(computer.read("norvo\\db\\dati.mdb"), test.content);
      const bool copied = test.content == std::string("nuovo");
      EXPECT_EQ(modified(computer, "norvo\\db\\dati.mdb"),
                copied ? modified(computer, "patch\\dati.mdb") : before);
    }
    EXPECT_EQ(computer.has("norvo\\db\\dati.mdb.tmp"), false);
    const bool failed = test.outcome == std::string("ERRORE!!!");
    EXPECT_NEAR(computer.clock.seconds - 62160, failed ? 15 : 0, 0.1) << "a copy that fails costs its wait";
    EXPECT_TRUE(computer.desktop.boxes.empty());
  }
}

TEST(Replace, CopiesWhateverTheDatesToEachOfTheDirectories) {
  Computer computer;
  const struct {
    const char *alias, *folder;
  } aliases[] = {{"NorvoDB", "norvo\\db\\"},
                 {"NorvoStampe", "norvo\\Stampe\\"},
                 {"NorvoEXE", "norvo\\bin\\"},
                 {"NorvoEXEDB", "norvo\\bin\\db\\"},
                 {"TellaroFaxExe", "tellaro\\"},
                 {"WinSys", "win\\system\\"},
                 {"Windows", "win\\"}};
  std::string list, report;
  for (const auto& [alias, folder] : aliases) {
    list += std::string(alias) + "-SOST=è.dll\n";
    computer.write(std::string(folder) + "è.dll", "vecchio", -1000);
    report += "Sostituisco 'è.dll'\r\n in '" + computer.path(folder) + "'...fatto.\r\n\r\n";
  }
  computer.list("Norvo-PRG=albo\n" + [&] {
    std::string bytes;
    for (const char letter : list)
      if (letter != '\xC3') bytes += letter == '\xA8' ? '\xE8' : letter;
    return bytes;
  }());
  computer.write("patch\\è.dll", "nuovo");
  computer.run();
  EXPECT_EQ(computer.report(), report + "File Sostituiti 7\r\n" + Finished);
  for (const auto& [alias, folder] : aliases)
    EXPECT_EQ(computer.read(std::string(folder) + "è.dll"), "nuovo") << alias;
}

TEST(Destination, OfAnUnknownAliasIsWhereTheRowBeforeWent) {
  Computer computer;
  computer.list("Norvo-PRG=albo\nWindows-SOST=a\nWinSis-SOST=b\nNota-NOTA=c\nWinSys-NOTA=c\nboh-AGG=c");
  for (const char* name : {"a", "b", "c"}) computer.write(std::string("patch\\") + name, name);
  computer.run();
  EXPECT_THAT(computer.names("win"), ElementsAre("a", "b", "c", "system"));
  EXPECT_THAT(computer.report(),
              EndsWith(std::string("File Aggiornati 1\r\nFile Sostituiti 2\r\n") + Finished));
}

TEST(Destination, IsTheDirectoryAndTheValueAsTheyStand) {
  Computer computer;
  computer.list("Norvo-PRG=albo\nNorvoDB-SOST=sub\\..\\..\\fuori\nWindows-SOST=manca\\x\nWindows-SOST=\x2E");
  std::filesystem::create_directories(computer.folder.systemPath("patch\\sub"));
  std::filesystem::create_directories(computer.folder.systemPath("norvo\\db\\sub"));
  computer.write("fuori", "nuovo");
  computer.run();
  EXPECT_EQ(computer.read("norvo\\fuori"), "nuovo");
  EXPECT_EQ(computer.form.ErroriPatch, 2) << "no folder is made, and a folder is no file";
  // Without the application's row the file lands in the current folder, whatever that is.
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(computer.folder.systemPath("win"));
  computer.list("NorvoDB-SOST=qui");
  computer.write("patch\\qui", "x");
  patcher::frmPatch second;
  second.Path(computer.path("patch"));
  second.load();
  second.cmd.press();
  std::filesystem::current_path(before);
  EXPECT_TRUE(computer.has("win\\qui"));
  second.unload();
}

TEST(Run, CanBeRepeated) {
  Computer computer;
  computer.list("Windows-AGG=a\nWindows-SOST=a");
  computer.write("patch\\a", "x");
  computer.run();
  const std::string report = computer.report();
  EXPECT_THAT(report, EndsWith(std::string("File Aggiornati 1\r\nFile Sostituiti 1\r\n") + Finished));
  computer.form.cmd.press();
  EXPECT_EQ(computer.report(), report);
}

TEST(Run, ShowsThatItIsUnderWay) {
  Computer computer;
  computer.list("Windows-SOST=a");
  computer.write("patch\\a", "x");
  computer.form.load();
  EXPECT_EQ(computer.form.cmd.caption(), "Aggiorna");
  EXPECT_EQ(computer.form.cmdEsci.caption(), "ESCI");
  int seen = 0;
  computer.desktop.setEventsHook([&] {
    ++seen;
    EXPECT_FALSE(computer.form.cmd.enabled());
    EXPECT_EQ(computer.form.cmdEsci.caption(), "Annulla");
    EXPECT_FALSE(computer.form.cmd.press());
  });
  computer.form.cmd.press();
  EXPECT_EQ(seen, 3);
  EXPECT_TRUE(computer.form.cmd.enabled());
  EXPECT_EQ(computer.form.cmdEsci.caption(), "ESCI");
  EXPECT_THAT(computer.desktop.pointers,
              ElementsAre(controls::MousePointer::Hourglass, controls::MousePointer::Default));
  computer.form.cmdEsci.press();
  EXPECT_FALSE(computer.form.loaded());
}

TEST(Stop, EndsTheRowThatHasBegunAndCountsWhatIsLeftAsTheSuiteDoes) {
  const struct {
    int during;  // the row in which the operator stops
    const char* skipped;
  } cases[] = {{1, "8"}, {3, "6"}, {9, "0"}, {10, "-1"}};
  for (const auto& test : cases) {
    Computer computer;
    std::string list;
    for (int row = 1; row <= 10; ++row) {
      list += "Windows-SOST=" + std::to_string(row) + "\n";
      computer.write("patch\\" + std::to_string(row), "x");
    }
    computer.list(list);
    computer.desktop.setEventsHook([&] {
      if (computer.report().ends_with("...") && test.during == computer.form.FileSostituiti + 1)
        computer.form.cmdEsci.press();
    });
    computer.run();
    EXPECT_EQ(computer.form.FileSostituiti, test.during);
    EXPECT_THAT(computer.report(),
                EndsWith("File Sostituiti " + std::to_string(test.during) + "\r\nFile saltati " +
                         test.skipped + "\r\nEsecuzione terminata dall'utente. \r\n"));
    EXPECT_TRUE(computer.form.loaded()) << "the report stays to be read";
    computer.form.cmdEsci.press();
    EXPECT_FALSE(computer.form.loaded());
  }
}

TEST(Stop, OfAWindowClosedByItsFrameComesAfterTheRun) {
  Computer computer;
  computer.list("Windows-SOST=a\nWindows-SOST=b");
  for (const char* name : {"a", "b"}) computer.write(std::string("patch\\") + name, name);
  computer.desktop.setEventsHook([&] { computer.form.unload(); });
  computer.run();
  EXPECT_TRUE(computer.has("win\\b"));
  EXPECT_FALSE(computer.form.loaded());
}

TEST(Wait, EndsAsSoonAsTheFileIsFree) {
  Computer computer;
  computer.list("Windows-SOST=a");
  computer.write("patch\\a", "nuovo");
  computer.write("win\\a", "vecchio");
  platform::File held = platform::openFile(computer.path("win\\a"), platform::OpenMode::Read);
  ASSERT_TRUE(held.tryLock(platform::LockMode::Shared));
  computer.desktop.setEventsHook([&] {
    if (computer.clock.seconds > 62160 + 3 && held) held.close();
  });
  computer.run();
  EXPECT_EQ(computer.read("win\\a"), "nuovo");
  EXPECT_NEAR(computer.clock.seconds - 62160, 3, 0.1);
  EXPECT_EQ(computer.form.ErroriPatch, 0);
}

TEST(Wait, ThatMidnightFallsIntoLastsUntilTheCopySucceeds) {
  Computer computer;
  computer.clock.seconds = 86395;
  computer.list("Windows-SOST=a");
  computer.desktop.setEventsHook([&] {
    if (computer.clock.seconds > 60 && computer.clock.seconds < 70) computer.write("patch\\a", "nuovo");
  });
  computer.run();
  EXPECT_EQ(computer.form.FileSostituiti, 1);
}

TEST(Errors, ThatAreNoFailedCopyEndTheRunAndGiveTheButtonsBack) {
  Computer computer;
  computer.list("Windows-SOST=a\nWindows-AGG=b\nWindows-SOST=a");
  for (const char* name : {"patch\\a", "patch\\b", "win\\b"}) computer.write(name, "x");
  struct NoDate : platform::DiskObserver {
    void before(const platform::DiskCall& call) override {
      if (call.operation == platform::DiskOperation::Inspect && call.path.ends_with("patch\\b"))
        throw platform::DiskError(platform::DiskFault::Io, call.path);
    }
  } observer;
  computer.form.load();
  {
    const support::ObservedDisk scope(observer);
    computer.form.cmd.press();
  }
  ASSERT_EQ(computer.desktop.boxes.size(), 1u);
  EXPECT_THAT(computer.desktop.boxes[0].text,
              testing::StartsWith("StartCopy\r\nErrore nella copia del file " + computer.path("patch\\b") +
                                  "\r\nErrore N° 57"));
  EXPECT_THAT(computer.report(), EndsWith("'..."));
  EXPECT_TRUE(computer.form.cmd.enabled());
  EXPECT_EQ(computer.form.cmdEsci.caption(), "ESCI");
  EXPECT_THAT(computer.read("programma\\error.log"), HasSubstr("Procedura: StartCopy\r\n"));
}

TEST(RunningProgram, IsRenamedBeforeItIsReplaced) {
  for (const bool there : {true, false}) {
    Computer computer;
    computer.list("Norvo-PRG=albo\nNorvoEXE-SOST=ALBO.exe ' il programma\nNorvoEXE-SOST=altro.exe");
    computer.write("norvo\\bin\\ALBO.exe", "vecchio");
    computer.write("norvo\\bin\\altro.exe", "vecchio");
    computer.write("patch\\altro.exe", "nuovo");
    if (there) computer.write("patch\\ALBO.exe", "nuovo");
    computer.form.PercorsoEseguibile = computer.path("norvo\\bin\\albo.exe");
    computer.run();
    EXPECT_EQ(computer.read("norvo\\bin\\ALBO.exe.20261116_171600"), "vecchio");
    EXPECT_EQ(computer.has("norvo\\bin\\ALBO.exe"), there)
        << "once it is renamed a copy that fails leaves none";
    EXPECT_EQ(computer.form.ErroriPatch, there ? 0 : 1);
    EXPECT_EQ(computer.names("norvo\\bin").size(), there ? 4u : 3u) << "only the running program is kept";
  }
}

/// Writes the arguments of RegSvr32.exe into a log, each call a line, and what stands at the destination.
void putRegistrar(Computer& computer) {
  computer.write("registra", "#!/bin/sh\necho \"$@ [$(cat \"$1\")]\" >>'" +
                                 computer.folder.systemPath("registrazioni") + "'\n");
  ASSERT_EQ(::chmod(computer.folder.systemPath("registra").c_str(), 0755), 0);
  computer.writeComputerFile("[Comandi]\nRegSvr32.exe = " + computer.path("registra") + "\n");
}

TEST(Registration, TakesTheOldFileOutAndTheNewOneInWhetherOrNotTheCopyWorked) {
  for (const bool there : {true, false}) {
    Computer computer;
    putRegistrar(computer);
    computer.list("WinSys-REGS=x.dll");
    computer.write("win\\system\\x.dll", "vecchio", -5);
    if (there) computer.write("patch\\x.dll", "nuovo");
    computer.run();
    const std::string file = computer.folder.systemPath("win\\system\\x.dll");
    EXPECT_EQ(computer.read("registrazioni"),
              file + " /u /s [vecchio]\n" + file + " /s [" + (there ? "nuovo" : "vecchio") + "]\n");
    EXPECT_EQ(computer.report(),
              "Sostituisco 'x.dll'\r\n in '" + computer.path("win\\system\\") + "'..." +
                  (there ? "fatto.\r\n\r\nFile Sostituiti 1\r\n" : "ERRORE!!!\r\n\r\nERRORI 1\r\n\r\n") +
                  Finished);
    EXPECT_THAT(computer.desktop.forms, testing::IsSupersetOf({"top frmPatch", "not top frmPatch"}));
  }
}

TEST(Registration, WithoutACommandIsSilent) {
  Computer computer;
  computer.list("WinSys-RegS=x.dll");
  computer.write("patch\\x.dll", "nuovo");
  computer.run();
  EXPECT_EQ(computer.read("win\\system\\x.dll"), "nuovo");
  EXPECT_EQ(computer.form.ErroriPatch, 0);
  EXPECT_EQ(computer.clock.seconds, 62160) << "nothing was waited for";
}

}  // namespace
