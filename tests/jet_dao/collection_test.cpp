#include <gtest/gtest.h>

#include "office.h"

namespace jet::dao {
namespace {

using office::errorOf;

class Collections : public testing::Test {
 protected:
  Collections() { db = workspace.CreateDatabase(path); }

  TableDefPtr simpleTable(const std::string& name) {
    const auto table = db->CreateTableDef(name);
    table->Fields().Append(table->CreateField("id", dbLong));
    table->Fields().Append(table->CreateField("nome", dbText, 20));
    const auto key = table->CreateIndex("pk");
    key->setPrimary(true);
    key->setUnique(true);
    key->Fields().Append(key->CreateField("id"));
    table->Indexes().Append(key);
    db->TableDefs().Append(table);
    return table;
  }
  void reopen() {
    db->Close();
    EXPECT_EQ(office::complaints(path), "");
    db = workspace.OpenDatabase(path, true);
  }

  support::TempFolder folder;
  std::string path = folder.path("a.mdb");
  Workspace workspace;
  DatabasePtr db;
};

struct Column {
  const char* name;
  int type, size, attributes;
  bool required;
  const char* defaultValue;
  int position;
  const char* expected;  // Type Size Attributes Required AllowZeroLength DefaultValue, as stored
};

TEST_F(Collections, FieldsBecomeWhatTheyWereToldToBe) {
  const Column columns[] = {
      {"ultimo", dbText, 40, 2, true, "\"x\"", 9, "10 40 34 1 1 \"x\""},
      {"n", dbLong, 4, 17, false, "", 0, "4 4 49 0 0 "},
      {"memo", dbMemo, 0, 2, false, "", 1, "12 0 34 0 1 "},
      {"soldi", dbCurrency, 8, 1, false, "0", 2, "5 8 33 0 0 0"},
      {"byte", dbBinary, 16, 2, false, "", 3, "9 16 34 0 0 "},
      {"si", dbBoolean, 1, 1, false, "No", 4, "1 1 33 0 0 No"},
      {"decimale", dbDecimal, 16, 1, false, "", 5, "20 17 33 0 0 "},
      {"testo", dbText, 0, 2, false, "", 6, "10 255 34 0 1 "},
  };
  const auto table = db->CreateTableDef("nuova");
  for (const auto& each : columns) {
    const auto field = table->CreateField();
    field.setName(each.name);
    field.setType(each.type);
    field.setSize(each.size);
    field.setAttributes(each.attributes);
    field.setRequired(each.required);
    if (each.type == dbText || each.type == dbMemo) field.setAllowZeroLength(true);
    field.setDefaultValue(each.defaultValue);
    field.setOrdinalPosition(each.position);
    table->Fields().Append(field);
  }
  EXPECT_FALSE(db->TableDefs().contains("nuova"));
  EXPECT_EQ(errorOf([&] { table->Fields().Append(table->CreateField("TESTO", dbLong)); }), 3191);
  db->TableDefs().Append(table);
  for (int pass = 0; pass < 2; ++pass) {
    const auto stored = pass == 0 ? table : db->TableDefs("NUOVA");
    for (const auto& each : columns) {
      const auto field = stored->Fields(each.name);
      EXPECT_EQ(std::to_string(field.Type()) + " " + std::to_string(field.Size()) + " " +
                    std::to_string(field.Attributes()) + " " + (field.Required() ? "1 " : "0 ") +
                    (field.AllowZeroLength() ? "1 " : "0 ") + field.DefaultValue(),
                each.expected)
          << each.name;
      EXPECT_EQ(errorOf([&] { field.setType(dbLong); }), 3219);
      EXPECT_EQ(errorOf([&] { field.setSize(5); }), 3219);
      EXPECT_EQ(errorOf([&] { field.Value(); }), 3219);
    }
    EXPECT_EQ(stored->Fields(std::size_t{0}).Name(), "n");
    EXPECT_EQ(stored->Fields(7).Name(), "ultimo");
    if (pass == 0) reopen();
  }
  EXPECT_EQ(office::exported(path, "nuova"), "ultimo,n,memo,soldi,byte,si,decimale,testo\n");
  EXPECT_EQ(errorOf([&] { db->Execute("INSERT INTO nuova (ultimo) VALUES (NULL)", dbFailOnError); }), 3314);
}

TEST_F(Collections, AnExistingTableTakesChanges) {
  const auto table = simpleTable("t");
  db->Execute("INSERT INTO t VALUES (1, 'uno')");
  const auto field = table->CreateField("TEMPnome", dbMemo);
  field.setAttributes(dbVariableField);
  field.setOrdinalPosition(0);
  field.setDefaultValue("\"-\"");
  table->Fields().Append(field);
  db->CreateQueryDef("", "UPDATE t SET [TEMPnome]=[nome]")->Execute();
  table->Fields().Delete("nome");
  field.setName("nome");
  EXPECT_EQ(field.Type(), dbMemo);
  field.setValidationRule("<> 'no'");
  field.setValidationText("Non si può");
  EXPECT_EQ(field.ValidationRule() + field.ValidationText(), "<> 'no'Non si può");
  field.setValidationRule("");
  db->Execute("INSERT INTO t (id) VALUES (2)", dbFailOnError);
  table->Fields("id").setOrdinalPosition(8);
  const auto index = table->CreateIndex("perId");
  index->setIgnoreNulls(true);
  const auto part = index->CreateField("id");
  part.setAttributes(dbDescending);
  index->Fields().Append(part);
  table->Indexes().Append(index);
  EXPECT_EQ(index->DistinctCount(), 2);
  EXPECT_EQ(errorOf([&] { index->setUnique(true); }), 3219);
  index->setName("perIdentità");
  table->setName("rinominata");
  reopen();
  const auto again = db->TableDefs("rinominata");
  EXPECT_EQ(again->RecordCount(), 2);
  EXPECT_EQ(again->Indexes("perIdentità")->Fields(0).Attributes(), dbDescending);
  EXPECT_TRUE(again->Indexes("perIdentità")->IgnoreNulls());
  EXPECT_TRUE(again->Indexes("pk")->Primary());
  EXPECT_EQ(office::rows(*db->OpenRecordset("rinominata")), "uno|1 -|2");
  for (const auto& each : again->Indexes()) again->Indexes().Delete(each->Name());
  EXPECT_EQ(again->Indexes().Count(), 0u);
  again->Fields().Delete("nome");
  db->TableDefs().Delete("rinominata");
  reopen();
  EXPECT_FALSE(db->TableDefs().contains("rinominata"));
}

TEST_F(Collections, RelationsAreMadeReadAndDropped) {
  simpleTable("padre");
  simpleTable("figlio");
  const auto relation = db->CreateRelation("padreFiglio");
  relation->setTable("padre");
  relation->setForeignTable("figlio");
  relation->setAttributes(dbRelationDeleteCascade);
  const auto pair = relation->CreateField("id");
  pair.setForeignName("id");
  relation->Fields().Append(pair);
  db->Relations().Append(relation);
  EXPECT_EQ(errorOf([&] { relation->setTable("x"); }), 3219);
  db->Execute("INSERT INTO padre VALUES (1, 'x')");
  EXPECT_EQ(errorOf([&] { db->Execute("INSERT INTO figlio VALUES (2, 'y')", dbFailOnError); }), 3201);
  db->Execute("INSERT INTO figlio SELECT 2 AS id FROM padre");
  EXPECT_EQ(db->RecordsAffected(), 0);
  db->Execute("INSERT INTO figlio VALUES (1, 'y')");
  reopen();
  const auto read = db->Relations("PADREFIGLIO");
  EXPECT_EQ(read->Table() + read->ForeignTable() + read->Fields(0).Name() + read->Fields(0).ForeignName() +
                std::to_string(read->Attributes()),
            "padrefiglioidid4096");
  EXPECT_EQ(errorOf([&] { db->TableDefs().Delete("padre"); }), 3281);
  EXPECT_EQ(errorOf([&] { db->Relations().Append(db->CreateRelation("vuota", "padre", "figlio")); }), 3366);
  std::size_t foreign = 0;
  for (const auto& index : db->TableDefs("figlio")->Indexes()) foreign += index->Foreign();
  EXPECT_EQ(foreign, 1u);
  const auto rows = db->OpenRecordset("padre");
  rows->Delete();
  EXPECT_EQ(db->OpenRecordset("figlio")->RecordCount(), 0);
  for (const auto& each : db->Relations()) db->Relations().Delete(each->Name());
  reopen();
  EXPECT_EQ(db->Relations().Count(), 0u);
  EXPECT_EQ(db->TableDefs("figlio")->Indexes().Count(), 1u);
}

TEST_F(Collections, PropertiesAreGivenToTablesAndFields) {
  const auto table = simpleTable("t");
  const auto describe = [&](const PropertyCollection& properties, const char* text) {
    if (errorOf([&] { properties.Item("Description").setValue(text); }) == 0) return;
    properties.Append(db->CreateProperty("Description", dbText, text));
  };
  EXPECT_EQ(errorOf([&] { table->Properties("Description"); }), 3270);
  for (const char* text : {"prima", "seconda, più lunga"}) {
    describe(table->Properties(), text);
    describe(table->Fields("nome").Properties(), text);
  }
  EXPECT_EQ(errorOf([&] { table->Properties().Append(table->CreateProperty("description", dbText, "")); }),
            3367);
  EXPECT_EQ(errorOf([&] { table->Properties().Delete("Name"); }), 3384);
  table->Fields("nome").Properties().Item("DefaultValue").setValue("'d'");
  table->Fields("nome").setName("altro");
  reopen();
  EXPECT_EQ(db->TableDefs("t")->Properties("description").Value().toText(), "seconda, più lunga");
  const auto field = db->TableDefs("t")->Fields("altro");
  EXPECT_EQ(field.Properties().Item("Description").Value().toText(), "seconda, più lunga");
  EXPECT_EQ(field.Properties().Item("Description").Type(), dbText);
  EXPECT_EQ(field.DefaultValue(), "'d'");
  EXPECT_EQ(db->OpenRecordset("t")->Fields("altro").DefaultValue(), "'d'");
  field.Properties().Delete("Description");
  EXPECT_FALSE(field.Properties().contains("Description"));
  EXPECT_NE(support::runCommand("mdb-prop " + office::system(path) + " t").output.find("seconda"),
            std::string::npos);
}

TEST_F(Collections, ALinkShowsTheTableOfAnotherFile) {
  const std::string other = folder.path("altro.mdb");
  office::make(other,
               {"CREATE TABLE ADD_codici (c LONG, d TEXT(9))", "INSERT INTO ADD_codici VALUES (7, 'sette')"});
  const auto link = db->CreateTableDef("linkcodici");
  link->setConnect(";DATABASE=" + other);
  link->setSourceTableName("ADD_codici");
  db->TableDefs().Append(link);
  db->TableDefs().Refresh();
  EXPECT_EQ(link->Attributes(), dbAttachedTable);
  EXPECT_EQ(link->RecordCount(), -1);
  EXPECT_EQ(db->TableDefs("linkcodici")->Connect(), ";DATABASE=" + other);
  EXPECT_EQ(db->TableDefs("linkcodici")->SourceTableName(), "ADD_codici");
  EXPECT_EQ(db->TableDefs("linkcodici")->Fields().Count(), 2u);
  db->Execute("CREATE TABLE codici (c LONG, d TEXT(9))");
  db->Execute("INSERT INTO codici SELECT * FROM linkcodici");
  EXPECT_EQ(office::rows(*db->OpenRecordset("codici")), "7|sette");
  EXPECT_EQ(db->OpenRecordset("linkcodici")->Type(), dbOpenDynaset);
  EXPECT_EQ(errorOf([&] { db->OpenRecordset("linkcodici", dbOpenTable); }), 3219);
  struct Broken {
    std::string connect;
    const char* table;
    int error;
  };
  for (const auto& [connect, source, error] :
       {Broken{";DATABASE=" + folder.path("manca.mdb"), "x", 3024}, Broken{";DATABASE=" + other, "x", 3011},
        Broken{"ODBC;DSN=x", "x", 3170}}) {
    const auto broken = db->CreateTableDef("rotto");
    broken->setConnect(connect);
    broken->setSourceTableName(source);
    EXPECT_EQ(errorOf([&] { db->TableDefs().Append(broken); }), error);
    EXPECT_FALSE(db->TableDefs().contains("rotto"));
  }
  reopen();
  db->TableDefs().Delete("linkcodici");
  reopen();
  EXPECT_FALSE(db->TableDefs().contains("linkcodici"));
  EXPECT_EQ(office::query(other, "ADD_codici"), "7|sette");
}

TEST_F(Collections, WhatCannotBeAppendedIsRefused) {
  const auto table = simpleTable("t");
  const auto refused = [&](int error, auto work) { EXPECT_EQ(errorOf(work), error); };
  refused(3264, [&] { db->TableDefs().Append(db->CreateTableDef("vuota")); });
  refused(3010, [&] { simpleTable("T"); });
  refused(3264, [&] { table->Indexes().Append(table->CreateIndex("vuoto")); });
  refused(3259, [&] { table->Fields().Append(table->CreateField("f", 77)); });
  refused(3259, [&] { table->Fields().Append(table->CreateField("f", dbText, 300)); });
  refused(3125, [&] { table->Fields().Append(table->CreateField("a.b", dbLong)); });
  refused(3280, [&] { table->Fields().Delete("id"); });
  refused(3265, [&] { table->Fields().Delete("manca"); });
  refused(3265, [&] { table->Indexes("manca"); });
  refused(3265, [&] { db->TableDefs("manca"); });
  refused(3265, [&] { db->Relations("manca"); });
  refused(3265, [&] { db->QueryDefs("manca"); });
  refused(3219, [&] { db->OpenRecordset("t")->Fields().Append(table->CreateField("f", dbLong)); });
  const auto index = table->CreateIndex("i");
  index->Fields().Append(index->CreateField("manca"));
  refused(3265, [&] { table->Indexes().Append(index); });
  EXPECT_EQ(table->Fields().Count(), 2u);
}

}  // namespace
}  // namespace jet::dao
