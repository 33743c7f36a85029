#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "office.h"

/// The tool that holds an updated database against its model.
namespace {

using support::shellWord;
using testing::HasSubstr;

void make(const std::string& file, const std::string& script) {
  const auto result = support::runCommand(JETSQL " --create " + shellWord(file), script);
  ASSERT_EQ(result.status, 0) << result.errors;
}

const std::string Tables =
    "CREATE TABLE A (a LONG, b TEXT(9) DEFAULT 'x', c DECIMAL(9,2) NOT NULL);\n"
    "CREATE INDEX i ON A (a, b DESC, c);\n";

TEST(CompareSchema, TellsWhatAnUpdateWouldHaveMadeEqual) {
  const struct {
    std::string database, told;  // nothing: it is as the model is
  } cases[] = {
      {Tables, ""},
      {"CREATE TABLE a (z LONG, c DECIMAL(18,0) NOT NULL, B TEXT(20) DEFAULT 'X', A LONG DEFAULT 1);\n"
       "CREATE INDEX I ON a (a, b, z);\nCREATE INDEX j ON a (z);\nCREATE TABLE z (z LONG);\n",
       ""},
      {"CREATE TABLE A (a LONG, b TEXT(8) DEFAULT 'x', c DECIMAL(9,2) NOT NULL);\nCREATE INDEX i ON A (a, b "
       "DESC, c);\n",
       "modello:  [b]\t\t\tText (9)"},
      {"CREATE TABLE A (a LONG, b TEXT(9), c DECIMAL(9,2) NOT NULL);\nCREATE INDEX i ON A (a, b DESC, c);\n",
       "modello:  [b]\t\t\tText (9)"},
      {"CREATE TABLE A (a LONG, b TEXT(9) DEFAULT 'x', c DECIMAL(9,2));\nCREATE INDEX i ON A (a, b DESC, "
       "c);\n",
       "modello:  [c]"},
      {"CREATE TABLE A (a SHORT, b TEXT(9) DEFAULT 'x', c DECIMAL(9,2) NOT NULL);\nCREATE INDEX i ON A (a, b "
       "DESC, c);\n",
       "modello:  [a]"},
      {"CREATE TABLE A (a LONG, b TEXT(9) DEFAULT 'x');\nCREATE INDEX i ON A (a, b DESC);\n",
       "modello:  [c]"},
      {"CREATE TABLE A (a LONG, b TEXT(9) DEFAULT 'x', c DECIMAL(9,2) NOT NULL);\nCREATE INDEX i ON A (b, a, "
       "c);\n",
       "Indici della tabella a"},
      {"CREATE TABLE A (a LONG, b TEXT(9) DEFAULT 'x', c DECIMAL(9,2) NOT NULL);\nCREATE UNIQUE INDEX i ON A "
       "(a, b DESC, c);\n",
       "Indici della tabella a"},
  };
  const support::TempFolder folder;
  const std::string model = folder.systemPath("modello.mdb"), database = folder.systemPath("database.mdb");
  make(model, Tables);
  for (const auto& item : cases) {
    SCOPED_TRACE(item.database);
    std::filesystem::remove(database);
    make(database, item.database);
    const auto result = office::compare(model, database);
    EXPECT_EQ(result.status, item.told.empty() ? 0 : 1) << result.output << result.errors;
    EXPECT_THAT(result.output, HasSubstr(item.told));
  }
}

}  // namespace
