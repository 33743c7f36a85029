#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "support/case_file.h"
#include "support/command.h"
#include "support/temp_folder.h"

namespace {

using support::CommandResult;
using support::shellWord;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

class Jetsql : public testing::Test {
 protected:
  CommandResult run(const std::string& arguments, const std::string& script = {}) {
    return support::runCommand(JETSQL " " + arguments, script);
  }
  CommandResult statement(const std::string& sql, const std::string& options = "") {
    return run(options + " " + shellWord(file_) + " " + shellWord(sql));
  }
  /// A database with these statements run in it.
  void make(const std::string& script) {
    const auto result = run("--create " + shellWord(file_), script);
    ASSERT_EQ(result.status, 0) << result.errors;
  }
  /// What one line of a case gives; the first word of its name is told in the file.
  std::string step(const std::string& name, const std::string& text) {
    const bool there = std::filesystem::exists(file_);
    const std::string before = there ? content() : "", verb = name.substr(0, name.find(' '));
    const std::string words = shellWord(file_) + name.substr(verb.size());
    CommandResult result;
    if (verb == "make")
      result = run((there ? "" : "--create ") + shellWord(file_), text + ";\n");
    else if (verb == "script")
      result = run(words, text);
    else if (verb == "export")
      result = support::runCommand("mdb-export -T '%Y-%m-%d %H:%M:%S' " + shellWord(file_) + " " +
                                   shellWord(text));
    else
      result = run(words + " " + shellWord(text));
    const bool mayWrite = result.status == 0 && name.find("--readonly") == name.npos;
    if (!mayWrite && std::filesystem::exists(file_) != there) return "a file was left";
    if (!mayWrite && there && content() != before) return "the file was changed";
    return result.output + (result.status ? std::to_string(result.status) + ": " + result.errors : "");
  }
  std::string content() const { return support::contentOf(file_); }

  support::TempFolder folder_;
  std::string file_ = folder_.systemPath("prova è.mdb");
};

TEST_F(Jetsql, DoesWhatItsCasesSay) {
  support::CaseFile(REPOSITORY "/tests/apps/cases/jetsql.cases")
      .expectResults([this](const support::Case& each) {
        std::filesystem::remove(file_);
        std::string result, line, shown;
        for (const auto& [name, text] : each.answers) result += step(name, support::fieldsOf(text)[0]);
        for (std::istringstream lines(result); std::getline(lines, line);)
          shown += (shown.empty() ? "" : "\n") + support::inBraces(line);
        const auto folder = shown.find(folder_.path());
        return folder == shown.npos ? shown : shown.replace(folder, folder_.path().size(), "CARTELLA");
      });
}

TEST_F(Jetsql, RowsThatCannotBeWrittenAreAnError) {
  make("CREATE TABLE T (Id LONG);\nINSERT INTO T VALUES (1);\n");
  const std::string before = content();
  const auto result = run(shellWord(file_) + " 'INSERT INTO T VALUES (2)' 'SELECT * FROM T' >/dev/full");
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.errors, HasSubstr("errore 57"));
  EXPECT_EQ(content(), before);
}

TEST_F(Jetsql, ADesignThatIsPrintedCanBeRunAgain) {
  make(
      "CREATE TABLE T (Id COUNTER CONSTRAINT PrimaryKey PRIMARY KEY, [Il nome] TEXT(30), Prezzo CURRENCY,\n"
      "  Foto LONGBINARY, Quando DATETIME, Breve SHORT, Piccolo BYTE, Note MEMO);\n"
      "CREATE UNIQUE INDEX Nome ON T ([Il nome] DESC, Quando);\n"
      "CREATE INDEX Quando ON T (Quando) WITH IGNORE NULL;\n"
      "CREATE TABLE [Le voci] (A LONG, B TEXT(4) NOT NULL DEFAULT 'x y', C DECIMAL(10, 3), D DATETIME "
      "DEFAULT Now(),\n"
      "  Importo CURRENCY DEFAULT 1 + 2, CONSTRAINT Chiave PRIMARY KEY (A, B),\n"
      "  CONSTRAINT Padre FOREIGN KEY (A) REFERENCES T (Id) ON UPDATE CASCADE ON DELETE CASCADE);\n"
      "CREATE TABLE Altra (X LONG, Y TEXT(4), CONSTRAINT Voci FOREIGN KEY (X, Y) REFERENCES [Le voci] (A, "
      "B));\n");
  EXPECT_THAT(
      statement(".schema [Le voci]").output,
      AllOf(HasSubstr("  [B] TEXT(4) NOT NULL DEFAULT"), HasSubstr("  [C] DECIMAL(10, 3),"),
            HasSubstr("ALTER TABLE [Le voci] ADD CONSTRAINT [Padre] FOREIGN KEY ([A]) REFERENCES [T] ([Id]) "
                      "ON UPDATE CASCADE ON DELETE CASCADE;\n"),
            Not(HasSubstr("[Voci]"))));
  const auto design = statement(".schema");
  ASSERT_EQ(design.status, 0) << design.errors;
  EXPECT_THAT(design.output, HasSubstr("CREATE UNIQUE INDEX [Nome] ON [T] ([Il nome] DESC, [Quando]);"));
  const auto tables = statement(".tables");
  EXPECT_THAT(tables.output, HasSubstr("T\t0\n"));
  EXPECT_THAT(tables.output, HasSubstr("MSysObjects\t-1\n"));

  file_ = folder_.systemPath("copia.mdb");
  make(design.output);
  EXPECT_EQ(statement(".schema").output, design.output);
  EXPECT_EQ(statement("INSERT INTO [Le voci] (A) VALUES (7)").status, 1);  // 3201: no row of T has it
}

TEST_F(Jetsql, ALongStatementIsShownNearItsErrorOnly) {
  make("CREATE TABLE T (Id LONG);\n");
  const std::string text(60000, 'x');
  for (const std::string& sql : {"SELECT '" + text + "' FROM T WHERE Id = = 1 AND '" + text + "' = ''",
                                 "SELECT '" + text, "SELECT " + text + text + ".a, FROM T"}) {
    const auto result = statement(sql);
    EXPECT_EQ(result.status, 1);
    EXPECT_LT(result.errors.size(), 500u) << result.errors;
    EXPECT_THAT(result.errors, HasSubstr("^\n"));
  }
  EXPECT_THAT(statement("SELECT '" + text + "' FROM T WHERE Id = = 1").errors, HasSubstr("WHERE Id = = 1\n"));
}

}  // namespace
