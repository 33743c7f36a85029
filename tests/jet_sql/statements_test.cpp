#include <gtest/gtest.h>

#include "small_image.h"

namespace jet::sql::test {
namespace {

struct Case {
  const char* statement;
  const char* rows;
};

void PrintTo(const Case& value, std::ostream* out) {
  *out << value.statement;
}

class Statements : public testing::TestWithParam<Case> {};

TEST_P(Statements, GiveTheRowsOfTheEngine) {
  SmallImage image;
  EXPECT_EQ(image.rows(GetParam().statement), GetParam().rows) << image.compileRows(GetParam().statement).sql;
}

INSTANTIATE_TEST_SUITE_P(
    Selecting, Statements,
    testing::Values(
        Case{"SELECT id, nome FROM soci", "1|Anna; 2|bruno; 3|Ezio"},
        Case{"select ID from SOCI where Set = 'a';", "1"},
        Case{"SELECT s.Set FROM [soci] AS s WHERE s![Set] <> \"A\"", "B"},
        Case{"SELECT nome FROM soci WHERE [legge494/96] = True", "bruno"},
        Case{"SELECT nome FROM soci WHERE attivo AND NOT [legge494/96]", "Anna; Ezio"},
        Case{"SELECT nome FROM soci WHERE cognome = 'rossi' ORDER BY nome DESC", "bruno; Anna"},
        Case{"SELECT DISTINCT cognome FROM soci", "Bianchi; Rossi"},
        Case{"SELECT cognome, Count(*) FROM soci GROUP BY cognome HAVING Count(*) > 1", "Rossi|2"},
        Case{"SELECT Count(*) AS Totale, Sum(quota), Max(nome), Min(iscritto) FROM soci",
             "3|175|Ezio|01/01/2005"},
        Case{"SELECT Sum(IIf(attivo, 1, 0)) AS Conta FROM soci", "2"},
        Case{"SELECT First(nome), Last(nome), Avg(quota) FROM soci", "Anna|Ezio|87,5"},
        Case{"SELECT Sum(peso), Max(peso), Avg(peso) FROM pagamenti", "119,75|100|39,9166666666667"},
        Case{"SELECT id FROM pagamenti ORDER BY peso", "4; 2; 1; 3"},
        Case{"SELECT id FROM pagamenti WHERE peso > 9.3 AND peso IN (10.5, 100)", "1; 3"},
        Case{"SELECT nome FROM soci ORDER BY livello DESC, 1", "bruno; Anna; Ezio"},
        Case{"SELECT nome AS chi, quota * 2 AS doppio FROM soci ORDER BY doppio, chi",
             "Ezio|Null; bruno|100; Anna|250"},
        Case{"SELECT quota * 2 AS doppio, doppio + 1 AS altro FROM soci WHERE id = 1", "250|251"},
        Case{"SELECT nome FROM soci WHERE iscritto = #1/1/2005#", "Anna"},
        Case{"SELECT nome FROM soci WHERE iscritto BETWEEN #2005-01-02# AND #1/1/2006 6:00:00 PM#", "bruno"},
        Case{"SELECT nome FROM soci WHERE Year(iscritto) = 2006 Or iscritto Is Null", "bruno; Ezio"},
        Case{"SELECT nome FROM soci WHERE Note IS NOT NULL AND (Note & '') = ''", "Ezio"},
        Case{"SELECT nome FROM soci WHERE nome LIKE 'B*' OR nome LIKE '?zi[a-p]'", "bruno; Ezio"},
        Case{"SELECT nome FROM soci WHERE quota = 125 OR quota < 50.5", "Anna; bruno"},
        Case{"SELECT 1 + 1", "2"}));

INSTANTIATE_TEST_SUITE_P(
    Joining, Statements,
    testing::Values(
        Case{"SELECT nome, importo FROM soci INNER JOIN pagamenti ON soci.id = pagamenti.socio ORDER BY "
             "importo DESC",
             "Anna|25,5; Anna|10; bruno|5"},
        Case{"SELECT nome, importo FROM soci, pagamenti WHERE soci.id = socio AND nome = 'BRUNO'", "bruno|5"},
        Case{"SELECT nome FROM soci LEFT JOIN pagamenti ON soci.id = pagamenti.socio WHERE pagamenti.id IS "
             "NULL",
             "Ezio"},
        Case{
            "SELECT p.id, nome FROM soci AS s RIGHT JOIN pagamenti AS p ON s.id = p.socio WHERE s.id IS NULL",
            "4|Null"},
        Case{"SELECT a.nome, b.nome, p.id FROM (soci a INNER JOIN soci b ON a.cognome = b.cognome) "
             "LEFT JOIN pagamenti AS p ON (p.socio = b.id) WHERE a.id = 2 ORDER BY p.id DESC",
             "bruno|bruno|3; bruno|Anna|2; bruno|Anna|1"},
        Case{"SELECT s.nome, p.id, q.id FROM soci s LEFT JOIN (pagamenti p INNER JOIN pagamenti q "
             "ON p.socio = q.socio AND p.id < q.id) ON s.id = p.socio ORDER BY s.id",
             "Anna|1|2; bruno|Null|Null; Ezio|Null|Null"},
        Case{"SELECT t.*, u.n FROM (SELECT id, nome FROM soci WHERE id < 3) AS t, "
             "(SELECT socio, Count(*) AS n FROM pagamenti GROUP BY socio) AS u WHERE t.id = u.socio ORDER BY "
             "t.id",
             "1|Anna|2; 2|bruno|1"},
        Case{"SELECT nome FROM soci WHERE id NOT IN (SELECT socio FROM pagamenti)", "Ezio"},
        Case{"SELECT nome FROM soci WHERE EXISTS (SELECT * FROM pagamenti WHERE socio = soci.id AND importo "
             "> 20)",
             "Anna"},
        Case{"SELECT nome, (SELECT Max(data) FROM pagamenti WHERE socio = soci.id) AS ultimo FROM soci WHERE "
             "id = 1",
             "Anna|11/10/2006"},
        Case{"SELECT Count(*) FROM (SELECT nome FROM soci UNION SELECT 'ANNA' FROM soci) AS u", "3"},
        Case{"SELECT nome FROM soci UNION SELECT 'Carlo' FROM soci ORDER BY 1 DESC",
             "Ezio; Carlo; bruno; Anna"},
        Case{"SELECT id, importo FROM pagamenti WHERE id = 1 UNION ALL SELECT id, id FROM soci WHERE id = 2",
             "1|10; 2|2"}));

INSTANTIATE_TEST_SUITE_P(
    Nesting, Statements,
    testing::Values(
        Case{"SELECT id FROM soci WHERE quota > ANY (SELECT importo * 10 FROM pagamenti)", "1"},
        Case{
            "SELECT id FROM pagamenti WHERE importo >= ALL (SELECT importo FROM pagamenti WHERE importo > 0)",
            "2"},
        Case{"SELECT id FROM soci WHERE NOT id = SOME (SELECT socio FROM pagamenti)", "3"},
        Case{"SELECT id FROM soci WHERE id <> ALL (SELECT socio FROM pagamenti WHERE id > 99)", "1; 2; 3"},
        Case{"SELECT 1 = ANY (SELECT livello FROM soci), 3 = ANY (SELECT livello FROM soci), 3 <> ALL "
             "(SELECT livello "
             "FROM soci), 1 <> ALL (SELECT livello FROM soci)",
             "Null|Vero|Falso|Null"},
        Case{"SELECT id FROM soci WHERE nome = ALL (SELECT UCase(nome) FROM soci AS t WHERE t.id = soci.id)",
             "1; 2; 3"},
        Case{"SELECT id FROM soci WHERE NOT EXISTS (SELECT * FROM pagamenti WHERE socio = soci.id)", "3"},
        Case{"SELECT (SELECT nome FROM soci)", "error 3354"},
        Case{"SELECT id FROM soci WHERE nome = (SELECT nome FROM soci WHERE id = 2)", "2"},
        Case{"SELECT (SELECT nome FROM soci WHERE id = 9), (SELECT TOP 1 nome FROM soci)", "Null|Anna"},
        Case{"SELECT (SELECT TOP 1 nome FROM soci ORDER BY cognome DESC)", "error 3354"},
        Case{"SELECT q.n FROM [SELECT nome AS n FROM soci WHERE id < 3]. AS q ORDER BY q.n DESC",
             "bruno; Anna"},
        Case{"(SELECT nome FROM soci WHERE id = 1) UNION (SELECT TOP 1 nome FROM soci ORDER BY id DESC) "
             "ORDER BY 1",
             "Anna; Ezio"},
        Case{"SELECT id FROM soci UNION ALL (SELECT id FROM soci UNION SELECT 1 FROM soci)",
             "1; 2; 3; 1; 2; 3"},
        Case{"TABLE pagamenti UNION TABLE pagamenti",
             "1|1|10|10/10/2006|10,5; 2|1|25,5|11/10/2006|9,25; 3|2|5|12/10/2006|100; 4|9|Null|Null|Null"},
        Case{"SELECT id FROM soci WHERE id IN ((SELECT socio FROM pagamenti)) WITH OWNERACCESS OPTION;",
             "1; 2"},
        Case{"SELECT\tid\r\nFROM\r\n  soci\r\nWHERE id = 1 ;\r\n", "1"}));

INSTANTIATE_TEST_SUITE_P(
    Crossing, Statements,
    testing::Values(
        Case{"TRANSFORM Sum(importo) SELECT socio FROM pagamenti GROUP BY socio PIVOT Format(data, 'dd') IN "
             "('10', "
             "'11', '12')",
             "1|10|25,5|Null; 2|Null|Null|5; 9|Null|Null|Null"},
        Case{"TRANSFORM Count(*) SELECT cognome, Count(*) AS tutti FROM soci GROUP BY cognome PIVOT Set IN "
             "('B', "
             "Null, 'a')",
             "Bianchi|1|Null|1|Null; Rossi|2|1|Null|1"},
        Case{
            "TRANSFORM Nz(First(nome), '-') & '!' SELECT attivo FROM soci GROUP BY attivo PIVOT id IN (1, 2)",
            "Vero|Anna!|-!; Falso|-!|bruno!"}));

INSTANTIATE_TEST_SUITE_P(
    WithoutDoubleRows, Statements,
    testing::Values(
        Case{"SELECT DISTINCTROW nome FROM soci INNER JOIN pagamenti ON soci.id = pagamenti.socio",
             "Anna; bruno"},
        Case{"SELECT DISTINCTROW nome, importo FROM soci INNER JOIN pagamenti ON soci.id = pagamenti.socio",
             "Anna|10; Anna|25,5; bruno|5"},
        Case{"SELECT DISTINCTROW cognome FROM soci", "Rossi; ROSSI; Bianchi"},
        Case{"SELECT DISTINCTROW soci.* FROM soci, pagamenti WHERE soci.id = socio AND soci.id = 1 ORDER BY "
             "importo",
             "1|Anna|Rossi|125|Vero|01/01/2005|A|Falso|prima|1,5|3"}));

INSTANTIATE_TEST_SUITE_P(
    Limiting, Statements,
    testing::Values(
        Case{"SELECT TOP 2 nome FROM soci", "Anna; bruno"},
        Case{"SELECT TOP 1 nome FROM soci ORDER BY cognome DESC", "Anna; bruno"},
        Case{"SELECT TOP 2 id FROM soci ORDER BY id DESC", "3; 2"},
        Case{"SELECT TOP 34 PERCENT id FROM soci ORDER BY nome", "1; 2"},
        Case{"SELECT DISTINCT TOP 1 cognome FROM soci ORDER BY cognome DESC", "Rossi"},
        Case{"SELECT TOP 1 socio, Count(*) FROM pagamenti GROUP BY socio ORDER BY Count(*) DESC", "1|2"},
        Case{"SELECT nome FROM soci WHERE id IN (SELECT TOP 1 socio FROM pagamenti ORDER BY importo DESC)",
             "Anna"}));

/// A change, how many rows it says it changed, and what a look at the data then shows.
struct Change {
  const char* statement;
  const char* changed;
  const char* look;
  const char* rows;
};

void PrintTo(const Change& value, std::ostream* out) {
  *out << value.statement;
}

class Changes : public testing::TestWithParam<Change> {};

TEST_P(Changes, LeaveTheRowsOfTheEngine) {
  SmallImage image;
  EXPECT_EQ(image.run(GetParam().statement), GetParam().changed)
      << image.compileRows(GetParam().statement).sql;
  EXPECT_EQ(image.rows(GetParam().look), GetParam().rows);
}

TEST_P(Changes, LeaveTheSameRowsOneByOne) {
  SmallImage image;
  const RowStatement statement = image.compileRows(GetParam().statement);
  const std::string changed = GetParam().changed, applied = image.stepByRow(statement);
  EXPECT_EQ(applied.substr(0, applied.find(',')),
            (changed.starts_with("error") ? "0" : changed) + std::string(" applied"))
      << statement.steps->gather << "\n"
      << statement.steps->apply.front();
  EXPECT_EQ(image.rows(GetParam().look), GetParam().rows);
}

TEST(RowsOneByOne, FailAlone) {
  const Change cases[] = {
      {"UPDATE soci SET livello = cognome & '' WHERE id < 3", "0 applied, error 3421, error 3421",
       "SELECT livello FROM soci", "3; 7; Null"},
      {"UPDATE soci SET livello = IIf(id = 2, 'x', '4')", "2 applied, error 3421", "SELECT livello FROM soci",
       "4; 7; 4"},
      {"UPDATE soci SET altezza = 10 / (livello - 7) WHERE livello Is Not Null", "1 applied, error 11",
       "SELECT altezza FROM soci", "-2,5; 2,5; Null"},
      {"INSERT INTO tipi (nome) SELECT cognome & nome FROM soci WHERE id > 1 UNION SELECT 'corto' FROM soci",
       "2 applied, error 3163", "SELECT nome FROM tipi", "corto; ROSSIbruno"},
  };
  for (const Change& row : cases) {
    SmallImage image;
    EXPECT_EQ(image.stepByRow(image.compileRows(row.statement)), row.changed) << row.statement;
    EXPECT_EQ(image.rows(row.look), row.rows) << row.statement;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Updating, Changes,
    testing::Values(
        Change{"UPDATE soci SET Set = 'C', livello = livello * 2 WHERE Set Is Not Null", "2",
               "SELECT Set, livello FROM soci", "C|6; C|14; Null|Null"},
        Change{"UPDATE soci SET soci.Note = [Note] + \" e \" + nome", "3", "SELECT Note FROM soci",
               "prima e Anna; Null;  e Ezio"},
        Change{"UPDATE soci SET quota = '12,5', attivo = Null, altezza = livello / 2 WHERE id = 1", "1",
               "SELECT quota, attivo, altezza FROM soci WHERE id = 1", "12,5|Falso|1,5"},
        Change{"UPDATE soci SET livello = 2.5, nome = id, Set = Null WHERE id = 2", "1",
               "SELECT livello, nome, Set FROM soci WHERE id = 2", "2|2|Null"},
        Change{"UPDATE soci, pagamenti SET soci.quota = pagamenti.importo WHERE soci.id = pagamenti.socio "
               "AND data > 39000",
               "2", "SELECT quota FROM soci", "25,5; 5; Null"},
        Change{"UPDATE soci INNER JOIN pagamenti ON soci.id = pagamenti.socio SET importo = importo + "
               "soci.livello",
               "3", "SELECT importo FROM pagamenti", "13; 28,5; 12; Null"},
        Change{"UPDATE pagamenti SET peso = peso + 0.005 WHERE id < 3", "2", "SELECT peso FROM pagamenti",
               "10,5; 9,26; 100; Null"},
        Change{"UPDATE soci AS s, pagamenti AS p SET s.quota = s.quota + p.importo WHERE s.id = p.socio", "3",
               "SELECT quota FROM soci", "160,5; 55; Null"},
        Change{"UPDATE soci AS s RIGHT JOIN pagamenti AS p ON s.id = p.socio SET s.Set = 'Z', p.data = "
               "s.iscritto, "
               "p.socio = s.livello WHERE p.id > 1",
               "3",
               "SELECT p.id, s.Set, p.data, p.socio FROM soci AS s, pagamenti AS p WHERE p.id + s.id = 4",
               "3|Z|01/01/2006 18:00:00|7; 2|Z|01/01/2005|3; 1|Null|10/10/2006|1"},
        Change{
            "UPDATE soci SET nome = cognome, cognome = nome WHERE id IN (SELECT socio FROM pagamenti WHERE "
            "importo > (SELECT Avg(importo) FROM pagamenti))",
            "1", "SELECT nome, cognome FROM soci", "Rossi|Anna; bruno|ROSSI; Ezio|Bianchi"},
        Change{
            "UPDATE (soci s INNER JOIN tipi ON s.id = tipi.uno) LEFT JOIN (pagamenti p INNER JOIN soci t ON "
            "p.socio = t.id) ON s.id = p.socio SET p.importo = 1",
            "0", "SELECT importo FROM pagamenti", "10; 25,5; 5; Null"},
        Change{"UPDATE (soci s INNER JOIN soci r ON s.cognome = r.cognome) LEFT JOIN (pagamenti p INNER JOIN "
               "soci "
               "t ON p.socio = t.id) ON r.id = p.socio SET p.importo = p.importo + 1 WHERE p.id < 3",
               "4", "SELECT importo FROM pagamenti", "12; 27,5; 5; Null"},
        Change{"UPDATE soci s LEFT JOIN rate r ON s.id = r.id SET r.id = s.id, r.data = s.iscritto WHERE "
               "s.id > 1",
               "2", "SELECT * FROM rate", "2|N|01/01/2006 18:00:00|2,5; 3|N|Null|2,5"},
        Change{"UPDATE soci SET livello = 40000", "error 6", "SELECT livello FROM soci", "3; 7; Null"},
        Change{"UPDATE soci SET livello = 'tre'", "error 3421", "SELECT livello FROM soci", "3; 7; Null"},
        Change{"UPDATE soci SET nome = 'undici lettere'", "error 3163", "SELECT nome FROM soci",
               "Anna; bruno; Ezio"}));

INSTANTIATE_TEST_SUITE_P(
    Deleting, Changes,
    testing::Values(
        Change{"DELETE  * FROM soci", "3", "SELECT Count(*) FROM soci", "0"},
        Change{"DELETE soci.nome FROM soci WHERE id = 1", "1", "SELECT nome FROM soci", "bruno; Ezio"},
        Change{"DELETE FROM soci WHERE nome = 'ANNA'", "1", "SELECT nome FROM soci", "bruno; Ezio"},
        Change{"DELETE pagamenti.* FROM pagamenti LEFT JOIN soci ON "
               "pagamenti.socio = soci.id WHERE soci.id Is Null",
               "1", "SELECT id FROM pagamenti", "1; 2; 3"},
        Change{"DELETE p.* FROM soci AS s, pagamenti AS p WHERE p.importo < "
               "s.quota AND s.cognome LIKE 'r*'",
               "3", "SELECT id FROM pagamenti", "4"},
        Change{"DELETE s.* FROM soci s LEFT JOIN (pagamenti p INNER JOIN soci t ON "
               "p.socio = t.id) ON s.id = p.socio WHERE p.id IS NULL",
               "1", "SELECT id FROM soci", "1; 2"},
        Change{"DELETE t.* FROM soci s LEFT JOIN (pagamenti p INNER JOIN soci t ON "
               "p.socio = t.id) ON s.id = p.socio",
               "2", "SELECT id FROM soci", "3"}));

INSTANTIATE_TEST_SUITE_P(
    Inserting, Changes,
    testing::Values(
        Change{"INSERT INTO soci ( id, nome, [Note] ) VALUES ( 4, 'O''Hara', \"a \"\"b\"\"\" );", "1",
               "SELECT nome, Note FROM soci WHERE id = 4", "O'Hara|a \"b\""},
        Change{"INSERT INTO pagamenti (id, importo, peso, data) VALUES (5, 0.00005, '1,255', '16/11/2026')",
               "1", "SELECT importo, peso, data FROM pagamenti WHERE id = 5", "0|1,26|16/11/2026"},
        Change{"INSERT INTO pagamenti (socio, id) SELECT id, id + 10 FROM soci WHERE id > 1", "2",
               "SELECT id, socio FROM pagamenti WHERE id > 10", "12|2; 13|3"},
        Change{"INSERT INTO pagamenti SELECT TOP 1 livello AS socio, id FROM soci ORDER BY id DESC", "1",
               "SELECT id, socio FROM pagamenti WHERE id = 3", "3|2; 3|Null"},
        Change{"INSERT INTO rate (id, stato) VALUES (1, Null)", "1", "SELECT * FROM rate",
               "1|Null|02/01/2006|2,5"},
        Change{"INSERT INTO rate (id, data) SELECT id, iscritto FROM soci", "3", "SELECT * FROM rate",
               "1|N|01/01/2005|2,5; 2|N|01/01/2006 18:00:00|2,5; 3|N|Null|2,5"},
        Change{"INSERT INTO rate (id) VALUES ((SELECT Max(id) FROM soci) + 1)", "1", "SELECT id FROM rate",
               "4"},
        Change{"INSERT INTO rate (rate.id, rate![stato]) (SELECT id, 'S' FROM soci WHERE id = 1)", "1",
               "SELECT id, stato FROM rate", "1|S"},
        Change{"INSERT INTO tipi VALUES (255, 0.1, '{00112233-4455-6677-8899-AABBCCDDEEFF}', Null, 'x')", "1",
               "SELECT uno, mezzo, nome FROM tipi WHERE chiave = '{00112233-4455-6677-8899-aabbccddeeff}'",
               "255|0,1|x"}));

TEST(Parameters, AreDeclaredOrFoundAndKeepTheirType) {
  SmallImage image;
  const auto statement = image.compileRows(
      "PARAMETERS [Da chi] Text, parBit Bit; SELECT * FROM soci WHERE nome = [da CHI] AND livello > altro "
      "AND t.x IS NULL");
  ASSERT_EQ(statement.parameters.size(), 4u);
  EXPECT_EQ(statement.parameters[0].name, "Da chi");
  EXPECT_EQ(statement.parameters[0].type, Type::Text);
  EXPECT_EQ(statement.parameters[1].type, Type::Boolean);
  EXPECT_EQ(statement.parameters[2].name, "altro");
  EXPECT_EQ(statement.parameters[2].type, Type::Variant);
  EXPECT_EQ(statement.parameters[3].name, "t.x");

  EXPECT_EQ(image.run("PARAMETERS p Text; SELECT id FROM soci WHERE nome LIKE p", {"'*N*'"}), "1; 2");
  EXPECT_EQ(image.run("SELECT id FROM soci WHERE quota = p", {"125"}), "1");
  EXPECT_EQ(image.run("SELECT id FROM soci WHERE livello = p", {"'7'"}), "2");
  EXPECT_EQ(image.run("SELECT id FROM soci WHERE livello = p", {"'x'"}), "error 3464");
  EXPECT_EQ(image.run("PARAMETERS p TEXT;UPDATE soci SET livello = p", {"'12'"}), "3");
  EXPECT_EQ(image.run("SELECT chi FROM attivi", {"600000"}), "Anna");
}

TEST(Columns, AreNamedAsTheEngineNamesThem) {
  SmallImage image;
  const auto statement = image.compileRows(
      "SELECT a.id, b.id, nome, importo * 2, Count(*) AS n FROM soci AS a INNER JOIN pagamenti AS b "
      "ON a.id = b.socio GROUP BY a.id, b.id, nome, importo");
  std::string names;
  for (const ResultColumn& column : statement.columns)
    names += column.name + " " + typeName(column.type) + ", ";
  EXPECT_EQ(names, "a.id Long, b.id Long, nome Text, Expr1003 Currency, n Long, ");
  EXPECT_EQ(statement.columns[1].sourceTable, "pagamenti");
  EXPECT_EQ(statement.columns[1].table, 1u);
  EXPECT_EQ(statement.columns[3].sourceColumn, "");
}

TEST(Tables, AreListedWithWhatIsComparedAndChanged) {
  SmallImage image;
  const auto statement = image.compileRows(
      "UPDATE soci AS s INNER JOIN pagamenti ON s.id = socio SET nome = 'x' WHERE cognome = 'y' AND importo "
      "+ 1 > 2");
  ASSERT_EQ(statement.tables.size(), 2u);
  EXPECT_EQ(statement.tables[0].alias, "s");
  EXPECT_EQ(statement.tables[0].change, TouchedTable::Change::Update);
  EXPECT_EQ(statement.tables[0].compared, (std::vector<std::uint16_t>{0, 2}));
  EXPECT_EQ(statement.tables[1].page, 11u);
  EXPECT_EQ(statement.tables[1].compared, (std::vector<std::uint16_t>{1}));
}

struct KeyCase {
  const char* statement;
  std::size_t keys;
  const char* rows;  // of columns and keys
};

TEST(RowKeys, StandBehindTheColumnsWhereRowsAreRowsOfTables) {
  const KeyCase cases[] = {
      {"SELECT nome FROM soci WHERE id > 1", 1, "bruno|2; Ezio|3"},
      {"SELECT nome FROM soci s, pagamenti p WHERE s.id = p.socio AND s.id = 2", 2, "bruno|2|3"},
      {"SELECT TOP 1 nome FROM soci ORDER BY id DESC", 1, "Ezio|3"},
      {"SELECT s.id FROM soci s LEFT JOIN (pagamenti p INNER JOIN pagamenti q ON p.id = q.id) ON s.id = "
       "p.socio "
       "WHERE s.id > 1",
       3, "2|2|3|3; 3|3|Null|Null"},
      {"SELECT r.id, p.id FROM (soci s INNER JOIN soci r ON s.cognome = r.cognome) LEFT JOIN (pagamenti p "
       "INNER "
       "JOIN soci t ON p.socio = t.id) ON r.id = p.socio WHERE s.id <> 1 ORDER BY r.id, p.id",
       4, "1|1|2|1|1|1; 1|2|2|1|2|1; 2|3|2|2|3|2; 3|Null|3|3|Null|Null"},
      {"SELECT s.nome, p.id FROM pagamenti p, tipi t RIGHT JOIN soci s ON s.id = t.uno WHERE p.id = s.id", 3,
       "Anna|1|1|Null|1; bruno|2|2|Null|2; Ezio|3|3|Null|3"},
      {"SELECT nome FROM soci WHERE id IN (SELECT socio FROM pagamenti)", 1, "Anna|1; bruno|2"},
      {"SELECT DISTINCTROW nome FROM pagamenti p INNER JOIN soci s ON s.id = p.socio", 2,
       "Anna|Null|1; bruno|Null|2"},
      {"SELECT DISTINCT cognome FROM soci", 0, "Bianchi; Rossi"},
      {"SELECT Count(*) FROM soci", 0, "3"},
      {"SELECT x FROM (SELECT nome AS x FROM soci) AS q", 0, "Anna; bruno; Ezio"},
  };
  SmallImage image;
  for (const KeyCase& row : cases) {
    RowStatement statement = image.compileRows(row.statement, {.withRowKeys = true});
    EXPECT_EQ(statement.rowKeys, row.keys) << row.statement;
    for (std::size_t i = 0; i < statement.rowKeys; ++i)
      statement.columns.push_back({"", Type::Long, "", "", {}});
    EXPECT_EQ(image.step(statement, {}), row.rows) << statement.sql;
  }
}

}  // namespace
}  // namespace jet::sql::test
