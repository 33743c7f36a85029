// What a list says, whoever wrote it, and the directories that its names stand for.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "patch.h"
#include "support/case_file.h"

namespace {

using namespace std::string_literals;
using patch::Computer;
using testing::ElementsAre;
using testing::HasSubstr;

std::string written(const patcher::Riga& row) {
  return row.Chiave + "|" + row.Comando + "|" + row.Valore;
}

TEST(List, TakesALineApartOrPassesItOver) {
  support::CaseFile(CASES "/rows.cases").expectResults([](const support::Case& each) {
    const auto row = patcher::leggiRiga(support::fieldsOf(each.statement)[0]);
    return row ? support::inBraces(written(*row)) : "-";
  });
}

TEST(List, IsReadInWhateverBytesItComes) {
  const std::string mega(1 << 20, 'm');
  const struct {
    const char* name;
    std::string content;
    std::vector<std::string> rows;
  } cases[] = {
      {"empty", "", {}},
      {"line ends of all kinds",
       "A-B=1\r\nA-B=2\nA-B=3\rA-B=4\n\n\r\n\rA-B=5",
       {"A|B|1", "A|B|2", "A|B|3", "A|B|4", "A|B|5"}},
      {"letters of the code page", "A-B=citt\xE0 \x80 \x81", {"A|B|città € \u0081"}},
      {"no text", "\xFF\xFE\0\x1A\0A-B=\0"s, {"ÿþ\0\x1A\0A|B|\0"s}},
      {"lines of a megabyte", mega + "\n" + mega + "-" + mega + "=" + mega, {mega + "|" + mega + "|" + mega}},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.name);
    Computer computer;
    computer.list(test.content);
    computer.form.load();
    ASSERT_EQ(computer.form.NumeroRighe, static_cast<std::int32_t>(test.rows.size()));
    for (std::size_t i = 0; i < test.rows.size(); ++i)
      EXPECT_TRUE(written(computer.form.RigaPatch[i + 1]) == test.rows[i]) << i;
    EXPECT_TRUE(computer.desktop.boxes.empty());
  }
}

TEST(List, ThatCanNotBeReadEndsTheProgram) {
  std::string rows;
  for (int i = 0; i < 300; ++i) rows += "A-B=x\r\nsenza segni\r\n";
  const struct {
    const char* name;
    std::function<void(Computer&)> prepare;
    int error;  // 0: it is read
  } cases[] = {
      {"300 rows", [&](Computer& c) { c.list(rows); }, 0},
      {"301 rows", [&](Computer& c) { c.list(rows + "A-B=x"); }, 9},
      {"no list", [](Computer&) {}, 53},
      {"no folder", [](Computer& c) { c.form.Path(c.path("manca")); }, 76},
      {"folder in its place",
       [](Computer& c) {
         c.form.Path(c.path("win\\.."));
         std::filesystem::create_directory(c.folder.systemPath("PatchList.txt"));
       },
       75},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.name);
    Computer computer;
    test.prepare(computer);
    if (test.error == 0) {
      computer.form.load();
      EXPECT_EQ(computer.form.NumeroRighe, 300);
      continue;
    }
    EXPECT_THROW(computer.form.load(), controls::ProgramEnded);
    EXPECT_TRUE(computer.desktop.ended);
    ASSERT_EQ(computer.desktop.boxes.size(), 2u);
    EXPECT_THAT(computer.desktop.boxes[0].text,
                testing::StartsWith("GetKeys\r\nPatchList.txt non è compilato correttamente\r\nErrore N° " +
                                    std::to_string(test.error)));
    EXPECT_THAT(computer.read("programma\\error.log"), HasSubstr("Procedura: GetKeys\r\n"));
  }
}

TEST(Paths, ComeFromTheLastApplicationThatTheListNames) {
  Computer computer;
  computer.list(
      "norvo-prg=altro\nCAPTION-lbl=Patch della suite\nTop-LBL=Nuove "
      "stampe\nNorvo-PRG=albo\nSorbo-PRG=x\nAltro-LBL=y\nTop-ALTRO=z\n");
  computer.form.load();
  const auto& form = computer.form;
  const struct {
    std::string found, expected;
  } cases[] = {{form.DirNorvoDB, "norvo\\db\\"},     {form.DirNorvoStampe, "norvo\\Stampe\\"},
               {form.DirNorvoEXE, "norvo\\bin\\"},   {form.DirNorvoEXEDB, "norvo\\bin\\db\\"},
               {form.DirTellaroFaxExe, "tellaro\\"}, {form.DirWinSys, "win\\system\\"},
               {form.DirWindowsPatch, "win\\"}};
  for (const auto& test : cases) EXPECT_EQ(test.found, computer.path(test.expected));
  EXPECT_EQ(form.caption(), "Patch della suite");
  EXPECT_EQ(form.lblTop.caption(), "Nuove stampe");
  EXPECT_EQ(computer.desktop.boxes.size(), 0u);
}

TEST(Paths, StayEmptyOrRelativeWithoutWhatTheyComeFromAndAreCutByTheLengthOfTheName) {
  const struct {
    const char *list, *entry;
    std::string stampe, exe, exeDb;
  } cases[] = {{"Top-LBL=x", "", "", "", ""},
               {"Sorbo-PRG=albo", "", "", "", ""},
               {"Norvo-PRG=sconosciuta", "", "Stampe\\", "", ""},
               {"Norvo-PRG=altro", "altro.exe = \\a\\b\\lungo nome.exe", "Stampe\\", "\\a\\b\\lungo",
                "\\a\\b\\lungodb\\"},
               {"Norvo-PRG=altro", "altro.exe = altro.exe", "Stampe\\", "", "db\\"}};
  for (const auto& test : cases) {
    SCOPED_TRACE(test.list);
    Computer computer;
    computer.writeComputerFile(test.entry);
    computer.list(test.list);
    computer.form.load();
    EXPECT_EQ(computer.form.DirNorvoDB, "");
    EXPECT_EQ(computer.form.DirNorvoStampe, test.stampe);
    EXPECT_EQ(computer.form.DirNorvoEXE, test.exe);
    EXPECT_EQ(computer.form.DirNorvoEXEDB, test.exeDb);
  }
}

TEST(Paths, AnErrorIsToldAndLeavesTheRestAsItIs) {
  const std::string key =
      "[HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\altro.exe]\n";
  const struct {
    std::string entry;
    const char* error;
  } cases[] = {{key, "Errore N° 1001"}, {key + "@ = \"x\"\n", "Errore N° 5"}};
  for (const auto& test : cases) {
    Computer computer;
    computer.writeComputerFile(test.entry);
    computer.list("Caption-LBL=prima\nNorvo-PRG=altro\nCaption-LBL=dopo");
    computer.form.load();
    ASSERT_EQ(computer.desktop.boxes.size(), 1u);
    EXPECT_THAT(computer.desktop.boxes[0].text,
                testing::StartsWith("GetPaths\r\nErrore nel setting dei percorsi\r\n"s + test.error));
    EXPECT_EQ(computer.form.caption(), "prima");
    EXPECT_NE(computer.form.DirWinSys, "");
    EXPECT_TRUE(computer.form.loaded());
  }
}

}  // namespace
