#include "support/terminal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "support/command.h"
#include "support/temp_folder.h"

namespace {

using support::shellWord;
using testing::HasSubstr;
using testing::Not;

constexpr char Prompt[] = "jetsql> ", NextPrompt[] = "   ...> ";
constexpr char Up[] = "\x1B[A", Left[] = "\x1B[D", CtrlC[] = "\x03", CtrlD[] = "\x04", Backspace[] = "\x7F";

class JetsqlAtTerminal : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(support::runCommand(JETSQL " --create " + shellWord(file_),
                                  "CREATE TABLE T (Id LONG CONSTRAINT pk PRIMARY KEY, Nome TEXT(30));\n"
                                  "INSERT INTO T VALUES (1, 'Rossi');\n")
                  .status,
              0);
  }
  std::string command(const std::string& options = "") {
    return "env TERM=vt100 LC_ALL=C XDG_STATE_HOME=" + shellWord(folder_.systemPath("stato")) +
           " " JETSQL " " + options + " " + shellWord(file_);
  }
  std::string saved() {
    return support::runCommand(JETSQL " --readonly " + shellWord(file_) + " 'SELECT * FROM T ORDER BY Id'")
        .output;
  }

  support::TempFolder folder_;
  std::string file_ = folder_.systemPath("prova.mdb");
};

TEST_F(JetsqlAtTerminal, EachStatementIsSavedAndAnErrorEndsNothing) {
  support::Terminal terminal(command());
  terminal.prompt(Prompt);
  terminal.type("INSERT INTO T VALUES (2, 'Niccolò');\r");
  terminal.prompt(Prompt);
  terminal.type("INSERT INTO T VALUES (3, 'Verdi'), oggi;\r");
  const auto error = terminal.prompt(Prompt);
  EXPECT_THAT(error, HasSubstr("jetsql: errore 3"));
  EXPECT_THAT(error, HasSubstr("VALUES (3, 'Verdi'), oggi;\r\n                                   ^\r\n"));
  // Another statement that fails halfway changes nothing.
  terminal.type("INSERT INTO T (Id, Nome) SELECT 4 - Id, Nome FROM T;\r");
  EXPECT_THAT(terminal.prompt(Prompt), HasSubstr("errore 3022"));
  terminal.type(".nessuno\r");
  EXPECT_THAT(terminal.prompt(Prompt), HasSubstr("Comando sconosciuto: .nessuno"));
  terminal.type("SELECT Nome\r");
  EXPECT_THAT(terminal.prompt(NextPrompt), Not(HasSubstr(Prompt)));
  terminal.type("FROM T WHERE Id = 2;\r");
  EXPECT_THAT(terminal.prompt(Prompt), HasSubstr("Nome\r\nNiccolò\r\n"));
  terminal.type(".help\r");
  EXPECT_THAT(terminal.prompt(Prompt), HasSubstr(".relations"));
  terminal.type(".quit\r");
  EXPECT_EQ(terminal.end(), 0);
  EXPECT_EQ(saved(), "Id\tNome\n1\tRossi\n2\tNiccolò\n");
}

TEST_F(JetsqlAtTerminal, AKilledSessionKeepsWhatWasDone) {
  {
    support::Terminal terminal(command());
    terminal.prompt(Prompt);
    terminal.type("INSERT INTO T VALUES (2, 'Bianchi');\r");
    terminal.prompt(Prompt);
    terminal.type("INSERT INTO T VALUES (3, 'Verdi')");
    terminal.until("'Verdi')");
  }
  EXPECT_EQ(saved(), "Id\tNome\n1\tRossi\n2\tBianchi\n");
}

TEST_F(JetsqlAtTerminal, KeysEditTheLine) {
  support::Terminal terminal(command());
  terminal.prompt(Prompt);
  const std::string start = "\x01";  // Ctrl-A
  terminal.type("'è' & 'bx' AS x;" + start + "SELECT 1 AS y, ");
  for (int i = 0; i < 3; ++i) terminal.type("\x1B[C");  // to the right, behind 'è'
  terminal.type(Backspace + std::string(Backspace) + "\xC3\xB9'\r");
  EXPECT_THAT(terminal.prompt(Prompt), HasSubstr("y\tx\r\n1\tùbx\r\n"));
  terminal.type("SELECT 12 AS n;" + std::string(Left) + Left + Left + Left + Left + Left + Backspace + "\r");
  EXPECT_THAT(terminal.prompt(Prompt), HasSubstr("n\r\n1\r\n"));
}

TEST_F(JetsqlAtTerminal, StatementsAreRememberedAcrossSessions) {
  {
    support::Terminal terminal(command());
    terminal.prompt(Prompt);
    terminal.type("SELECT 'prima' &\r");
    terminal.prompt(NextPrompt);
    terminal.type("' volta' AS x;\r");
    terminal.prompt(Prompt);
    terminal.type(std::string(Up) + "\r");
    EXPECT_THAT(terminal.prompt(Prompt), HasSubstr("x\r\nprima volta\r\n"));
    terminal.type(CtrlD);
    EXPECT_EQ(terminal.end(), 0);
  }
  const std::string history = folder_.systemPath("stato") + "/aggnorvo/jetsql_history";
  EXPECT_EQ(std::filesystem::status(history).permissions() & std::filesystem::perms::others_all,
            std::filesystem::perms::none);
  support::Terminal terminal(command());
  terminal.prompt(Prompt);
  terminal.type(std::string(Up) + "\r");
  EXPECT_THAT(terminal.prompt(Prompt), HasSubstr("x\r\nprima volta\r\n"));
  for (int i = 0; i < 1200; ++i) {
    terminal.type("SELECT " + std::to_string(i) + ";\r");
    terminal.prompt(Prompt);
  }
  terminal.type(".quit\r");
  EXPECT_EQ(terminal.end(), 0);
  std::ifstream file(history);
  const auto lines = std::count(std::istreambuf_iterator<char>(file), {}, '\n');
  EXPECT_GE(lines, 900);
  EXPECT_LE(lines, 1001);
}

TEST_F(JetsqlAtTerminal, AStatementCanBeGivenUp) {
  support::Terminal terminal(command());
  terminal.prompt(Prompt);
  terminal.type("DELETE FROM T\r");
  terminal.prompt(NextPrompt);
  terminal.type(std::string("WHERE Id = 1") + CtrlC);
  terminal.prompt(Prompt);
  terminal.type("SELECT Nome FROM T;\r");
  EXPECT_THAT(terminal.prompt(Prompt), HasSubstr("Nome\r\nRossi\r\n"));
  terminal.type(CtrlD);
  EXPECT_EQ(terminal.end(), 0);
}

TEST_F(JetsqlAtTerminal, WithoutAHistoryFileItWorksAllTheSame) {
  std::ofstream(folder_.systemPath("stato")) << "nessuna cartella";
  support::Terminal terminal(command("--readonly --json"));
  terminal.prompt(Prompt);
  terminal.type("SELECT Nome FROM T;\r");
  EXPECT_THAT(terminal.prompt(Prompt), HasSubstr("{\"Nome\":\"Rossi\"}"));
  terminal.type("DELETE FROM T;\r");
  EXPECT_THAT(terminal.prompt(Prompt), HasSubstr("errore 3027"));
  terminal.type(".quit\r");
  EXPECT_EQ(terminal.end(), 0);
}

}  // namespace
