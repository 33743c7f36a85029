#include <gtest/gtest.h>

#include "small_image.h"
#include "support/case_file.h"

namespace jet::sql::test {
namespace {

support::CaseFile cases(const std::string& name) {
  return support::CaseFile(CASES "/" + name + ".cases");
}

TEST(Expressions, GiveTheValuesOfTheEngine) {
  SmallImage image;
  for (const char* file : {"expressions", "functions"})
    cases(file).expectResults(
        [&](const support::Case& each) { return image.run("SELECT " + each.statement); });
}

TEST(Expressions, HaveTypesThatAreKnownBeforeAStatementRuns) {
  const SmallImage image;
  cases("types").expectResults([&](const support::Case& each) {
    const auto rows = image.compileRows("SELECT " + each.statement + " FROM soci, pagamenti, tipi");
    return std::string(typeName(rows.columns.front().type));
  });
}

TEST(Statements, GiveTheRowsOfTheEngine) {
  SmallImage image;
  cases("statements").expectResults([&](const support::Case& each) { return image.run(each.statement); });
  EXPECT_EQ(image.run("SELECT\tid\r\nFROM\r\n  soci\r\nWHERE id = 1 ;\r\n"), "1");
}

TEST(Changes, LeaveTheRowsOfTheEngine) {
  cases("changes").expectResults([](const support::Case& each) {
    SmallImage image;
    const std::string changed = image.run(each.statement);
    return changed + ": " + image.run(each.look);
  });
}

TEST(Changes, LeaveTheSameRowsOneByOne) {
  cases("changes").expectResults([](const support::Case& each) {
    SmallImage image;
    const std::string applied = image.stepByRow(image.compileRows(each.statement));
    // A change that fails as a whole applies no row.
    const auto error = each.result.substr(0, each.result.find(':'));
    const std::string expected = error.starts_with("error") ? "0 applied" : error + " applied";
    EXPECT_EQ(applied.substr(0, applied.find(',')), expected) << each.statement;
    return error + ": " + image.run(each.look);
  });
}

TEST(Changes, OfRowsThatFailDoTheOthers) {
  cases("failing_rows").expectResults([](const support::Case& each) {
    SmallImage image;
    const std::string applied = image.stepByRow(image.compileRows(each.statement));
    return applied + ": " + image.run(each.look);
  });
}

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

TEST(RowKeys, StandBehindTheColumnsWhereRowsAreRowsOfTables) {
  SmallImage image;
  cases("row_keys").expectResults([&](const support::Case& each) {
    RowStatement statement = image.compileRows(each.statement, {.withRowKeys = true});
    EXPECT_EQ(std::to_string(statement.rowKeys), each.look) << each.statement;
    for (std::size_t i = 0; i < statement.rowKeys; ++i)
      statement.columns.push_back({"", Type::Long, "", "", {}});
    return image.step(statement, {});
  });
}

}  // namespace
}  // namespace jet::sql::test
