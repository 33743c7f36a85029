#include <gtest/gtest.h>

#include "runtime/overloaded.h"
#include "small_image.h"

namespace jet::sql::test {
namespace {

TEST(Definitions, SayWhatIsToBeMade) {
  const SmallImage image;
  const auto create = std::get<CreateTable>(compile(
      "CREATE TABLE tmpStampa ( ID Counter CONSTRAINT PrimaryKey PRIMARY KEY, Nome Text(2), Tutto Text, "
      "Peso Decimal(10, 3) NOT NULL, Flag Bit, CONSTRAINT Unico UNIQUE (Nome, Flag))",
      image));
  ASSERT_EQ(create.columns.size(), 5u);
  EXPECT_TRUE(create.columns[0].autoNumber);
  EXPECT_EQ(create.columns[0].type, file::ColumnType::Long);
  EXPECT_EQ(create.columns[1].size, 2);
  EXPECT_EQ(create.columns[2].size, 255);
  EXPECT_EQ(create.columns[3].precision, 10);
  EXPECT_EQ(create.columns[3].scale, 3);
  EXPECT_TRUE(create.columns[3].notNull);
  EXPECT_EQ(create.columns[4].type, file::ColumnType::Boolean);
  ASSERT_EQ(create.indexes.size(), 2u);
  EXPECT_TRUE(create.indexes[0].primary);
  EXPECT_EQ(create.indexes[0].name, "PrimaryKey");
  EXPECT_EQ(create.indexes[0].columns[0].column, "ID");
  EXPECT_EQ(create.indexes[1].columns.size(), 2u);

  const auto index =
      std::get<CreateIndex>(compile("CREATE INDEX i ON t (a, b DESC) WITH IGNORE NULL", image));
  EXPECT_TRUE(index.ignoreNull);
  EXPECT_FALSE(index.unique);
  EXPECT_FALSE(index.columns[1].ascending);
  EXPECT_EQ(std::get<DropTable>(compile("DROP TABLE [a b];", image)).table, "a b");
  EXPECT_EQ(std::get<DropIndex>(compile("DROP INDEX i ON t", image)).name, "i");
}

std::string joined(const std::vector<std::string>& names) {
  std::string list;
  for (const std::string& name : names) list += (list.empty() ? "" : ",") + name;
  return list;
}

std::string shown(const CreateIndex& index) {
  std::string text = std::string(index.primary  ? "primary "
                                 : index.unique ? "unique "
                                                : "index ") +
                     index.name;
  for (const auto& part : index.columns) text += " " + part.column + (part.ascending ? "" : " desc");
  return text;
}

std::string shown(const CreateRelation& relation) {
  return relation.name + ": " + relation.table + "(" + joined(relation.columns) + ") -> " + relation.parent +
         "(" + joined(relation.parentColumns) + ")" + (relation.cascadeUpdate ? " update" : "") +
         (relation.cascadeDelete ? " delete" : "");
}

std::string shown(const NewColumn& column) {
  return column.name + " " + typeName(typeOf(column.type)) + " " + std::to_string(column.size) +
         (column.autoNumber ? " from " + std::to_string(column.seed) : "") +
         (column.notNull ? " required" : "") +
         (column.defaultValue.empty() ? "" : " = " + column.defaultValue);
}

/// What a definition asks for, in a few words.
std::string asked(const std::string& text) {
  const SmallImage image;
  expectPrintsBack(text);
  const auto parts = [](const auto& definition) {
    std::string list;
    for (const CreateIndex& index : definition.indexes) list += "; " + shown(index);
    for (const CreateRelation& relation : definition.relations) list += "; " + shown(relation);
    return list;
  };
  return std::visit(
      runtime::Overloaded{
          [&](const CreateTable& create) {
            std::string list = create.table;
            for (const NewColumn& column : create.columns) list += "; " + shown(column);
            return list + parts(create);
          },
          [&](const AddColumn& add) { return "add " + add.table + "; " + shown(add.column) + parts(add); },
          [](const AlterColumn& alter) { return "alter " + alter.table + "; " + shown(alter.column); },
          [](const SetDefault& set) { return set.table + "." + set.column + " = " + set.defaultValue; },
          [](const DropColumn& drop) { return "drop " + drop.table + "." + drop.column; },
          [](const DropConstraint& drop) { return "drop " + drop.name + " of " + drop.table; },
          [](const CreateRelation& relation) { return shown(relation); },
          [](const CreateIndex& index) { return index.table + ": " + shown(index); },
          [](const SelectInto& into) { return "into " + into.table + ": " + into.rows.columns.at(0).name; },
          [](const auto&) { return std::string("another statement"); }},
      compile(text, image));
}

TEST(Definitions, CoverConstraintsDefaultsAndChanges) {
  struct Case {
    const char* statement;
    const char* asked;
  };
  const Case cases[] = {
      {"CREATE TEMPORARY TABLE t (a COUNTER(100, 1) PRIMARY KEY, b CHARACTER VARYING(5) WITH COMPRESSION NOT "
       "NULL)",
       "t; a Long 0 from 100; b Text 5 required; primary PrimaryKey a"},
      {"CREATE TABLE t (a LONG CONSTRAINT r REFERENCES u (x) ON DELETE CASCADE ON UPDATE CASCADE, b LONG "
       "NULL, "
       "FOREIGN KEY (b, a) REFERENCES v)",
       "t; a Long 0; b Long 0; r: t(a) -> u(x) update delete; vt: t(b,a) -> v()"},
      {"CREATE TABLE t (a DATETIME DEFAULT Now() NOT NULL, b DOUBLE PRECISION DEFAULT 1 + 2 UNIQUE, c TEXT "
       "DEFAULT "
       "'x')",
       "t; a Date 0 required = Now(); b Double 0 = 1 + 2; c Text 255 = 'x'; unique Index_b b"},
      {"CREATE TABLE t (Unique TEXT(3), Primary LONG, [Foreign] BIT, CONSTRAINT k UNIQUE (Unique, Primary))",
       "t; Unique Text 3; Primary Long 0; Foreign Boolean 0; unique k Unique Primary"},
      {"ALTER TABLE soci ADD COLUMN x NATIONAL CHAR VARYING(7) CONSTRAINT n NOT NULL REFERENCES u",
       "add soci; x Text 7 required; usoci: soci(x) -> u()"},
      {"ALTER TABLE soci ADD x MONEY DEFAULT 0", "add soci; x Currency 0 = 0"},
      {"ALTER TABLE soci ALTER COLUMN nome MEMO", "alter soci; nome Memo 0"},
      {"ALTER TABLE soci ALTER nome TEXT(9) DEFAULT 'x'", "alter soci; nome Text 9 = 'x'"},
      {"ALTER TABLE soci ALTER COLUMN nome SET DEFAULT 'a' & 1", "soci.nome = 'a' & 1"},
      {"ALTER TABLE soci ALTER nome DROP DEFAULT", "soci.nome = "},
      {"ALTER TABLE soci DROP COLUMN [legge494/96]", "drop soci.legge494/96"},
      {"ALTER TABLE soci DROP nome;", "drop soci.nome"},
      {"ALTER TABLE soci ADD CONSTRAINT k PRIMARY KEY (id, nome)", "soci: primary k id nome"},
      {"ALTER TABLE soci ADD CONSTRAINT f FOREIGN KEY (id) REFERENCES pagamenti (socio) ON UPDATE NO ACTION",
       "f: soci(id) -> pagamenti(socio)"},
      {"ALTER TABLE soci DROP CONSTRAINT k", "drop k of soci"},
      {"SELECT nome AS chi, Count(*) INTO [due parole] FROM soci GROUP BY nome", "into due parole: chi"},
  };
  for (const Case& row : cases) EXPECT_EQ(asked(row.statement), row.asked) << row.statement;
}

TEST(Definitions, KnowEveryNameOfATypeForColumnsAndParameters) {
  struct Case {
    Type type;
    std::vector<const char*> names;
  };
  const Case cases[] = {
      {Type::Boolean, {"Bit", "Boolean", "Logical", "Logical1", "YesNo"}},
      {Type::Byte, {"Byte", "TinyInt", "Integer1"}},
      {Type::Integer, {"Short", "SmallInt", "Integer2"}},
      {Type::Long, {"Long", "Int", "Integer", "Integer4", "Counter", "AutoIncrement", "Identity"}},
      {Type::Currency, {"Currency", "Money"}},
      {Type::Single, {"Single", "Real", "Float4", "IEEESingle"}},
      {Type::Double, {"Double", "Float", "Float8", "Number", "IEEEDouble", "Double Precision"}},
      {Type::Date, {"DateTime", "Date", "Time", "Timestamp"}},
      {Type::Text,
       {"Text", "Text(20)", "Char(3)", "Character", "VarChar(9)", "String", "NChar", "NVarChar",
        "AlphaNumeric", "National Character Varying(4)"}},
      {Type::Memo, {"Memo", "LongText", "LongChar", "Note", "NText"}},
      {Type::Ole, {"LongBinary", "OLEObject", "General", "Image"}},
      {Type::Binary, {"Binary", "Binary(8)", "VarBinary(8)", "Bit Varying"}},
      {Type::Guid, {"Guid", "UniqueIdentifier"}},
      {Type::Decimal, {"Decimal", "Decimal(10,2)", "Numeric(5)", "Dec"}},
  };
  const SmallImage image;
  for (const Case& row : cases) {
    for (const std::string name : row.names) {
      const auto create = std::get<CreateTable>(compile("CREATE TABLE t (c " + name + ")", image));
      EXPECT_EQ(typeOf(create.columns[0].type), row.type) << name;
      const auto query = image.compileRows("PARAMETERS p " + name + "; SELECT id FROM soci WHERE p Is Null");
      EXPECT_EQ(query.parameters[0].type, row.type) << name;
    }
  }
  EXPECT_EQ(image.compileRows("PARAMETERS p Value; SELECT 1").parameters[0].type, Type::Variant);
}

}  // namespace
}  // namespace jet::sql::test
