// A patch from the command line: what it prints, its exit status, and a program that replaces itself.
#include "patcher/batch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "patch.h"
#include "support/command.h"

namespace {

using patch::Computer;
using support::runCommand;
using support::shellWord;
using testing::HasSubstr;
using testing::StartsWith;

support::CommandResult patchWith(const Computer& computer, const std::string& program,
                                 const std::string& folder) {
  return runCommand(shellWord(program) + " --patch " + shellWord(computer.folder.systemPath(folder)) +
                    " --settings " + shellWord(computer.folder.systemPath("impostazioni.ini")) +
                    " --program-dir " + shellWord(computer.folder.systemPath("programma")));
}

TEST(Batch, ReportsOnTheOutputAndTellsByItsStatusWhetherAllWentWell) {
  const struct {
    const char* name;
    std::string list;
    int status;
    std::string output;  // %: the folder of the database
    const char* errors;
  } cases[] = {
      {"good", "Norvo-PRG=albo\r\nNorvoDB-SOST=a\r\nTop-LBL=x", 0,
       "Sostituisco 'a'\n in '%'...fatto.\n\nFile Sostituiti 1\nAggiornamento terminato, puoi uscire.\n", ""},
      {"empty", "", 0, "Aggiornamento terminato, puoi uscire.\n", ""},
      {"too many rows",
       [] {
         std::string rows;
         for (int i = 0; i <= 300; ++i) rows += "Windows-SOST=a\n";
         return rows;
       }(),
       2, "", "PatchList.txt non è compilato correttamente"},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.name);
    Computer computer;
    computer.list(test.list);
    computer.write("patch\\a", "nuovo");
    const auto result = patchWith(computer, AGGNORVO, "patch");
    EXPECT_EQ(result.status, test.status);
    std::string output = test.output;
    if (const auto place = output.find('%'); place != std::string::npos)
      output.replace(place, 1, computer.path("norvo\\db\\"));
    EXPECT_EQ(result.output, output);
    EXPECT_THAT(result.errors, *test.errors ? HasSubstr(test.errors) : testing::Matcher<std::string>(""));
  }
}

TEST(Batch, FailsWhereAFileCanNotBeCopiedOrTheDirectoriesCanNotBeFound) {
  Computer computer;
  computer.list("Norvo-PRG=albo\nNorvoDB-SOST=manca\n");
  std::ostringstream out, err;
  EXPECT_EQ(patcher::runPatch(computer.path("patch"), out, err), patcher::PatchErrors);
  EXPECT_THAT(out.str(), HasSubstr("...ERRORE!!!\n\nERRORI 1\n\nAggiornamento"));
  EXPECT_EQ(err.str(), "");

  computer.writeComputerFile(
      "[HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\albo.exe]\n");
  out.str("");
  EXPECT_EQ(patcher::runPatch(computer.path("patch"), out, err), patcher::PatchErrors);
  EXPECT_EQ(out.str(), "") << "nothing is copied to directories that were not found";
  EXPECT_THAT(err.str(),
              HasSubstr("[avviso] AggNorvo: GetPaths / Errore nel setting dei percorsi / Errore N° 1001"));
}

TEST(Batch, TellsOfAListThatIsNotThereEvenWhereNothingCanBeLogged) {
  for (const bool logged : {true, false}) {
    Computer computer;
    const std::string log = computer.folder.systemPath("programma\\error.log");
    if (!logged) std::filesystem::create_directory(log);
    const auto result = patchWith(computer, AGGNORVO, "manca");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(result.errors, HasSubstr("Elenco della patch non leggibile: " +
                                         computer.folder.systemPath("manca/PatchList.txt")));
    EXPECT_EQ(std::filesystem::is_regular_file(log), logged);
  }
}

TEST(RunningProgram, ReplacesItselfAndRunsOn) {
  Computer computer;
  const std::string program = computer.folder.systemPath("norvo\\bin\\aggnorvo");
  std::filesystem::copy_file(AGGNORVO, program);
  computer.write("patch\\aggnorvo", "#!/bin/sh\necho versione nuova\n");
  std::filesystem::permissions(computer.folder.systemPath("patch\\aggnorvo"), std::filesystem::perms(0755));
  computer.write("patch\\dopo", "x");
  computer.write("impostazioni.ini",
                 "[altro\\DBSECTION]\ndbpath = " + computer.path("norvo\\bin\\altro.mdb") + "\n");
  computer.list("Norvo-PRG=altro\nNorvoDB-SOST=aggnorvo\nNorvoDB-SOST=dopo");
  const auto result = patchWith(computer, program, "patch");
  EXPECT_EQ(result.status, 0) << result.errors;
  EXPECT_THAT(result.output, HasSubstr("File Sostituiti 2\n"));
  EXPECT_TRUE(computer.has("norvo\\bin\\dopo")) << "the row after its own replacement is carried out";
  EXPECT_EQ(runCommand(shellWord(program)).output, "versione nuova\n");
  std::string old;
  for (const std::string& name : computer.names("norvo\\bin"))
    if (name.starts_with("aggnorvo.")) old = name;
  EXPECT_THAT(old, testing::MatchesRegex("aggnorvo\\.[0-9]+_[0-9]+"));
  EXPECT_THAT(runCommand(shellWord(computer.folder.systemPath("norvo\\bin\\" + old)) + " --version").output,
              StartsWith("aggnorvo 1."));
}

}  // namespace
