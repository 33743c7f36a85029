#include <gtest/gtest.h>

#include "cases.h"
#include "jet/sql/parser/parser.h"
#include "jet/sql/tree/print.h"

namespace jet::sql::test {
namespace {

TEST(Expressions, FollowThePrecedenceOfTheLanguage) {
  expectValues({
      {"-2 ^ 2", "-4"},
      {"2 ^ 3 ^ 2", "64"},
      {"2 ^ -1", "0,5"},
      {"10 \\ 4 * 2", "1"},
      {"10 MOD 4 + 1", "3"},
      {"7 - 2 - 1 & 3 + 1", "44"},
      {"1 + 2 * 3 = 7", "Vero"},
      {"NOT 1 = 2 AND True", "Vero"},
      {"True OR False AND False", "Vero"},
      {"False IMP False EQV True", "Vero"},
      {"True XOR True OR False", "Falso"},
      {"NOT Null IS NULL", "Falso"},
      {"2 BETWEEN 1 AND 3 AND True", "Vero"},
      {"--3", "3"},
  });
}

TEST(Expressions, CarryNullAsTheEngineDoes) {
  expectValues({
      {"Null = Null", "Null"},     {"1 + Null", "Null"},
      {"NOT Null", "Null"},        {"NOT (1 = Null)", "Null"},
      {"Null <> 1", "Null"},       {"2 BETWEEN Null AND 1", "Falso"},
      {"Null & 'a' & Null", "a"},  {"'a' + Null & 'b'", "b"},
      {"'a' + Null", "Null"},      {"'a' & Null", "a"},
      {"Null & Null", "Null"},     {"Null OR True", "Vero"},
      {"Null AND False", "Falso"}, {"False IMP Null", "Vero"},
      {"Null LIKE '*'", "Null"},   {"IIf(Null, 1, 2)", "2"},
      {"IsNull(Null)", "Vero"},    {"1 IN (2, Null)", "Null"},
      {"Left(Null, 2)", "Null"},   {"Nz(Null, 'x') & Nz(Null) & Nz(5)", "x5"},
  });
}

TEST(Expressions, RoundHalvesToEvenAndReportOverflow) {
  expectValues({
      {"CLng(2.5)", "2"},
      {"CInt(3.5)", "4"},
      {"5.5 \\ 1.5", "3"},
      {"7.5 MOD 3", "2"},
      {"-7 \\ 2", "-3"},
      {"-7 MOD 3", "-1"},
      {"Int(-2.5)", "-3"},
      {"Fix(-2.5)", "-2"},
      {"Round(0.125, 2) & ' ' & Round(2.5)", "0,12 2"},
      {"7 / 2", "3,5"},
      {"1 / 0", "error 11"},
      {"1 \\ 0", "error 11"},
      {"5 MOD 0.4", "error 11"},
      {"2147483647 + 1", "error 6"},
      {"2147483647 * 2147483647 * 4", "error 6"},
      {"-2147483647 - 2", "error 6"},
      {"CInt(32768)", "error 6"},
      {"CByte(-1)", "error 6"},
      {"1E308 * 10", "error 6"},
      {"(-8) ^ 0.5", "error 5"},
      {"CCur(922337203685477) * 10", "error 6"},
      {"1E400", "error 6 at 7"},
  });
}

TEST(Expressions, KeepMoneyExact) {
  expectValues({
      {"CCur(0.1) + CCur(0.2)", "0,3"},
      {"CCur(0.03125)", "0,0312"},
      {"CCur(0.09375)", "0,0938"},
      {"CCur(1.5) * CCur(1.5)", "2,25"},
      {"CCur(0.0001) * CCur(0.5)", "0"},
      {"CCur(0.0003) * CCur(0.5)", "0,0002"},
      {"CCur(2.5) * 3", "7,5"},
      {"CCur(2.5) / 2", "1,25"},
      {"CCur('1.234,5')", "1234,5"},
      {"CCur(1.1) = 1.1", "Vero"},
      {"-CCur(2.5) & ''", "-2,5"},
      {"Abs(CCur(-2.5))", "2,5"},
  });
}

TEST(Expressions, CompareTextsByTheirOrder) {
  expectValues({
      {"'abc' = 'ABC'", "Vero"},
      {"'a' < 'B'", "Vero"},
      {"'e' = 'è'", "Falso"},
      {"'È' = 'è'", "Vero"},
      {"'a ' = 'a'", "Vero"},
      {"' a' = 'a'", "Falso"},
      {"'coop' < 'co-op'", "Vero"},
      {"'ß' = 'SS'", "Vero"},
      {"True + True & True", "-2-1"},
      {"'b' IN ('A', 'B')", "Vero"},
      {"'M' BETWEEN 'a' AND 'z'", "Vero"},
      {"'x' & 'y' = 'X' + 'Y'", "Vero"},
      {"'1' = 1", "error 3464 at 7"},
      {"#1/1/2000# > 'a'", "error 3464 at 7"},
      {"2 IN (1, 'b')", "error 3464 at 16"},
      {"True = -1", "Vero"},
      {"#1/1/2000# = 36526", "Vero"},
      {"'5' * 2", "10"},
      {"'x' * 2", "error 3464"},
  });
}

TEST(Expressions, MatchPatternsWithoutRegardToCase) {
  expectValues({
      {"'MOD01.doc' LIKE 'mod??.DOC'", "Vero"},
      {"'mod1.doc' LIKE 'mod??.doc'", "Falso"},
      {"'abcabd' LIKE '*ab[!c]'", "Vero"},
      {"'perché' LIKE '*CHÉ'", "Vero"},
      {"'à' LIKE '[a-z]'", "Vero"},
      {"'7x' LIKE '#?'", "Vero"},
      {"'xx' LIKE '#?'", "Falso"},
      {"'a*b' LIKE 'a[*]b'", "Vero"},
      {"'-' LIKE '[-a]'", "Vero"},
      {"'' LIKE '*'", "Vero"},
      {"'ab' NOT LIKE 'a[]b'", "Falso"},
      {"1234 LIKE '12*'", "Vero"},
      {"'a' LIKE '[a'", "error 93"},
      {"'aaaaaaaaaaaaaaaaaaaaaaaaaaaaab' LIKE '*a*a*a*a*a*a*a*a*a*a*c'", "Falso"},
  });
}

TEST(Types, AreKnownBeforeAStatementRuns) {
  const Case cases[] = {
      {"livello + livello", "Long"},
      {"livello + quota", "Currency"},
      {"quota * altezza", "Double"},
      {"quota + altezza", "Currency"},
      {"iscritto + 1", "Date"},
      {"iscritto - data", "Double"},
      {"peso * 2", "Decimal"},
      {"mezzo + mezzo", "Single"},
      {"mezzo + livello", "Double"},
      {"Sum(importo)", "Currency"},
      {"Sum(livello)", "Double"},
      {"Max(iscritto)", "Date"},
      {"IIf(attivo, quota, 0)", "Currency"},
      {"IIf(attivo, data, Null)", "Date"},
      {"IIf(attivo, 1, '')", "Text"},
      {"soci.nome & ''", "Text"},
      {"soci.nome = 'x'", "Boolean"},
      {"chiave", "Guid"},
      {"Int(quota)", "Currency"},
      {"Count(*)", "Long"},
  };
  SmallImage image;
  for (const Case& row : cases)
    EXPECT_EQ(typeOfExpression(image, row.expression), row.value) << row.expression;
}

TEST(Printing, GivesTheTreeBack) {
  const char* statements[] = {
      "PARAMETERS [p q] Text (255), n DECIMAL(10,2); SELECT DISTINCT TOP 5 PERCENT a.*, b![c d] AS [e f], "
      "`x]y` "
      "FROM (a INNER JOIN b ON a.x = b.x AND (a.y <> b.y OR a.z IS NOT NULL)) LEFT JOIN (SELECT * FROM c) AS "
      "d "
      "ON d.x = a.x, e WHERE NOT (x NOT IN (1, -2, 3) XOR y NOT BETWEEN #1/2/03 4:05# AND #12:00:01 AM#) "
      "GROUP BY x, y & z HAVING Count(*) > 1 AND f() ORDER BY 1 DESC, x ASC, Mid('a''b', 2);",
      "SELECT a - (b - c) - d, a = (b = c), (a AND b) OR (c AND (d OR e)), -(-a), -(a ^ b), (-a) ^ b FROM t",
      "SELECT ALL * FROM t UNION ALL SELECT DISTINCTROW t.* FROM t UNION SELECT 1 FROM u ORDER BY a",
      "DELETE DISTINCTROW t.* FROM t INNER JOIN [Select] ON t.Where = [Select].Order WHERE EXISTS (SELECT 1 "
      "FROM x)",
      "INSERT INTO t SELECT (SELECT Max(x) FROM u) AS y FROM t WHERE x IN (SELECT y FROM u)",
      "CREATE TABLE [a b] (Table COUNTER CONSTRAINT k PRIMARY KEY, Set TEXT(10) NOT NULL UNIQUE, d "
      "NUMERIC(5, 1), "
      "CONSTRAINT u UNIQUE (Set, d), PRIMARY KEY (Table))",
      "CREATE UNIQUE INDEX [i j] ON t (a DESC, b ASC) WITH DISALLOW NULL",
      "CREATE INDEX i ON t (a) WITH PRIMARY",
      "SELECT a.x INTO [n m] IN 'C:\\x.mdb' FROM a IN '' [;DATABASE=C:\\y.mdb] WHERE x >= ALL (SELECT y FROM "
      "b)",
      "INSERT INTO t IN 'C:\\x.mdb' (a, t.b) VALUES (1, 2)",
      "TRANSFORM Sum(x) SELECT y FROM t GROUP BY y PIVOT z IN ('a', 2, Null)",
      "PARAMETERS p Long; TRANSFORM Count(*) SELECT y FROM t GROUP BY y PIVOT z & 'q' WITH OWNERACCESS "
      "OPTION",
      "EXECUTE [una query] 1, 'b'",
      "EXEC altra",
      "DROP TABLE [x y]",
      "DROP INDEX i ON [x y];",
  };
  for (const char* statement : statements) expectPrintsBack(statement);
  std::string chain = "SELECT * FROM t WHERE a = 0";
  for (int i = 1; i < 300; ++i) chain += " OR a = " + std::to_string(i);
  expectPrintsBack(chain);
}

}  // namespace
}  // namespace jet::sql::test
