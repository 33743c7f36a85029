#include <gtest/gtest.h>

#include "jet/sql/syntax_error.h"
#include "small_image.h"
#include "support/case_file.h"

namespace jet::sql::test {
namespace {

TEST(Errors, HaveTheEnginesNumberAndTheirPlace) {
  SmallImage image;
  support::CaseFile(CASES "/errors.cases").expectResults([&](const support::Case& each) {
    return image.run(each.statement);
  });
  EXPECT_EQ(image.run(""), "error 3129 at 0");
  EXPECT_EQ(image.run("SELECT id FROM soci WHERE id = "), "error 3075 at 31");
  EXPECT_EQ(image.run("SELECT 'è' AS [\xE0\xE0] FROM soci"), "error 3075 at 15");
  EXPECT_EQ(image.run("SELECT id AS a\xC1\x81 FROM soci"), "error 3075 at 14");
  EXPECT_EQ(image.run("SELECT '\xED\xA0\x80' AS solo FROM soci WHERE id = 1"), "\xED\xA0\x80");
}

TEST(Errors, AnswerAnyDepthOfNesting) {
  SmallImage image;
  const auto repeat = [](const std::string& piece, int count) {
    std::string text;
    while (count-- > 0) text += piece;
    return text;
  };
  const auto number = [&](const std::string& statement) { return image.run(statement).substr(0, 10); };
  for (const char* opening : {"(", "NOT ", "-", "Abs(", "1 IN (SELECT ", "(SELECT ", "IIf(1,1,", "1 + ("}) {
    EXPECT_EQ(number("SELECT " + repeat(opening, 50000)), "error 3360") << opening;
  }
  EXPECT_EQ(number("SELECT id FROM " + repeat("(", 50000)), "error 3360");
  EXPECT_EQ(number("SELECT 1" + repeat(" + 1", 50000)), "error 3360");
  EXPECT_EQ(number("SELECT id FROM soci" + repeat(" INNER JOIN soci ON True", 5000)), "error 3360");
  EXPECT_EQ(number("SELECT " + repeat("Abs(", 90) + "1" + repeat(")", 90)), "error 3360");
  std::string doubling = "SELECT id + id AS a0";
  for (int i = 1; i < 40; ++i) {
    const std::string before = "a" + std::to_string(i - 1);
    doubling += ", " + before + " + " + before + " AS a" + std::to_string(i);
  }
  EXPECT_EQ(number(doubling + " FROM soci"), "error 3360");
  EXPECT_EQ(image.run("SELECT id FROM soci WHERE id = 0" + repeat(" OR id = 2", 300)), "2");
}

TEST(Errors, NameWhatTheyStumbledOver) {
  const SmallImage image;
  try {
    image.compileRows("SELECT id FROM soci WHERE id == 1");
    FAIL();
  } catch (const SyntaxError& error) {
    EXPECT_NE(error.description().find("'='"), std::string::npos) << error.description();
  }
}

/// Any beginning of a statement, and any of it with one character gone, is compiled or is a numbered error.
TEST(Errors, MeetNoBrokenStatementUnprepared) {
  const std::string whole =
      "PARAMETERS p Text(5); SELECT TOP 2 s.*, IIf(s.nome LIKE 'a*', -1, Count(*)) AS x FROM (soci AS s "
      "LEFT JOIN pagamenti ON s.id = pagamenti.socio) WHERE [Set] NOT IN ('A', \"B\") AND data BETWEEN "
      "#1/1/2000# AND p GROUP BY s.nome HAVING Sum(importo) > 1.5E2 ORDER BY 1 DESC;";
  const SmallImage image;
  int errors = 0;
  const auto tryOut = [&](const std::string& text) {
    try {
      compile(text, image);
    } catch (const runtime::Error& error) {
      EXPECT_GT(error.number(), 0);
      ++errors;
    }
  };
  for (std::size_t i = 0; i < whole.size(); ++i) {
    tryOut(whole.substr(0, i));
    tryOut(whole.substr(i));
    tryOut(whole.substr(0, i) + whole.substr(i + 1));
  }
  EXPECT_GT(errors, 500);
}

}  // namespace
}  // namespace jet::sql::test
