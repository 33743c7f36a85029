#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <sstream>

#include "jet/dao/engine.h"
#include "office.h"
#include "support/case_file.h"

namespace {

using support::CommandResult;
using support::shellWord;
using testing::HasSubstr;

class Catalogo : public testing::Test {
 protected:
  void make(const std::string& file, const std::string& script) {
    const auto result = support::runCommand(JETSQL " --create " + shellWord(file), script);
    ASSERT_EQ(result.status, 0) << result.errors;
  }
  CommandResult catalogo(const std::string& arguments) {
    return support::runCommand(CATALOGO " " + arguments + " " + shellWord(reference_) + " " +
                               shellWord(model_));
  }
  void write(const std::string& arguments) {
    const auto result = catalogo(arguments);
    ASSERT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(office::complaints(reference_), "");
  }
  void change(const std::string& sql) {
    const auto result = support::runCommand(JETSQL " " + shellWord(reference_) + " " + shellWord(sql));
    ASSERT_EQ(result.status, 0) << result.errors;
  }
  void expectRows(const std::string& cases) {
    support::CaseFile(REPOSITORY "/tests/apps/cases/" + cases + ".cases")
        .expectResults([this](const support::Case& each) {
          const std::string rows = exported(each.statement);
          return rows.substr(0, rows.size() - 1);
        });
  }
  std::string exported(const std::string& table) { return office::exported(reference_, table); }
  /// Every row of these tables of the catalogue.
  std::string catalogue() {
    std::string text;
    for (const char* table : {"CampiTabella", "Indici", "CampiIndice", "Relazioni", "CampiRelazione"})
      text += exported(table);
    return text;
  }

  support::TempFolder folder_;
  std::string reference_ = folder_.systemPath("Agg Norvo.mdb");
  std::string model_ = folder_.systemPath("modello è.mdb");
};

/// What a script can't say of a model's field.
void setField(const std::string& file, const char* table, const char* field,
              const std::function<void(const jet::dao::Field&)>& set) {
  const auto database = jet::dao::DBEngine::OpenDatabase(platform::fromSystemPath(file), true);
  set(database->TableDefs(table)->Fields(field));
  database->Close();
}

TEST_F(Catalogo, EveryFieldStandsThereAsTheModelHasIt) {
  make(model_,
       "CREATE TABLE Tutto ([Set] TEXT(1) NOT NULL DEFAULT 'A', n COUNTER, b BYTE, s SHORT, c CURRENCY "
       "DEFAULT 0,"
       " si SINGLE, d DOUBLE, q DATETIME DEFAULT Date(), [legge494/96] YESNO DEFAULT True, m MEMO,"
       " bin BINARY(20), ole LONGBINARY, g GUID, t TEXT(255));\n");
  setField(model_, "Tutto", "t", [](const auto& field) { field.setAllowZeroLength(false); });
  setField(model_, "Tutto", "m", [](const auto& field) { field.setDefaultValue("\"a, \"\"b\"\"\""); });
  setField(model_, "Tutto", "b", [](const auto& field) { field.setOrdinalPosition(40); });
  write("--create");
  expectRows("fields");
}

constexpr const char* office =
    "CREATE TABLE iscritti (cd_norvo BYTE, cd_matr LONG, ds_cognome TEXT(50),\n"
    "  CONSTRAINT PrimaryKey PRIMARY KEY (cd_norvo, cd_matr));\n"
    "CREATE INDEX Nominativo ON iscritti (ds_cognome DESC, cd_matr) WITH IGNORE NULL;\n"
    "CREATE TABLE eventi (nr_evento LONG, cd_matr LONG, cd_norvo BYTE);\n"
    "CREATE UNIQUE INDEX Numero ON eventi (nr_evento);\n"
    "ALTER TABLE eventi ADD CONSTRAINT iscritti_eventi FOREIGN KEY (cd_norvo, cd_matr)\n"
    "  REFERENCES iscritti (cd_norvo, cd_matr) ON UPDATE CASCADE;\n";

TEST_F(Catalogo, IndexesAndRelationsKeepTheOrderOfTheirFields) {
  make(model_, office);
  write("--create");
  expectRows("relations");
}

TEST_F(Catalogo, AnApplicationsModelAddsOnlyWhatAllDoNotHave) {
  make(model_, office);
  write("--create");
  const std::string common = catalogue();
  std::filesystem::remove(model_);
  make(model_, std::string(office) +
                   "ALTER TABLE ISCRITTI ADD COLUMN ds_cognome_ric TEXT(50);\n"
                   "CREATE INDEX Ricerca ON iscritti (ds_cognome_ric);\n");
  write("--norvo ordarchitetti");
  std::string own, others;
  std::istringstream rows(catalogue());
  for (std::string row; std::getline(rows, row);) (row.starts_with("\"Tutti\"") ? others : own) += row + "\n";
  EXPECT_EQ(others, common);
  EXPECT_EQ(own,
            "\"ordarchitetti\",\"iscritti\",\"ds_cognome_ric\",10,50,34,0,1,,3,0\n"
            "\"ordarchitetti\",\"iscritti\",\"Ricerca\",0,0,0\n"
            "\"ordarchitetti\",\"iscritti\",\"Ricerca\",\"ds_cognome_ric\",0\n");
  EXPECT_EQ(exported("Norvi"), "\"ordarchitetti\"\n");
}

TEST_F(Catalogo, WritingAgainReplacesTheRowsAndKeepsWhatWasSetByHand) {
  make(model_, office);
  write("--create");
  change("UPDATE CampiTabella SET UpdateDefaultValue = True WHERE Campo = 'ds_cognome'");
  const std::string edited = catalogue();
  write("");
  EXPECT_EQ(catalogue(), edited);
  std::filesystem::remove(model_);
  make(model_, "CREATE TABLE iscritti (cd_matr LONG);\n");
  write("");
  EXPECT_EQ(catalogue(), "\"Tutti\",\"iscritti\",\"cd_matr\",4,4,33,0,0,,0,0\n");
}

TEST_F(Catalogo, WhatWouldNeverComeToRestIsRefusedAndNothingWritten) {
  const struct {
    const char *rows, *norvo, *script, *error;
  } cases[] = {
      {"", "ordcommec", "CREATE TABLE iscritti (ds_cognome TEXT(60));", "ds_cognome di iscritti"},
      {"", "ordcommec",
       "CREATE TABLE iscritti (cd_matr LONG, ds_cognome TEXT(50));\n"
       "CREATE INDEX Nominativo ON iscritti (cd_matr, ds_cognome DESC) WITH IGNORE NULL;",
       "L'indice Nominativo di iscritti"},
      {"UPDATE CampiTabella SET Norvo = 'ordcommec' WHERE Campo = 'ds_cognome'", "Tutti",
       "CREATE TABLE iscritti (ds_cognome TEXT(50));", "già nel catalogo per ordcommec"},
      {"INSERT INTO CampiDaEliminare VALUES ('Tutti', 'ISCRITTI', 'ds_cognome')", "ordcommec",
       "CREATE TABLE iscritti (ds_cognome TEXT(50));", "CampiDaEliminare"},
  };
  for (const auto& item : cases) {
    SCOPED_TRACE(item.error);
    std::filesystem::remove(reference_);
    std::filesystem::remove(model_);
    make(model_, office);
    write("--create");
    if (*item.rows) change(item.rows);
    std::filesystem::remove(model_);
    make(model_, std::string(item.script) + "\n");
    const std::string before = support::contentOf(reference_);
    const auto result = catalogo(std::string("--norvo ") + item.norvo);
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr(item.error));
    EXPECT_TRUE(support::contentOf(reference_) == before);
  }
}

TEST_F(Catalogo, QueriesAndChosenTablesGoAlong) {
  make(model_,
       "CREATE TABLE [tb motivi] (cd COUNTER CONSTRAINT PrimaryKey PRIMARY KEY, ds TEXT(40) NOT NULL);\n"
       "INSERT INTO [tb motivi] (cd, ds) VALUES (7, 'perché');\n"
       "INSERT INTO [tb motivi] (cd, ds) VALUES (3, 'no');\n"
       ".query [per codice] SELECT * FROM [tb motivi] ORDER BY cd\n");
  make(reference_,
       "CREATE TABLE [ADD_tb motivi] (vecchio TEXT(1));\n"
       ".query [per codice] SELECT 1\n");
  write("--add " + shellWord("tb motivi") + " --ins " + shellWord("TB MOTIVI"));
  const auto tables = support::runCommand("mdb-tables -1 " + shellWord(reference_)).output;
  EXPECT_THAT(tables, testing::Not(HasSubstr("link")));
  for (const char* copy : {"ADD_tb motivi", "INS_tb motivi"})
    EXPECT_EQ(exported(copy), "7,\"perché\"\n3,\"no\"\n");
  EXPECT_THAT(support::runCommand("mdb-queries " + shellWord(reference_) + " 'per codice'").output,
              HasSubstr("tb motivi"));
}

TEST_F(Catalogo, AFailureLeavesNoFileAndTellsWhatIsMissing) {
  make(model_, office);
  const struct {
    std::string arguments;
    int status;
  } cases[] = {{"--create --add altro", 1}, {"", 1}, {"--norvo", 64}, {"--altro", 64}};
  for (const auto& item : cases) {
    const auto result = catalogo(item.arguments);
    EXPECT_EQ(result.status, item.status) << item.arguments;
    EXPECT_THAT(result.errors, HasSubstr("aggnorvo-catalogo: "));
    EXPECT_FALSE(std::filesystem::exists(reference_)) << item.arguments;
  }
}

std::string designOf(const std::string& database) {
  return support::runCommand("mdb-schema --not-null " + shellWord(database) + " access").output;
}

TEST_F(Catalogo, TheDigitsOfADecimalReachEveryTarget) {
  reference_ = folder_.systemPath("AggNorvo.mdb");
  const std::string target = folder_.systemPath("bersaglio.mdb");
  make(model_,
       "CREATE TABLE quote (a DECIMAL(10,2), b DECIMAL(10,2), c DECIMAL(12,3) NOT NULL, n LONG);\n"
       "CREATE TABLE tassi (t DECIMAL(7,5));\nINSERT INTO tassi VALUES (0.00125);\n");
  write("--create --norvo PROTOCOLLO --add tassi");
  const std::string rows = exported("CampiTabella");
  EXPECT_THAT(rows, HasSubstr("\"quote\",\"a\",20,17,33,0,0,,0,0,10,2\n"));
  EXPECT_THAT(rows, HasSubstr("\"quote\",\"c\",20,17,33,1,0,,2,0,12,3\n"));
  EXPECT_THAT(rows, HasSubstr("\"quote\",\"n\",4,4,33,0,0,,3,0,,\n"));
  EXPECT_EQ(exported("ADD_tassi"), "0.00125\n");
  make(target,
       "CREATE TABLE KepGenerali (Nome TEXT(50), Valore TEXT(255));\nCREATE TABLE tassi (t DECIMAL(7,5));\n"
       "CREATE TABLE quote (a DOUBLE, c DECIMAL(10,2));\nINSERT INTO quote VALUES (12.75, 12.75);\n");
  for (int round = 0; round < 2; ++round) {
    const auto updated = office::update("PROTOCOLLO", target, folder_.systemPath());
    ASSERT_EQ(updated.status, 0) << updated.output << updated.errors;
    EXPECT_EQ(office::exported(target, "quote"), "12.75,12.75,,\n");
    EXPECT_EQ(office::exported(target, "tassi"), "0.00125\n");
    const auto compared = office::compare(model_, target);
    EXPECT_EQ(compared.status, 0) << compared.output;
    EXPECT_EQ(office::complaints(target), "");
    for (const char* field :
         {"[a]\t\t\tNumeric (10, 2)", "[b]\t\t\tNumeric (10, 2)", "[c]\t\t\tNumeric (10, 2) NOT NULL"})
      EXPECT_THAT(designOf(target), HasSubstr(field));
  }
}

TEST_F(Catalogo, AValueThatWouldBeRoundedStopsTheUpdate) {
  reference_ = folder_.systemPath("AggNorvo.mdb");
  const std::string target = folder_.systemPath("bersaglio.mdb");
  make(model_, "CREATE TABLE quote (a DECIMAL(10,1));\n");
  make(target,
       "CREATE TABLE KepGenerali (Nome TEXT(50), Valore TEXT(255));\nCREATE TABLE quote (a DOUBLE);\n"
       "INSERT INTO quote VALUES (12.75);\n");
  write("--create --norvo PROTOCOLLO");
  for (const char* digits : {"Precisione = 10", "Precisione = Null, Scala = Null"}) {
    change(std::string("UPDATE CampiTabella SET ") + digits);
    const auto updated = office::update("PROTOCOLLO", target, folder_.systemPath());
    EXPECT_EQ(updated.status, 1);
    EXPECT_THAT(updated.output, HasSubstr("12,75 del campo a della tabella quote andrebbe arrotondato"));
    EXPECT_EQ(office::exported(target, "quote"), "12.75\n");
  }
}

TEST_F(Catalogo, ADatabaseUpdatedFromAModelOfARealEngineIsMadeAsTheModelIs) {
  if (office::jetData().empty()) GTEST_SKIP() << "AGGNORVO_JET_DATA non impostata";
  // Of two mdbtools doesn't see the indexes, and a query to a server loses the address that isn't part of its
  // text.
  const std::set<std::string> unreadable = {"delColTestV2000", "testIndexPropertiesV2000", "queryTestV2000"};
  reference_ = folder_.systemPath("AggNorvo.mdb");
  const std::string target = folder_.systemPath("bersaglio.mdb");
  int compared = 0;
  for (const auto& entry : std::filesystem::directory_iterator(office::jetData() + "/corpus/jet4")) {
    SCOPED_TRACE(entry.path().string());
    std::filesystem::copy_file(entry.path(), model_, std::filesystem::copy_options::overwrite_existing);
    std::filesystem::remove(reference_);
    std::filesystem::remove(target);
    write("--create --norvo PROTOCOLLO");
    make(target, "CREATE TABLE KepGenerali (Nome TEXT(50), Valore TEXT(255));\n");
    const auto updated = office::update("PROTOCOLLO", target, folder_.systemPath());
    ASSERT_EQ(updated.status, 0) << updated.output << updated.errors;
    if (unreadable.contains(entry.path().stem().string())) continue;
    const auto result = office::compare(model_, target);
    EXPECT_EQ(result.status, 0) << result.output << result.errors;
    ++compared;
  }
  EXPECT_GE(compared, 10);
}

}  // namespace
