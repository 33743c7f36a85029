// A patch from the command line: what it prints, its exit status, and a program that replaces itself.
#include "patcher/batch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "computer.h"
#include "support/case_file.h"
#include "support/command.h"

namespace {

using patch::Computer;
using support::runCommand;
using support::shellWord;

support::CommandResult patchWith(const Computer& computer, const std::string& program) {
  return runCommand(shellWord(program) + " --patch " + shellWord(computer.system("patch")) + " --settings " +
                    shellWord(computer.system("impostazioni.ini")) + " --program-dir " +
                    shellWord(computer.system("programma")));
}

TEST(Batch, TellsWhatItDoesAndWhetherAllWentWell) {
  support::CaseFile(CASES "/batch.cases").expectResults([](const support::Case& each) {
    Computer computer;
    const std::string row = support::fieldsOf(each.statement)[0] + "\n";
    std::string list = row;
    for (int times = std::stoi(each.one("times", "1")); times > 1; --times) list += row;
    if (row != "none\n") computer.list(list);
    computer.write("patch\\a", "nuovo");
    computer.writeComputerFile(each.one("computer"));
    for (const std::string& name : each.all("no folder")) std::filesystem::remove_all(computer.system(name));
    for (const std::string& name : each.all("folder"))
      std::filesystem::create_directory(computer.system(name));
    std::ostringstream out, err;
    const int status = patcher::runPatch(computer.path("patch"), out, err);
    std::string told = std::to_string(status);
    for (const char letter : " | " + out.str() + (err.str().empty() ? "" : " | " + err.str()))
      told += letter == '\n' ? "\r\n" : std::string(1, letter);
    return computer.shown(told +
                          (platform::fileExists(computer.path("programma\\error.log")) ? " | logged" : ""));
  });
}

TEST(RunningProgram, ReplacesItselfAndRunsOn) {
  Computer computer;
  const std::string program = computer.system("norvo\\bin\\aggnorvo");
  std::filesystem::copy_file(AGGNORVO, program);
  computer.write("patch\\aggnorvo", "#!/bin/sh\necho versione nuova\n");
  std::filesystem::permissions(computer.system("patch\\aggnorvo"), std::filesystem::perms(0755));
  computer.write("patch\\dopo", "x");
  // The database lies beside the program, and the settings name it through a link.
  std::filesystem::create_directory_symlink(computer.system("norvo/bin"), computer.system("legame"));
  computer.write("impostazioni.ini",
                 "[altro\\DBSECTION]\ndbpath = " + computer.path("legame\\altro.mdb") + "\n");
  const auto without = patchWith(computer, program);
  EXPECT_EQ(without.status, 2);
  EXPECT_EQ(without.output, "");
  EXPECT_THAT(without.errors, testing::HasSubstr("Elenco della patch non leggibile: "));
  computer.list("Norvo-PRG=altro\nNorvoDB-SOST=aggnorvo\nNorvoDB-SOST=dopo");
  const auto result = patchWith(computer, program);
  EXPECT_EQ(result.status, 0) << result.errors;
  EXPECT_THAT(result.output, testing::HasSubstr("File Sostituiti 2\n"));
  EXPECT_EQ(runCommand(shellWord(program)).output, "versione nuova\n");
  std::string old;
  for (const auto& entry : std::filesystem::directory_iterator(computer.system("norvo/bin")))
    if (entry.path().filename().string().starts_with("aggnorvo.")) old = entry.path().string();
  EXPECT_THAT(old, testing::MatchesRegex(".*/aggnorvo\\.[0-9]+_[0-9]+"));
  EXPECT_THAT(runCommand(shellWord(old) + " --version").output, testing::StartsWith("aggnorvo 1."));
}

}  // namespace
