#include <gtest/gtest.h>

#include <functional>

#include "office.h"

namespace jet::dao {
namespace {

using office::errorOf;

/// Ten numbered rows in five groups, the last names first.
class Cursors : public testing::Test {
 protected:
  Cursors() {
    std::vector<std::string> statements = {
        "CREATE TABLE t (a LONG CONSTRAINT pk PRIMARY KEY, g SHORT, nome TEXT(20))",
        "CREATE INDEX perGruppo ON t (g DESC, nome)"};
    for (int i = 1; i <= 10; ++i)
      statements.push_back("INSERT INTO t VALUES (" + std::to_string(i) + ", " +
                           (i == 10 ? "NULL" : std::to_string((i + 1) / 2)) + ", '" +
                           std::string(1, static_cast<char>('z' - i)) + "')");
    statements.insert(statements.end(),
                      {"CREATE TABLE gruppi (g SHORT CONSTRAINT pk PRIMARY KEY, nome TEXT)",
                       "INSERT INTO gruppi VALUES (1, 'primo')", "INSERT INTO gruppi VALUES (2, 'secondo')"});
    office::make(path, statements);
    db = workspace.OpenDatabase(path, true);
  }
  std::string at(Recordset& rows) {
    return rows.BOF() ? "BOF" : rows.atEnd() ? "EOF" : office::text(rows.value("a"));
  }

  support::TempFolder folder;
  std::string path = folder.path("a.mdb");
  Workspace workspace;
  DatabasePtr db;
};

struct Counting {
  RecordsetType type;
  const char* counts;  // at the first record, two on, at the last, back at the first
};

TEST_F(Cursors, RecordCountTellsWhatItsKindKnows) {
  for (const auto& [type, counts] :
       {Counting{dbOpenTable, "10 10 10 10"}, Counting{dbOpenDynaset, "1 3 10 10"},
        Counting{dbOpenSnapshot, "1 3 10 10"}}) {
    const auto rows = db->OpenRecordset("t", type);
    std::string found = std::to_string(rows->RecordCount());
    rows->Move(2);
    found += " " + std::to_string(rows->RecordCount());
    rows->MoveLast();
    found += " " + std::to_string(rows->RecordCount());
    rows->MoveFirst();
    EXPECT_EQ(found + " " + std::to_string(rows->RecordCount()), counts) << type;
  }
  const auto forward = db->OpenRecordset("t", dbOpenForwardOnly);
  forward->Move(3);
  EXPECT_EQ(forward->RecordCount(), 4);
  EXPECT_EQ(errorOf([&] { forward->MovePrevious(); }), 3219);
  EXPECT_EQ(errorOf([&] { forward->Edit(); }), 3251);
  EXPECT_EQ(db->OpenRecordset("SELECT * FROM t WHERE a > 10")->RecordCount(), 0);
}

TEST_F(Cursors, MovesStopBesideTheRecords) {
  for (const auto type : {dbOpenTable, dbOpenDynaset, dbOpenSnapshot}) {
    const auto rows = db->OpenRecordset("t", type);
    rows->Move(99);
    EXPECT_TRUE(rows->atEnd() && !rows->BOF());
    EXPECT_EQ(errorOf([&] { rows->Move(1); }), 3021);
    EXPECT_EQ(errorOf([&] { rows->value("a"); }), 3021);
    rows->Move(-2);
    EXPECT_EQ(at(*rows), "9") << type;
    const auto nine = rows->Bookmark();
    rows->Move(-99);
    EXPECT_EQ(at(*rows), "BOF");
    EXPECT_EQ(errorOf([&] { rows->MovePrevious(); }), 3021);
    rows->Move(-1, nine);
    EXPECT_EQ(at(*rows), "8");
    EXPECT_EQ(errorOf([&] { rows->setBookmark({}); }), 3159);
    const auto rest = rows->GetRows(5);
    ASSERT_EQ(rest.size(), 3u);
    EXPECT_EQ(rest[0].size(), 3u);
    EXPECT_TRUE(rows->atEnd());
    const auto none =
        db->OpenRecordset("SELECT * FROM t WHERE a = 77", type == dbOpenTable ? dbOpenDynaset : type);
    for (const auto& move : {&Recordset::MoveFirst, &Recordset::MoveLast, &Recordset::MoveNext})
      EXPECT_EQ(errorOf([&] { ((*none).*move)(); }), 3021);
  }
}

TEST_F(Cursors, AbsolutePositionCountsWhatIsLeft) {
  const auto rows = db->OpenRecordset("SELECT * FROM t ORDER BY a");
  rows->setAbsolutePosition(4);
  EXPECT_EQ(at(*rows), "5");
  rows->Delete();
  EXPECT_EQ(rows->AbsolutePosition(), -1);
  rows->MoveNext();
  EXPECT_EQ(at(*rows), "6");
  EXPECT_EQ(rows->AbsolutePosition(), 4);
  EXPECT_EQ(errorOf([&] { rows->setAbsolutePosition(9); }), 3001);
  EXPECT_EQ(errorOf([&] { db->OpenRecordset("t")->AbsolutePosition(); }), 3251);
}

TEST_F(Cursors, FindsByAnyConditionFromWhereItStands) {
  struct Search {
    void (Recordset::*find)(const std::string&);
    const char *criteria, *found;
  };
  const Search searches[] = {
      {&Recordset::FindFirst, "g = 2", "3"},
      {&Recordset::FindNext, "g = 2", "4"},
      {&Recordset::FindNext, "g = 2", "no"},
      {&Recordset::FindLast, "nome > 's' AND [a] <> 3", "6"},
      {&Recordset::FindPrevious, "g Is Not Null", "5"},
      {&Recordset::FindFirst, "g IN (SELECT g FROM gruppi WHERE nome LIKE 'sec*')", "3"},
      {&Recordset::FindNext, "g Is Null", "10"},
      {&Recordset::FindPrevious, "a > 100", "no"},
  };
  for (const auto type : {dbOpenDynaset, dbOpenSnapshot}) {
    const auto rows = db->OpenRecordset("SELECT a, g, nome FROM t ORDER BY a", type);
    for (const auto& [find, criteria, found] : searches) {
      ((*rows).*find)(criteria);
      EXPECT_EQ(rows->NoMatch() ? "no" : at(*rows), found) << criteria;
    }
    EXPECT_EQ(errorOf([&] { rows->FindFirst("a = = 1"); }), 3077);
    EXPECT_EQ(errorOf([&] { rows->FindFirst("manca = 1"); }), 3070);
  }
  const auto changed = db->OpenRecordset("SELECT * FROM t ORDER BY a");
  changed->AddNew();
  changed->Fields("a").setValue(50);
  changed->Fields("g").setValue(2);
  changed->Update();
  changed->FindLast("g = 2");
  EXPECT_EQ(at(*changed), "50");
  changed->Delete();
  changed->FindLast("g = 2");
  EXPECT_EQ(at(*changed), "4");
  EXPECT_EQ(errorOf([&] { db->OpenRecordset("t")->FindFirst("a = 1"); }), 3251);
}

TEST_F(Cursors, FilterAndSortHoldForTheNextRecordset) {
  for (const auto type : {dbOpenDynaset, dbOpenSnapshot}) {
    const auto rows = db->OpenRecordset("SELECT a, g FROM t", type);
    rows->setFilter("g >= 2 AND a < 9");
    rows->setSort("g DESC, a");
    const auto narrow = rows->OpenRecordset();
    EXPECT_EQ(office::rows(*narrow), "7|4 8|4 5|3 6|3 3|2 4|2");
    narrow->setFilter("g = 3");
    EXPECT_EQ(office::rows(*narrow->OpenRecordset()), "5|3 6|3");
    db->Execute("UPDATE t SET g = 9 WHERE a = 5");
    narrow->Requery();
    EXPECT_EQ(narrow->value("a").toLong(), 5);
    db->Execute("UPDATE t SET g = 3 WHERE a = 5");
    const auto clone = rows->Clone();
    EXPECT_EQ(errorOf([&] { clone->value("a"); }), 3021);
    clone->setBookmark(rows->Bookmark());
    EXPECT_EQ(clone->value("a").toLong(), rows->value("a").toLong());
  }
}

struct Sought {
  const char* comparison;
  std::vector<runtime::Variant> keys;
  const char* found;
};

TEST_F(Cursors, ATableIsReadAndSoughtByItsIndex) {
  const Sought sought[] = {
      {"=", {3}, "6"},       {"=", {3, "u"}, "5"}, {"=", {3, "x"}, "no"}, {">", {3}, "4"},
      {">=", {3}, "6"},      {"<", {3}, "7"},      {"<=", {3}, "5"},      {"=", {runtime::Null{}}, "10"},
      {">=", {3, "t"}, "6"}, {">", {3, "t"}, "5"}, {"<", {1}, "3"},       {">", {1, "y"}, "10"},
      {"<", {5}, "no"},      {">", {1}, "10"},     {"=", {"2"}, "4"},
  };
  for (const bool readOnly : {false, true}) {
    if (readOnly) {
      db->Close();
      db = workspace.OpenDatabase(path, false, true);
    }
    const auto rows = db->OpenRecordset("t", dbOpenTable);
    EXPECT_EQ(errorOf([&] { rows->Seek("=", {1}); }), 3019);
    EXPECT_EQ(errorOf([&] { rows->setIndex("manca"); }), 3015);
    rows->MoveNext();
    const auto second = rows->Bookmark();
    rows->setIndex("pergruppo");
    std::string order;
    for (; !rows->atEnd(); rows->MoveNext()) order += at(*rows) + " ";
    EXPECT_EQ(order, "9 8 7 6 5 4 3 2 1 10 ");
    rows->MoveLast();
    rows->MovePrevious();
    EXPECT_EQ(at(*rows), "1");
    for (const auto& [comparison, keys, found] : sought) {
      rows->Seek(comparison, keys);
      EXPECT_EQ(rows->NoMatch() ? "no" : at(*rows), found)
          << comparison << office::text(keys[0]) << keys.size();
    }
    EXPECT_EQ(errorOf([&] { rows->Seek("=>", {1}); }), 3001);
    EXPECT_EQ(errorOf([&] { rows->Seek("=", {"x"}); }), 3421);
    rows->setBookmark(second);
    EXPECT_EQ(at(*rows), "2");
    rows->MovePrevious();
    EXPECT_EQ(at(*rows), "3");
  }
}

TEST_F(Cursors, ATableSeesEveryChangeAtOnce) {
  const auto rows = db->OpenRecordset("t");
  EXPECT_EQ(rows->Type(), dbOpenTable);
  rows->setIndex("pk");
  rows->Seek("=", {4});
  db->Execute("INSERT INTO t (a) VALUES (100)");
  db->Execute("DELETE * FROM t WHERE a = 5");
  EXPECT_EQ(rows->RecordCount(), 10);
  rows->MoveNext();
  EXPECT_EQ(at(*rows), "6");
  rows->Edit();
  rows->Fields("a").setValue(60);  // the record goes on in its new place
  rows->Update();
  rows->MoveNext();
  EXPECT_EQ(at(*rows), "100");
  rows->Delete();
  EXPECT_EQ(errorOf([&] { rows->value("a"); }), 3167);
  rows->MovePrevious();
  EXPECT_EQ(at(*rows), "60");
  rows->MoveNext();
  EXPECT_EQ(at(*rows), "EOF");
}

TEST_F(Cursors, ADynasetSeesWhatItIsMeantTo) {
  const auto rows = db->OpenRecordset("SELECT * FROM t WHERE g = 1");
  db->Execute("UPDATE t SET nome = 'nuovo', g = 7 WHERE a = 2");
  db->Execute("INSERT INTO t VALUES (11, 1, 'altro')");
  db->Execute("DELETE * FROM t WHERE a = 1");
  rows->Move(0);
  EXPECT_EQ(errorOf([&] { rows->value("a"); }), 3167);  // deleted by others
  rows->MoveNext();
  EXPECT_EQ(rows->value("nome").toText(), "nuovo");  // changed, though it fits no more
  rows->MoveNext();
  EXPECT_TRUE(rows->atEnd());  // added by others
  rows->Requery();
  EXPECT_EQ(at(*rows), "11");
}

TEST_F(Cursors, RollbackTakesRowsFromOpenRecordsets) {
  workspace.BeginTrans();
  const auto table = db->OpenRecordset("t");
  const auto dynaset = db->OpenRecordset("SELECT * FROM t WHERE a = 1");
  dynaset->Edit();
  dynaset->Fields("nome").setValue("prova");
  dynaset->Update();
  dynaset->FindFirst("nome = 'prova'");
  EXPECT_FALSE(dynaset->NoMatch());
  const auto snapshot = db->OpenRecordset("SELECT * FROM t", dbOpenSnapshot);
  workspace.Rollback();
  EXPECT_EQ(errorOf([&] { snapshot->MoveNext(); }), 3420);
  dynaset->MoveFirst();
  EXPECT_EQ(dynaset->value("nome").toText(), "y");
  dynaset->FindFirst("nome = 'prova'");
  EXPECT_TRUE(dynaset->NoMatch());
  table->MoveLast();
  EXPECT_EQ(at(*table), "10");
}

}  // namespace
}  // namespace jet::dao
