#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

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
  std::string mdbExport(const std::string& table) {
    return support::runCommand("mdb-export -T '%Y-%m-%d %H:%M:%S' " + shellWord(file_) + " " +
                               shellWord(table))
        .output;
  }
  std::string content() const { return support::contentOf(file_); }

  support::TempFolder folder_;
  std::string file_ = folder_.systemPath("prova è.mdb");
};

TEST_F(Jetsql, ScriptFromStandardInputIsReadBackByAnIndependentReader) {
  make(
      "-- un commento; con punto e virgola;\n"
      "CREATE TABLE [Quote annue] (Id LONG CONSTRAINT PrimaryKey PRIMARY KEY,\n"
      "  Nome TEXT(40), Importo CURRENCY, Pagata YESNO, Quando DATETIME, [Note] MEMO);\n"
      "\n"
      "INSERT INTO [Quote annue] VALUES (1, 'D''Agostino Niccolò', 154.94, TRUE, #11/16/2006 17:16:00#, 'a;\n"
      "b');\n"
      "INSERT INTO [Quote annue] VALUES (2, NULL, NULL, FALSE, NULL, NULL);\n");
  EXPECT_EQ(mdbExport("Quote annue"),
            "Id,Nome,Importo,Pagata,Quando,Note\n"
            "1,\"D'Agostino Niccolò\",154.9400,1,\"2006-11-16 17:16:00\",\"a;\nb\"\n"
            "2,,,0,,\n");
}

TEST_F(Jetsql, RowsArePrintedInTheMachinesForm) {
  make(
      "CREATE TABLE T (Id LONG, Testo MEMO, Importo CURRENCY, Vero YESNO, Quando DATETIME, Numero DOUBLE);\n"
      "INSERT INTO T VALUES (1, 'a\tb\\', 1.5, TRUE, #2/1/2006#, 0.1);\n"
      "INSERT INTO T VALUES (2, NULL, NULL, FALSE, NULL, NULL);\n");
  EXPECT_EQ(statement("SELECT * FROM T ORDER BY Id").output,
            "Id\tTesto\tImporto\tVero\tQuando\tNumero\n"
            "1\ta\\tb\\\\\t1.5\t-1\t2006-02-01 00:00:00\t0.1\n"
            "2\t\t\t0\t\t\n");
  EXPECT_EQ(statement("SELECT * FROM T ORDER BY Id", "--json").output,
            "{\"Id\":1,\"Testo\":\"a\\tb\\\\\",\"Importo\":1.5,\"Vero\":true,"
            "\"Quando\":\"2006-02-01 00:00:00\",\"Numero\":0.1}\n"
            "{\"Id\":2,\"Testo\":null,\"Importo\":null,\"Vero\":false,\"Quando\":null,\"Numero\":null}\n");
}

TEST_F(Jetsql, MoneyTooLongForADoubleKeepsItsDigitsInJson) {
  make("CREATE TABLE T (Importo CURRENCY);\nINSERT INTO T VALUES ('99999999999999,25');\n");
  EXPECT_EQ(statement("SELECT * FROM T", "--json").output, "{\"Importo\":\"99999999999999.25\"}\n");
}

TEST_F(Jetsql, ParametersAreAnsweredByLiterals) {
  make(
      "CREATE TABLE T (Nome TEXT(20), Quando DATETIME);\n"
      "INSERT INTO T VALUES ('L''Aquila', #3/4/2006#);\n"
      "INSERT INTO T VALUES ('Forlì', #3/5/2006#);\n");
  support::CaseFile(REPOSITORY "/tests/apps/cases/parameters.cases")
      .expectResults([this](const support::Case& each) {
        const std::string rows =
            statement(each.statement, "--param " + shellWord(each.one("--param"))).output;
        return rows.substr(0, rows.rfind('\n'));
      });
  EXPECT_THAT(statement("SELECT Nome FROM T WHERE Nome = parNome").errors, HasSubstr("errore 3061"));
  for (const char* wrong : {"parNome", "=1", "parNome=1 FROM T", "parNome=", "altro=1"}) {
    const auto result = statement("SELECT Nome FROM T WHERE Nome = parNome", "--param " + shellWord(wrong));
    EXPECT_EQ(result.status, 1) << wrong;
  }
}

TEST_F(Jetsql, ASyntaxErrorIsShownWithItsPlace) {
  make("CREATE TABLE T (Città TEXT(20));\n");
  const auto result = run(shellWord(file_), "DELETE FROM T;\nSELECT Città\nFROM T WHERE Città = = 'è';\n");
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.errors, HasSubstr("jetsql: riga 2: errore 30"));
  EXPECT_THAT(result.errors, EndsWith("  FROM T WHERE Città = = 'è';\n"
                                      "                       ^\n"));
}

TEST_F(Jetsql, NothingIsSavedAfterAnError) {
  make("CREATE TABLE T (Id LONG CONSTRAINT PrimaryKey PRIMARY KEY);\nINSERT INTO T VALUES (1);\n");
  const std::string before = content();
  const struct {
    const char *arguments, *script;
  } cases[] = {
      {"", "INSERT INTO T VALUES (2);\nINSERT INTO T VALUES (1);\nINSERT INTO T VALUES (3);\n"},
      {"", "CREATE TABLE U (Id LONG);\nINSERT INTO Nessuna VALUES (1);\n"},
      {"", "INSERT INTO T VALUES (2);\nINSERT INTO T VALUES (\n"},
      {"", "INSERT INTO T VALUES (2);\n.nessuno\n"},
      {"", "INSERT INTO T VALUES (2);\nINSERT INTO T VALUES (3); -- \xE8\n"},
      {"'INSERT INTO T VALUES (2)' 'DELETE FROM Nessuna'", ""},
      {"--param x=1 'INSERT INTO T VALUES (2)'", ""},
  };
  for (const auto& test : cases) {
    const auto result = run(shellWord(file_) + " " + test.arguments, test.script);
    EXPECT_EQ(result.status, 1) << test.script;
    EXPECT_NE(result.errors, "") << test.script;
    EXPECT_EQ(content(), before) << test.script;
  }
  EXPECT_EQ(statement("SELECT * FROM T").output, "Id\n1\n");
}

TEST_F(Jetsql, RowsThatCannotBeWrittenAreAnError) {
  make("CREATE TABLE T (Id LONG);\nINSERT INTO T VALUES (1);\n");
  const std::string before = content();
  const auto result = run(shellWord(file_) + " 'INSERT INTO T VALUES (2)' 'SELECT * FROM T' >/dev/full");
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.errors, HasSubstr("errore 57"));
  EXPECT_EQ(content(), before);
}

TEST_F(Jetsql, AFailedCreationLeavesNoFileAndAnExistingFileIsKept) {
  EXPECT_EQ(run("--create " + shellWord(file_), "CREATE TABLE T (Id NIENTE);\n").status, 1);
  EXPECT_FALSE(std::filesystem::exists(file_));

  make("CREATE TABLE T (Id LONG);\n");
  const std::string before = content();
  const auto result = run("--create " + shellWord(file_), "CREATE TABLE U (Id LONG);\n");
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.errors, HasSubstr("errore 3204"));
  EXPECT_EQ(content(), before);
}

TEST_F(Jetsql, ReadOnlyNeverWrites) {
  make("CREATE TABLE T (Id LONG);\nINSERT INTO T VALUES (1);\n");
  const std::string before = content();
  const auto written = std::filesystem::last_write_time(file_);
  EXPECT_EQ(statement("SELECT Id FROM T", "--readonly").output, "Id\n1\n");
  EXPECT_EQ(statement("DELETE FROM T", "--readonly").status, 1);
  EXPECT_EQ(content(), before);
  EXPECT_EQ(std::filesystem::last_write_time(file_), written);
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

TEST_F(Jetsql, StoredQueriesAreShownAndRewritten) {
  make(
      "CREATE TABLE T (Id LONG, Nome TEXT(20));\n"
      "INSERT INTO T VALUES (1, 'Rossi');\n"
      ".query [I primi] SELECT Nome FROM T WHERE Id < [fino a]\n"
      ".query Svuota DELETE FROM T\n");
  EXPECT_EQ(statement(".queries").output, "Name\tType\nI primi\tSELECT\nSvuota\tDELETE\n");
  EXPECT_EQ(statement(".query [i primi]").output, "SELECT Nome\nFROM T\nWHERE Id < [fino a];\n");
  EXPECT_EQ(statement("SELECT * FROM [I primi]", "--param 'fino a=5'").output, "Nome\nRossi\n");
  EXPECT_EQ(statement(".query Svuota DELETE FROM T WHERE Id = 9").status, 0);
  EXPECT_EQ(statement(".query Svuota").output, "DELETE *\nFROM T\nWHERE Id = 9;\n");
  EXPECT_THAT(statement(".query Nessuna").errors, HasSubstr("errore 3265"));
  EXPECT_EQ(statement(".query T SELECT 1").status, 1);
}

}  // namespace
