#include <gtest/gtest.h>

#include "jet/sql/syntax_error.h"
#include "small_image.h"

namespace jet::sql::test {
namespace {

struct Case {
  const char* statement;
  const char* error;
};

TEST(Errors, HaveTheEnginesNumberAndTheirPlace) {
  const Case cases[] = {
      {"", "error 3129 at 0"},
      {"SELEKT * FROM soci", "error 3129 at 0"},
      {"SELECT", "error 3141 at 6"},
      {"SELECT FROM soci", "error 3141 at 7"},
      {"SELECT id, FROM soci", "error 3141 at 11"},
      {"SELECT * FORM soci", "error 3141 at 9"},
      {"SELECT id nome FROM soci", "error 3075 at 10"},
      {"SELECT id FROM", "error 3131 at 14"},
      {"SELECT id FROM soci WHERE", "error 3075 at 25"},
      {"SELECT id FROM soci WHERE id = ", "error 3075 at 31"},
      {"SELECT id FROM soci WHERE (id = 1", "error 3075 at 33"},
      {"SELECT id FROM soci WHERE nome = 'è' 'x'", "error 3075 at 37"},
      {"SELECT id FROM soci WHERE nome = 'aperto", "error 3075 at 33"},
      {"SELECT id FROM soci WHERE data = #31/31/2000#", "error 3075 at 33"},
      {"SELECT id FROM soci WHERE data = #209/21/2053#", "error 3075 at 33"},
      {"SELECT id FROM soci WHERE data = #1/258/2000#", "error 3075 at 33"},
      {"SELECT id FROM [soci", "error 3075 at 15"},
      {"SELECT id FROM soci WHERE id = 1 ? 2", "error 3075 at 33"},
      {"SELECT id FROM soci INNER pagamenti ON 1 = 1", "error 3131 at 26"},
      {"SELECT id FROM soci INNER JOIN pagamenti", "error 3131 at 40"},
      {"SELECT id FROM soci s t", "error 3131 at 22"},
      {"SELECT id FROM soci ORDER BY", "error 3138 at 28"},
      {"SELECT id FROM soci ORDER BY 7", "error 3138 at 29"},
      {"SELECT id FROM soci; SELECT", "error 3142 at 21"},
      {"SELECT id FROM ignota", "error 3078 at 15"},
      {"SELECT id FROM infinita", "error 3360 at 14"},
      {"SELECT ignota.* FROM soci", "error 3078 at 7"},
      {"SELECT id FROM soci, pagamenti", "error 3079 at 7"},
      {"SELECT nome, Count(*) FROM soci", "error 3122 at 7"},
      {"SELECT * FROM soci GROUP BY id", "error 3122 at 7"},
      {"SELECT nome & 'x' FROM soci GROUP BY nome & 'y'", "error 3122 at 7"},
      {"SELECT id FROM soci GROUP BY id ORDER BY nome", "error 3122 at 41"},
      {"SELECT id FROM soci WHERE Count(*) > 1", "error 3096 at 26"},
      {"SELECT Ignota(id) FROM soci", "error 3085 at 7"},
      {"SELECT Left(nome) FROM soci", "error 3085 at 7"},
      {"SELECT DISTINCT id FROM soci ORDER BY nome", "error 3093 at 38"},
      {"SELECT id FROM soci UNION SELECT id, nome FROM soci", "error 3307 at 33"},
      {"SELECT id FROM soci WHERE id IN (SELECT id, nome FROM soci)", "error 3306 at 26"},
      {"SELECT id FROM soci WHERE nome = 5", "error 3464 at 26"},
      {"PARAMETERS p Testo; SELECT 1", "error 3139 at 13"},
      {"PARAMETERS p Text SELECT 1", "error 3139 at 18"},
      {"UPDATE SET nome = 1", "error 3144 at 7"},
      {"UPDATE soci nome = 1", "error 3144 at 17"},
      {"UPDATE soci SET nome 1", "error 3144 at 21"},
      {"UPDATE soci SET ignoto = 1", "error 3061 at 16"},
      {"UPDATE (SELECT nome AS n FROM soci) AS q SET n = 'x'", "error 3073 at 45"},
      {"DELETE soci", "error 3128 at 11"},
      {"DELETE FROM soci, pagamenti", "error 3128 at 12"},
      {"INSERT soci VALUES (1)", "error 3134 at 7"},
      {"INSERT INTO soci (id VALUES (1)", "error 3134 at 21"},
      {"INSERT INTO soci VALUES ()", "error 3134 at 25"},
      {"INSERT INTO soci (ignoto) VALUES (1)", "error 3127 at 18"},
      {"INSERT INTO soci SELECT 1 AS ignoto", "error 3127 at 12"},
      {"INSERT INTO soci (id, nome) VALUES (1)", "error 3346 at 12"},
      {"INSERT INTO guasti (a, c) VALUES (1, 1)", "error 3075 at 12"},
      {"INSERT INTO guasti (a, b) VALUES (1, 1)", "error 3387 at 12"},
      {"CREATE TABLE t id LONG", "error 3290 at 15"},
      {"CREATE TABLE t (id NIENTE)", "error 3292 at 19"},
      {"CREATE TABLE t (id TEXT(300))", "error 3292 at 19"},
      {"CREATE TABLE t (id LONG CONSTRAINT k)", "error 3289 at 36"},
      {"CREATE INDEX i t (a)", "error 3291 at 15"},
      {"CREATE INDEX i ON t (a) WITH NULL", "error 3291 at 29"},
      {"CREATE TABLE t (a LONG FOREIGN KEY (a) REFERENCES u)", "error 3289 at 23"},
      {"CREATE TABLE t (a LONG, FOREIGN KEY (a) u)", "error 3289 at 40"},
      {"CREATE TABLE t (a LONG REFERENCES u ON DELETE SET NULL)", "error 3289 at 46"},
      {"CREATE TABLE t (a COUNTER(1, 2))", "error 3292 at 18"},
      {"ALTER TABLE soci", "error 3293 at 16"},
      {"ALTER TABLE soci RENAME nome", "error 3293 at 17"},
      {"ALTER TABLE soci ADD COLUMN x NIENTE", "error 3292 at 30"},
      {"ALTER TABLE soci ALTER COLUMN id LONG PRIMARY KEY", "error 3293 at 33"},
      {"ALTER soci", "error 3293 at 6"},
      {"SELECT id INTO FROM soci", "error 3075 at 20"},
      {"SELECT id FROM soci WHERE id IN (SELECT id INTO x FROM soci)", "error 3075 at 43"},
      {"SELECT id FROM soci IN 'C:\\altro.mdb'", "error 3170 at 15"},
      {"SELECT id FROM [SELECT id FROM soci WHERE]. AS q", "error 3075 at 41"},
      {"SELECT id FROM soci WHERE id > ANY (SELECT id, nome FROM soci)", "error 3306 at 26"},
      {"SELECT id FROM soci WHERE nome > ALL (SELECT id FROM soci)", "error 3464 at 26"},
      {"SELECT id FROM soci WITH OPTION", "error 3131 at 25"},
      {"TRANSFORM Count(*) SELECT nome FROM soci GROUP BY nome PIVOT id", "error 3143 at 61"},
      {"TRANSFORM Count(*) SELECT nome FROM soci GROUP BY nome", "error 3143 at 54"},
      {"DROP QUERY x", "error 3295 at 5"},
      {"DROP INDEX i", "error 3295 at 12"},
  };
  SmallImage image;
  for (const Case& row : cases) EXPECT_EQ(image.run(row.statement), row.error) << row.statement;
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
      "PARAMETERS p Text(5); SELECT TOP 2 s.*, IIf(s.nome LIKE 'a*', -1, Count(*)) AS x FROM (soci AS s LEFT "
      "JOIN "
      "pagamenti ON s.id = pagamenti.socio) WHERE [Set] NOT IN ('A', \"B\") AND data BETWEEN #1/1/2000# AND "
      "p "
      "GROUP BY s.nome HAVING Sum(importo) > 1.5E2 ORDER BY 1 DESC;";
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
