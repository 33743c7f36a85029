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

/// A conversation, from its first prompt.
struct Conversation : support::Terminal {
  explicit Conversation(const std::string& command) : Terminal(command) { prompt(Prompt); }
  /// Types a line and gives the answer.
  std::string ask(const std::string& keys, const char* next = Prompt) {
    type(keys + "\r");
    return prompt(next);
  }
  int quit() {
    type(".quit\r");
    return end();
  }
};

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
  Conversation terminal(command());
  terminal.ask("INSERT INTO T VALUES (2, 'Niccolò');");
  terminal.type("INSERT INTO T VALUES (3, 'Verdi'), oggi;\r");
  const auto error = terminal.prompt(Prompt);
  EXPECT_THAT(error, HasSubstr("jetsql: errore 3"));
  EXPECT_THAT(error, HasSubstr("VALUES (3, 'Verdi'), oggi;\r\n                                   ^\r\n"));
  // Another statement that fails halfway changes nothing.
  EXPECT_THAT(terminal.ask("INSERT INTO T (Id, Nome) SELECT 4 - Id, Nome FROM T;"), HasSubstr("errore 3022"));
  EXPECT_THAT(terminal.ask(".nessuno"), HasSubstr("Comando sconosciuto: .nessuno"));
  EXPECT_THAT(terminal.ask("SELECT Nome", NextPrompt), Not(HasSubstr(Prompt)));
  EXPECT_THAT(terminal.ask("FROM T WHERE Id = 2;"), HasSubstr("Nome\r\nNiccolò\r\n"));
  EXPECT_THAT(terminal.ask(".help"), HasSubstr(".relations"));
  EXPECT_EQ(terminal.quit(), 0);
  EXPECT_EQ(saved(), "Id\tNome\n1\tRossi\n2\tNiccolò\n");
}

TEST_F(JetsqlAtTerminal, AKilledSessionKeepsWhatWasDone) {
  {
    Conversation terminal(command());
    terminal.ask("INSERT INTO T VALUES (2, 'Bianchi');");
    terminal.type("INSERT INTO T VALUES (3, 'Verdi')");
    terminal.until("'Verdi')");
  }
  EXPECT_EQ(saved(), "Id\tNome\n1\tRossi\n2\tBianchi\n");
}

TEST_F(JetsqlAtTerminal, KeysEditTheLine) {
  Conversation terminal(command());
  const std::string start = "\x01";  // Ctrl-A
  terminal.type("'è' & 'bx' AS x;" + start + "SELECT 1 AS y, ");
  for (int i = 0; i < 3; ++i) terminal.type("\x1B[C");  // to the right, behind 'è'
  terminal.type(Backspace + std::string(Backspace) + "\xC3\xB9'\r");
  EXPECT_THAT(terminal.prompt(Prompt), HasSubstr("y\tx\r\n1\tùbx\r\n"));
  EXPECT_THAT(
      terminal.ask("SELECT 12 AS n;" + std::string(Left) + Left + Left + Left + Left + Left + Backspace),
      HasSubstr("n\r\n1\r\n"));
}

TEST_F(JetsqlAtTerminal, StatementsAreRememberedAcrossSessions) {
  {
    Conversation terminal(command());
    terminal.ask("SELECT 'prima' &", NextPrompt);
    terminal.ask("' volta' AS x;");
    EXPECT_THAT(terminal.ask(Up), HasSubstr("x\r\nprima volta\r\n"));
    terminal.type(CtrlD);
    EXPECT_EQ(terminal.end(), 0);
  }
  const std::string history = folder_.systemPath("stato") + "/aggnorvo/jetsql_history";
  EXPECT_EQ(std::filesystem::status(history).permissions() & std::filesystem::perms::others_all,
            std::filesystem::perms::none);
  Conversation terminal(command());
  EXPECT_THAT(terminal.ask(Up), HasSubstr("x\r\nprima volta\r\n"));
  for (int i = 0; i < 1200; ++i) {
    terminal.ask("SELECT " + std::to_string(i) + ";");
  }
  EXPECT_EQ(terminal.quit(), 0);
  std::ifstream file(history);
  const auto lines = std::count(std::istreambuf_iterator<char>(file), {}, '\n');
  EXPECT_GE(lines, 900);
  EXPECT_LE(lines, 1001);
}

TEST_F(JetsqlAtTerminal, AStatementCanBeGivenUp) {
  Conversation terminal(command());
  terminal.ask("DELETE FROM T", NextPrompt);
  terminal.type(std::string("WHERE Id = 1") + CtrlC);
  terminal.prompt(Prompt);
  EXPECT_THAT(terminal.ask("SELECT Nome FROM T;"), HasSubstr("Nome\r\nRossi\r\n"));
  terminal.type(CtrlD);
  EXPECT_EQ(terminal.end(), 0);
}

TEST_F(JetsqlAtTerminal, WithoutAHistoryFileItWorksAllTheSame) {
  std::ofstream(folder_.systemPath("stato")) << "nessuna cartella";
  Conversation terminal(command("--readonly --json"));
  EXPECT_THAT(terminal.ask("SELECT Nome FROM T;"), HasSubstr("{\"Nome\":\"Rossi\"}"));
  EXPECT_THAT(terminal.ask("DELETE FROM T;"), HasSubstr("errore 3027"));
  EXPECT_EQ(terminal.quit(), 0);
}

}  // namespace
