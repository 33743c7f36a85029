#include <gtest/gtest.h>

#include "office.h"

namespace jet::dao {
namespace {

using office::errorOf;

class Edits : public testing::Test {
 protected:
  Edits() {
    office::make(path,
                 {"CREATE TABLE p (id COUNTER CONSTRAINT pk PRIMARY KEY, nome TEXT(10), quando DATETIME, "
                  "n LONG, si YESNO)",
                  "CREATE TABLE f (x LONG CONSTRAINT pk PRIMARY KEY, p LONG, importo CURRENCY)",
                  "INSERT INTO p (nome, n) VALUES ('uno', 1)", "INSERT INTO p (nome, n) VALUES ('due', 2)",
                  "INSERT INTO f VALUES (10, 1, 1.5)", "INSERT INTO f VALUES (11, 1, 2)",
                  "INSERT INTO f VALUES (12, 9, 3)"});
    db = workspace.OpenDatabase(path, true);
  }
  support::TempFolder folder;
  std::string path = folder.path("a.mdb");
  Workspace workspace;
  DatabasePtr db;
};

TEST_F(Edits, ANewRecordShowsItsDefaultsAndItsNumber) {
  db->TableDefs("p")->Fields("n").setDefaultValue("=2 + 3");
  db->TableDefs("p")->Fields("nome").setDefaultValue("\"nuovo\"");
  for (const auto& [source, type] :
       {std::pair("p", dbOpenTable), {"p", dbOpenDynaset}, {"SELECT id, nome, si FROM p", dbOpenDynaset}}) {
    const auto rows = db->OpenRecordset(source, type);
    rows->MoveNext();
    rows->AddNew();
    EXPECT_EQ(rows->EditMode(), dbEditAdd);
    const auto number = rows->value("id").toLong();
    EXPECT_GT(number, 2);
    EXPECT_EQ(rows->value("nome").toText(), "nuovo");
    EXPECT_FALSE(rows->value("si").toBoolean());
    rows->Fields("si").setValue(-1);
    EXPECT_TRUE(rows->value("si").toBoolean());
    rows->Update();
    EXPECT_EQ(rows->EditMode(), dbEditNone);
    EXPECT_EQ(rows->value("id").toLong(), 2);  // where it was before
    rows->setBookmark(rows->LastModified());
    EXPECT_EQ(rows->value("id").toLong(), number);
    EXPECT_EQ(
        office::rows(*db->OpenRecordset("SELECT nome, n, si FROM p WHERE id = " + std::to_string(number))),
        "nuovo|5|Vero");
    rows->MovePrevious();
    EXPECT_EQ(rows->value("id").toLong(), number - 1);
  }
}

TEST_F(Edits, WhatIsSetIsConvertedAtOnce) {
  struct Set {
    const char* field;
    runtime::Variant value;
    int error;
    const char* text;
  };
  const Set sets[] = {
      {"n", "12", 0, "12"},
      {"n", 2.5, 0, "2"},
      {"n", "dodici", 3421, ""},
      {"nome", "undici lettere", 3163, ""},
      {"nome", 12, 0, "12"},
      {"quando", "16/11/2006", 0, "16/11/2006"},
      {"n", 3e9, 6, ""},
      {"id", 7, 3164, ""},
      {"nome", runtime::Null{}, 0, "Null"},
      {"somma", 1, 3164, ""},
  };
  const auto rows = db->OpenRecordset("SELECT *, n + 1 AS somma FROM p");
  EXPECT_EQ(rows->value("somma").toLong(), 2);
  EXPECT_EQ(errorOf([&] { rows->Update(); }), 3020);
  for (const auto& [field, value, error, text] : sets) {
    rows->Edit();
    EXPECT_EQ(errorOf([&, name = field, given = value] { rows->Fields(name).setValue(given); }), error)
        << field;
    if (error == 0) {
      rows->Update();
      EXPECT_EQ(office::text(rows->value(field)), text);
    }
  }
  EXPECT_EQ(rows->value("somma").toLong(), 3);
  rows->Edit();
  rows->Fields("n").setValue(99);
  rows->CancelUpdate();
  EXPECT_EQ(rows->value("n").toLong(), 2);
  rows->Edit();
  rows->Fields("n").setValue(99);
  rows->MoveNext();  // without Update
  rows->MoveFirst();
  EXPECT_EQ(rows->value("n").toLong(), 2);
  rows->Edit();
  rows->Fields("nome").setValue("uno");
  rows->Update();
  rows->MoveLast();
  rows->Delete();
  rows->AddNew();
  rows->Fields("nome").setValue("tre");
  rows->Update();
  db->Close();
  EXPECT_EQ(office::complaints(path), "");
  EXPECT_EQ(office::exported(path, "p"),
            "id,nome,quando,n,si\n1,\"uno\",\"11/16/06 00:00:00\",2,0\n3,\"tre\",,,0\n");
}

TEST_F(Edits, AJoinChangesEachFieldInItsTable) {
  const auto rows =
      db->OpenRecordset("SELECT f.x, f.importo, p.nome, p.id FROM f LEFT JOIN p ON f.p = p.id ORDER BY f.x");
  rows->Edit();
  rows->Fields("importo").setValue(7);
  rows->Fields("nome").setValue("UNO");
  rows->Update();
  rows->MoveNext();
  EXPECT_EQ(rows->value("nome").toText(), "UNO");  // the same row of p
  rows->Edit();
  rows->Fields("x").setValue(10);
  rows->Fields("nome").setValue("no");
  EXPECT_EQ(errorOf([&] { rows->Update(); }), 3022);
  rows->CancelUpdate();
  EXPECT_EQ(rows->value("nome").toText(), "UNO");
  EXPECT_EQ(errorOf([&] { rows->Delete(); }), 3027);
  rows->MoveNext();
  rows->Edit();
  rows->Fields("nome").setValue("no");
  EXPECT_EQ(errorOf([&] { rows->Update(); }), 3027);  // no row of p to change
  rows->AddNew();
  rows->Fields("x").setValue(20);
  rows->Update();
  rows->setBookmark(rows->LastModified());
  EXPECT_EQ(rows->value("x").toLong(), 20);
  rows->AddNew();
  rows->Fields("x").setValue(21);
  rows->Fields("nome").setValue("y");
  EXPECT_EQ(errorOf([&] { rows->Update(); }), 3027);
  EXPECT_EQ(office::rows(*db->OpenRecordset("SELECT x, importo FROM f ORDER BY x")),
            "10|7 11|2 12|3 20|Null");
}

TEST_F(Edits, RowsThatAreRefusedAreLeftOutUnlessAllAreWanted) {
  db->Execute("CREATE TABLE da (id LONG, p LONG, t TEXT(50))");
  for (const char* row : {"(1, 1, 'a')", "(10, 1, 'b')", "(2, NULL, 'c')", "(2, 2, 'd')", "(3, 3, 'e')"})
    db->Execute(std::string("INSERT INTO da VALUES ") + row);
  struct Statement {
    const char* sql;
    int error;     // with dbFailOnError
    int affected;  // without
    const char *question, *answer;
  };
  const Statement statements[] = {
      {"INSERT INTO f (x, p) SELECT id, p FROM da", 3022, 3, "SELECT x FROM f ORDER BY x", "1 2 3 10 11 12"},
      {"INSERT INTO f (x) VALUES (1)", 3022, 0, "SELECT Count(*) FROM f", "6"},
      {"UPDATE f SET x = 11 WHERE x >= 11", 3022, 1, "SELECT x FROM f WHERE x > 9 ORDER BY x", "10 11 12"},
      {"UPDATE p SET nome = nome & nome & nome & nome WHERE id = 1", 3163, 0,
       "SELECT nome FROM p WHERE id = 1", "uno"},
      {"UPDATE f INNER JOIN p ON f.p = p.id SET f.x = f.x + 2, p.n = p.n + 10", 3022, 1,
       "SELECT f.x, p.n FROM f INNER JOIN p ON f.p = p.id ORDER BY f.x", "1|11 10|11 13|11"},
  };
  for (const auto& [sql, error, affected, question, answer] : statements) {
    const auto before = office::rows(*db->OpenRecordset("SELECT * FROM f ORDER BY x"));
    EXPECT_EQ(errorOf([&, text = sql] { db->Execute(text, dbFailOnError); }), error) << sql;
    EXPECT_EQ(office::rows(*db->OpenRecordset("SELECT * FROM f ORDER BY x")), before) << sql;
    db->Execute(sql);
    EXPECT_EQ(db->RecordsAffected(), affected) << sql;
    EXPECT_EQ(office::rows(*db->OpenRecordset(question)), answer) << sql;
  }
}

TEST_F(Edits, AQueryIsRunAgainWithOtherAnswersAndAnotherDesign) {
  const auto query =
      db->CreateQueryDef("", "PARAMETERS quale LONG, nuovo TEXT; UPDATE p SET nome = nuovo WHERE id = quale");
  EXPECT_EQ(query->Parameters().Count(), 2u);
  EXPECT_EQ(query->Parameters(0).Name(), "quale");
  EXPECT_EQ(query->Parameters(0).Type(), dbLong);
  EXPECT_TRUE(query->Parameters("nuovo").Value().isEmpty());
  EXPECT_EQ(errorOf([&] { query->Parameters(2); }), 3265);
  EXPECT_EQ(errorOf([&] { query->Parameters("altro"); }), 3265);
  EXPECT_EQ(errorOf([&] { query->Execute(); }), 3061);
  for (const char* name : {"prima", "seconda"}) {
    query->Parameters("QUALE").setValue("1");
    query->Parameters("nuovo").setValue(name);
    query->Execute(dbFailOnError);
    EXPECT_EQ(query->RecordsAffected(), 1);
  }
  workspace.BeginTrans();
  query->Parameters("nuovo").setValue("terza");
  query->Execute();
  workspace.Rollback();
  EXPECT_EQ(db->OpenRecordset("p")->value("nome").toText(), "seconda");
  db->TableDefs("p")->Fields("nome").setName("altro");
  EXPECT_EQ(errorOf([&] { query->Execute(); }), 3061);  // the name is a parameter now
  db->TableDefs("p")->Fields("altro").setName("nome");
  query->Parameters("nuovo").setValue("undici lettere");
  query->Parameters("quale").setValue(1);
  EXPECT_EQ(errorOf([&] { query->Execute(dbFailOnError); }), 3163);
  query->Execute();
  EXPECT_EQ(query->RecordsAffected(), 0);
  query->setSQL("DELETE * FROM p WHERE id = quale");
  EXPECT_EQ(query->Parameters().Count(), 1u);
  query->Parameters(0).setValue(1);
  query->Execute();
  EXPECT_EQ(db->OpenRecordset("p")->RecordCount(), 1);
}

}  // namespace
}  // namespace jet::dao
