#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <regex>

#include "office.h"

/// The sample office, whose old database needs all that a new version can bring, judged by mdbtools.
namespace {

using office::complaints;
using office::exported;
using support::CommandResult;
using support::runCommand;
using support::shellWord;
using testing::HasSubstr;

class Sample : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    folder_ = std::make_unique<support::TempFolder>();
    const auto programs = std::filesystem::path(JETSQL).parent_path().string();
    const auto made = runCommand(REPOSITORY "/samples/make " + shellWord(folder_->systemPath()) + " " +
                                 shellWord(programs));
    ASSERT_EQ(made.status, 0) << made.errors;
  }
  static void TearDownTestSuite() { folder_.reset(); }

  static std::string file(const std::string& name) { return folder_->systemPath() + "/" + name; }
  static CommandResult update(const std::string& norvo, const std::string& database) {
    return office::update(norvo, database, file("norvo"));
  }
  static CommandResult compare(const std::string& norvo, const std::string& database) {
    return office::compare(file("modelli/" + norvo + ".mdb"), database);
  }

  static std::unique_ptr<support::TempFolder> folder_;
};
std::unique_ptr<support::TempFolder> Sample::folder_;

TEST_F(Sample, OldDatabaseBecomesWhatTheVersionWantsAndThenComesToRest) {
  const std::string old = file("norvo/db/ordcommec.mdb"), database = file("ufficio.mdb");
  std::filesystem::copy_file(old, database);
  EXPECT_EQ(complaints(database), "");
  EXPECT_EQ(compare("ordcommec", database).status, 1);
  const auto first = update("ordcommec", database);
  ASSERT_EQ(first.status, 0) << first.output << first.errors;
  const auto compared = compare("ordcommec", database);
  EXPECT_EQ(compared.status, 0) << compared.output;
  EXPECT_EQ(complaints(database), "");

  const struct {
    const char *table, *row;
  } kept[] = {
      {"tb_quote",
       "2003,1,\"Quota annuale 2003\",420170,210085,217.0000,108.5000,,0,0,0\n"},  // year from text
      {"Settori_Rag", "1,\"A\",\"-\",\"10/23/75 00:00:00\",1,0\n"},  // new field with its default
      {"prot_argomenti", "10,\"Convenzioni\",\n"},                   // the office's own row
      {"prot_argomenti", "9,\"Posta certificata\",0\n"},             // the version's
      {"tb_Settori", "\"ordcommec\",\"B\",\"-\",\"Esperti contabili\","},
  };
  for (const auto& [table, row] : kept) EXPECT_THAT(exported(database, table), HasSubstr(row));
  EXPECT_THAT(exported(database, "tb_Settori"), testing::Not(HasSubstr("soppressa")));

  const auto second = update("ordcommec", database);
  EXPECT_EQ(second.status, 0);
  const std::regex change("(^|\n)(Tabella |- campo |Creo |Cancello )");
  EXPECT_TRUE(std::regex_search(first.output, change));
  EXPECT_FALSE(std::regex_search(second.output, change)) << second.output;
  EXPECT_EQ(compare("ordcommec", database).status, 0);
}

TEST_F(Sample, EveryKindOfApplicationGrowsFromItsControlTables) {
  for (const char* norvo : {"ordingegneri", "ordgiornalisti", "collperind"}) {
    SCOPED_TRACE(norvo);
    const std::string database = file(std::string("nuovo ") + norvo + ".mdb");
    const auto made = runCommand(JETSQL " --create " + shellWord(database),
                                 "CREATE TABLE KepGenerali (Nome TEXT(50), Valore TEXT(255));\n"
                                 "INSERT INTO KepGenerali VALUES ('DataWeb', '1');\n"
                                 "CREATE TABLE DataWebAnagrafica (cd_matr LONG);\n"
                                 "CREATE TABLE ragioniere (cd_matr LONG);\n"
                                 "CREATE TABLE praticante (cd_matr LONG);\n"
                                 "CREATE TABLE associati (cd_gruppo LONG);\n"
                                 "CREATE TABLE simpatizzante (cd_matr LONG);\n"
                                 "CREATE TABLE enti (cd_ente LONG);\n"
                                 "CREATE TABLE gruppi (cd_gruppo LONG);\n");
    ASSERT_EQ(made.status, 0) << made.errors;
    const auto updated = update(norvo, database);
    ASSERT_EQ(updated.status, 0) << updated.output << updated.errors;
    const auto compared = compare(norvo, database);
    EXPECT_EQ(compared.status, 0) << compared.output;
    EXPECT_EQ(complaints(database), "");
  }
}

}  // namespace
