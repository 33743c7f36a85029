#include <gtest/gtest.h>

#include <filesystem>

#include "office.h"
#include "platform/files.h"

namespace jet::dao {
namespace {

using office::errorOf;

const std::vector<std::string> EveryType = {
    "CREATE TABLE Ogni (id COUNTER CONSTRAINT pk PRIMARY KEY, si BIT, b BYTE, i SHORT, l LONG, v CURRENCY, "
    "s SINGLE, d DOUBLE, q DATETIME, t TEXT(30) NOT NULL, m MEMO, n DECIMAL(10, 3), bin BINARY(8), o "
    "LONGBINARY, g GUID)",
    "CREATE UNIQUE INDEX perTesto ON Ogni (t DESC, l)",
    "CREATE INDEX perNumero ON Ogni (n, v)",
    "INSERT INTO Ogni (si, b, i, l, v, s, d, q, t, m, n) VALUES (TRUE, 255, -32768, 2147483647, 12.3456, "
    "1.5, -0.1, #2026-11-16 17:16:00#, 'Niccolò D''Agostino', 'perché', -12.345)",
    "INSERT INTO Ogni (t, l) VALUES ('Ωmega', NULL)",
    "INSERT INTO Ogni (t, l) VALUES ('', 0)",
};

TEST(Design, ATableOfEveryTypeComesBackInThreeReaders) {
  const support::TempFolder folder;
  const std::string path = folder.path("ogni.mdb");
  office::make(path, EveryType);
  EXPECT_EQ(office::complaints(path), "");
  const std::string first =
      "1|Vero|255|-32768|2147483647|12,3456|1,5|-0,1|16/11/2026 17:16:00|Niccolò D'Agostino|"
      "perché|-12,345|Null|Null|Null";
  const std::string others =
      " 2|Falso|Null|Null|Null|Null|Null|Null|Null|Ωmega|Null|Null|Null|Null|Null"
      " 3|Falso|Null|Null|0|Null|Null|Null|Null||Null|Null|Null|Null|Null";
  EXPECT_EQ(office::query(path, "SELECT * FROM Ogni ORDER BY id"), first + others);
  const auto theirs = office::exported(path, "Ogni");
  for (const char* field : {"1,1,255,-32768,2147483647,12.3456,1.5,-0.1,\"11/16/26 17:16:00\",\"Niccolò "
                            "D'Agostino\",\"perché\",-12.345",
                            "\"Ωmega\""})
    EXPECT_NE(theirs.find(field), std::string::npos) << theirs;
  DBEngine::CompactDatabase(path, folder.path("compatto.mdb"));
  EXPECT_EQ(office::complaints(folder.path("compatto.mdb")), "");
  EXPECT_EQ(office::exported(folder.path("compatto.mdb"), "Ogni"), theirs);
}

TEST(Design, ACompactCopyShowsItsFieldsInDisplayOrderToOtherReaders) {
  const support::TempFolder folder;
  const std::string path = folder.path("ogni.mdb"), compact = folder.path("compatto.mdb");
  office::make(path, EveryType);
  {
    Workspace workspace;
    const auto db = workspace.OpenDatabase(path, true);
    for (const char* last : {"si", "t", "m", "l"}) db->TableDefs("Ogni")->Fields(last).setOrdinalPosition(90);
    db->Close();
  }
  DBEngine::CompactDatabase(path, compact);
  EXPECT_EQ(office::complaints(compact), "");
  EXPECT_EQ(office::exported(compact, "Ogni").substr(0, 36), "id,b,i,v,s,d,q,n,bin,o,g,si,l,t,m\n1,");
  EXPECT_EQ(office::query(compact, "SELECT * FROM Ogni"), office::query(path, "SELECT * FROM Ogni"));
  EXPECT_EQ(office::query(compact, "SELECT l, t FROM Ogni WHERE t = 'Niccolò D''Agostino'"),
            "2147483647|Niccolò D'Agostino");
}

TEST(Design, ACompactCopyShowsWhatItsIndexesAreMadeOfAfterOneIsGone) {
  const support::TempFolder folder;
  const std::string path = folder.path("indici.mdb"), compact = folder.path("compatto.mdb");
  office::make(path,
               {"CREATE TABLE A (a LONG, b LONG, c LONG)", "CREATE INDEX vecchio ON A (c)",
                "CREATE INDEX pk ON A (a) WITH PRIMARY", "CREATE UNIQUE INDEX doppio ON A (b, c DESC)",
                "CREATE TABLE B (a LONG, b LONG)", "CREATE INDEX altro ON B (b)",
                "ALTER TABLE B ADD CONSTRAINT rel FOREIGN KEY (a) REFERENCES A (a)",
                "CREATE INDEX nuovo ON B (b DESC, a)", "DROP INDEX vecchio ON A", "DROP INDEX altro ON B",
                "INSERT INTO A VALUES (1, 2, 3)", "INSERT INTO B VALUES (1, 9)"});
  DBEngine::CompactDatabase(path, compact);
  EXPECT_EQ(office::complaints(compact), "");
  const auto schema =
      support::runCommand("mdb-schema --indexes " + office::system(compact) + " postgres").output;
  for (const char* index :
       {"PRIMARY KEY (\"a\");", "CREATE UNIQUE INDEX \"a_doppio_idx\" ON \"a\" (\"b\", \"c\" DESC);",
        "CREATE INDEX \"b_nuovo_idx\" ON \"b\" (\"b\" DESC, \"a\");"})
    EXPECT_NE(schema.find(index), std::string::npos) << schema;
  Workspace workspace;
  const auto db = workspace.OpenDatabase(compact, true);
  EXPECT_EQ(errorOf([&] { db->Execute("DELETE FROM A", dbFailOnError); }), 3200);
  EXPECT_EQ(errorOf([&] { db->Execute("INSERT INTO B VALUES (4, 1)", dbFailOnError); }), 3201);
  db->Relations().Delete("rel");
  db->Close();
  EXPECT_EQ(office::complaints(compact), "");
}

TEST(Design, RenamedAndDroppedFieldsReachTheFile) {
  const support::TempFolder folder;
  const std::string path = folder.path("ogni.mdb");
  office::make(path, EveryType);
  {
    Workspace workspace;
    const auto db = workspace.OpenDatabase(path, true);
    const auto table = db->TableDefs("OGNI");
    auto field = table->Fields("t");
    field.setName("Testo");
    EXPECT_EQ(field.Name(), "Testo");
    EXPECT_EQ(errorOf([&] { table->Fields("m").setName("testo"); }), 3191);
    EXPECT_EQ(errorOf([&] { table->Fields().Delete("l"); }), 3280);
    EXPECT_EQ(errorOf([&] { table->Fields().Delete("manca"); }), 3265);
    db->Close();
  }
  EXPECT_EQ(office::complaints(path), "");
  EXPECT_EQ(office::query(path, "SELECT Testo FROM Ogni WHERE Testo LIKE 'n*'"), "Niccolò D'Agostino");
  Workspace workspace;
  const auto db = workspace.OpenDatabase(path, true);
  // The property Required went with the name.
  EXPECT_EQ(errorOf([&] { db->Execute("UPDATE Ogni SET Testo = NULL", dbFailOnError); }), 3314);
  db->TableDefs("Ogni")->Fields().Delete("m");
  db->TableDefs("Ogni")->Fields().Delete("si");
  db->Close();
  EXPECT_EQ(office::complaints(path), "");
  EXPECT_EQ(office::query(path, "SELECT id, Testo, n FROM Ogni WHERE id = 1"),
            "1|Niccolò D'Agostino|-12,345");
  EXPECT_EQ(office::exported(path, "Ogni").substr(0, 24), "id,b,i,l,v,s,d,q,Testo,n");
}

TEST(Design, ANewFieldIsWhatItsDraftSays) {
  const struct {
    int type, size, attributes, precision, scale, error;
    const char* design;  // as another reader tells it
  } cases[] = {
      {dbDecimal, 0, 0, 10, 2, 0, "Numeric (10, 2)"},
      {dbDecimal, 0, 0, 28, 28, 0, "Numeric (28, 28)"},
      {dbDecimal, 0, 0, 29, 2, 3259, ""},
      {dbDecimal, 0, 0, 0, 0, 3259, ""},
      {dbDecimal, 0, 0, 3, 4, 3259, ""},
      {dbDecimal, 0, 0, 3, -1, 3259, ""},
      {dbLong, 0, 0, 3, 4, 0, "Long Integer"},
      {dbText, 4, dbFixedField, 18, 0, 0, "Text (4)"},
      {dbText, 4, dbVariableField, 18, 0, 0, "Text (4)"},
      {dbBinary, 4, dbFixedField, 18, 0, 0, "Binary"},
      {dbMemo, 0, dbFixedField, 18, 0, 0, "Memo"},
      {dbLong, 0, dbAutoIncrField, 18, 0, 3090, ""},
  };
  const support::TempFolder folder;
  const std::string path = folder.path("campi.mdb"), compact = folder.path("compatto.mdb");
  for (const bool asNewTable : {true, false}) {
    for (const auto& item : cases) {
      SCOPED_TRACE(std::to_string(item.type) + " " + std::to_string(item.attributes) + " " +
                   std::to_string(item.precision));
      for (const auto& file : {path, compact}) std::filesystem::remove(platform::toSystemPath(file));
      office::make(
          path, {"CREATE TABLE Vecchia (id COUNTER, t TEXT(9))", "INSERT INTO Vecchia (t) VALUES ('prima')"});
      Workspace workspace;
      const auto db = workspace.OpenDatabase(path, true);
      const auto table = asNewTable ? db->CreateTableDef("Nuova") : db->TableDefs("Vecchia");
      if (asNewTable) {
        const auto id = table->CreateField("id", dbLong);
        id.setAttributes(dbAutoIncrField);
        table->Fields().Append(id);
      }
      const auto field = table->CreateField("f", item.type, item.size);
      field.setAttributes(item.attributes);
      field.setPrecision(item.precision);
      field.setScale(item.scale);
      const int error = errorOf([&] {
        table->Fields().Append(field);
        if (asNewTable) db->TableDefs().Append(table);
      });
      EXPECT_EQ(error, item.error);
      if (error) continue;
      const bool sized = item.type == dbText || item.type == dbBinary;
      const int fixed =
          item.type == dbLong || item.type == dbDecimal || (sized && item.attributes == dbFixedField);
      EXPECT_EQ(field.Attributes() & dbFixedField, fixed);
      EXPECT_EQ(field.precision(), item.type == dbDecimal ? item.precision : 0);
      EXPECT_EQ(field.scale(), item.type == dbDecimal ? item.scale : 0);
      const std::string name = table->Name();
      if (item.type == dbText) db->Execute("INSERT INTO [" + name + "] (f) VALUES ('è')", dbFailOnError);
      db->Close();
      EXPECT_EQ(office::complaints(path), "");
      DBEngine::CompactDatabase(path, compact);
      EXPECT_EQ(office::complaints(compact), "");
      for (const auto& file : {path, compact}) {
        EXPECT_NE(support::runCommand("mdb-schema " + office::system(file) + " access")
                      .output.find(std::string("[f]\t\t\t") + item.design),
                  std::string::npos);
        if (item.type == dbText) {
          EXPECT_EQ(office::query(file, "SELECT f FROM [" + name + "] WHERE f IS NOT NULL"),
                    fixed ? "è   " : "è");
        }
      }
    }
  }
}

TEST(Design, APlaceMayBeBeforeTheFirst) {
  const support::TempFolder folder;
  const std::string path = folder.path("posti.mdb");
  office::make(path, {"CREATE TABLE T (a LONG, b LONG, c LONG)"});
  Workspace workspace;
  const auto db = workspace.OpenDatabase(path, true);
  const auto table = db->TableDefs("T");
  table->Fields("c").setOrdinalPosition(-1);
  EXPECT_EQ(table->Fields("c").OrdinalPosition(), 0);
  EXPECT_EQ(errorOf([&] { table->Fields("c").setOrdinalPosition(65536); }), 3259);
  table->Fields("a").setOrdinalPosition(65535);
  table->Fields().Append(table->CreateField("d", dbLong));
  std::string order;
  for (const auto& field : table->Fields()) order += field.Name();
  EXPECT_EQ(order, "cbad");
  db->Close();
  EXPECT_EQ(office::complaints(path), "");
}

TEST(Design, ARelationThatIsMadeAnewLeavesNoGap) {
  const support::TempFolder folder;
  const std::string path = folder.path("relazioni.mdb");
  office::make(path, {"CREATE TABLE A (a LONG CONSTRAINT pk PRIMARY KEY)", "CREATE TABLE B (a LONG, b LONG)",
                      "ALTER TABLE B ADD CONSTRAINT prima FOREIGN KEY (a) REFERENCES A (a)",
                      "ALTER TABLE B ADD CONSTRAINT dopo FOREIGN KEY (b) REFERENCES A (a)"});
  Workspace workspace;
  const auto db = workspace.OpenDatabase(path, true);
  db->CreateQueryDef("domanda", "SELECT a FROM A");
  db->Execute("ALTER TABLE B DROP CONSTRAINT prima");
  db->Execute("ALTER TABLE B ADD CONSTRAINT ultima FOREIGN KEY (a) REFERENCES A (a)");
  db->Close();
  EXPECT_EQ(office::complaints(path), "");
  EXPECT_EQ(office::query(path, "SELECT Name FROM MSysObjects WHERE Id < 0 ORDER BY Id"),
            "ultima dopo domanda");
}

TEST(Design, DroppedTablesAndIndexesGiveTheirPagesBack) {
  const support::TempFolder folder;
  const std::string path = folder.path("a.mdb");
  office::make(path, EveryType);
  for (int round = 0; round < 3; ++round) {
    Workspace workspace;
    const auto db = workspace.OpenDatabase(path, true);
    db->Execute("DROP INDEX perNumero ON Ogni");
    db->Execute("CREATE TABLE Altra (a LONG, b MEMO)");
    db->Execute("INSERT INTO Altra SELECT l AS a, t AS b FROM Ogni");
    db->Execute("CREATE INDEX perNumero ON Ogni (n, v)");
    db->Close();
    EXPECT_EQ(office::complaints(path), "");
    const auto again = workspace.OpenDatabase(path, true);
    again->Execute("DROP TABLE Altra");
    again->Close();
    EXPECT_EQ(office::complaints(path), "");
  }
  const auto size = platform::inspectFile(path)->size;
  office::make(folder.path("b.mdb"), EveryType);
  EXPECT_LE(size, platform::inspectFile(folder.path("b.mdb"))->size + 16 * 4096);
}

}  // namespace
}  // namespace jet::dao
