#include <gtest/gtest.h>

#include "office.h"

namespace jet::dao {
namespace {

using office::errorOf;

class Recordsets : public testing::Test {
 protected:
  Recordsets() {
    office::make(path, {"CREATE TABLE t (a LONG CONSTRAINT pk PRIMARY KEY, b TEXT(20), c BIT)",
                        "INSERT INTO t VALUES (1, 'uno', TRUE)", "INSERT INTO t VALUES (2, NULL, FALSE)",
                        "INSERT INTO t VALUES (3, 'tre', FALSE)", "CREATE TABLE vuota (a LONG)"});
  }
  support::TempFolder folder;
  std::string path = folder.path("a.mdb");
  Workspace workspace;
};

struct Kind {
  const char* source;
  RecordsetType type;
  bool readOnly;
};

constexpr Kind Kinds[] = {
    {"t", dbOpenTable, false},
    {"t", dbOpenTable, true},
    {"SELECT * FROM t", dbOpenDynaset, false},
    {"SELECT * FROM t ORDER BY a", dbOpenSnapshot, false},
    {"t", dbOpenForwardOnly, true},
    {"SELECT * FROM t", dbOpenForwardOnly, false},
};

TEST_F(Recordsets, EveryKindReadsTheSameRows) {
  for (const auto& [source, type, readOnly] : Kinds) {
    const auto db = workspace.OpenDatabase(path, false, readOnly);
    const auto rows = db->OpenRecordset(source, type);
    EXPECT_FALSE(rows->BOF() || rows->atEnd());
    EXPECT_EQ(office::rows(*rows), "1|uno|Vero 2|Null|Falso 3|tre|Falso") << source << type;
    EXPECT_EQ(errorOf([&] { rows->MoveNext(); }), 3021);
    EXPECT_EQ(errorOf([&] { rows->Fields(0).Value(); }), 3021);
    EXPECT_EQ(errorOf([&] { rows->Fields("manca"); }), 3265);
    if (type == dbOpenForwardOnly) {
      EXPECT_EQ(errorOf([&] { rows->MoveFirst(); }), 3219);
      rows->Requery();
      EXPECT_EQ(rows->value("B").toText(), "uno");
    } else {
      rows->MoveFirst();
      EXPECT_EQ(rows->value("B").toText(), "uno");
      rows->MoveLast();
      EXPECT_EQ(rows->value("a").toLong(), 3);
      EXPECT_EQ(rows->RecordCount(), 3);
      rows->MovePrevious();
      EXPECT_EQ(rows->value("a").toLong(), 2);
    }
    const auto none = db->OpenRecordset("SELECT * FROM vuota", type == dbOpenTable ? dbOpenDynaset : type);
    EXPECT_TRUE(none->BOF() && none->atEnd());
    rows->Close();
    EXPECT_EQ(errorOf([&] { rows->MoveFirst(); }), 3420);
    db->Close();
    EXPECT_EQ(errorOf([&] { none->MoveNext(); }), 3420);
  }
}

TEST_F(Recordsets, ADynasetChangesItsTable) {
  {
    const auto db = workspace.OpenDatabase(path, true);
    const auto rows = db->OpenRecordset("SELECT a, b FROM t ORDER BY a DESC", dbOpenDynaset);
    EXPECT_EQ(errorOf([&] { rows->Fields("b").setValue("x"); }), 3020);
    rows->Edit();
    rows->Fields("b").setValue("Forlì");
    rows->Update();
    EXPECT_EQ(rows->value("b").toText(), "Forlì");
    rows->MoveNext();
    rows->Delete();
    EXPECT_EQ(errorOf([&] { rows->Fields("a").Value(); }), 3167);
    rows->MoveNext();
    EXPECT_EQ(rows->value("a").toLong(), 1);
    EXPECT_EQ(rows->RecordCount(), 2);
    rows->AddNew();
    rows->Fields("a").setValue(std::int32_t{3});
    EXPECT_EQ(errorOf([&] { rows->Update(); }), 3022);
    rows->Fields("a").setValue(std::int32_t{9});
    rows->Update();
    rows->Requery();
    EXPECT_EQ(office::rows(*rows), "9|Null 3|Forlì 1|uno");
    db->Close();
  }
  EXPECT_EQ(office::query(path, "SELECT * FROM t ORDER BY a"), "1|uno|Vero 3|Forlì|Falso 9|Null|Falso");
  EXPECT_EQ(office::complaints(path), "");
}

TEST_F(Recordsets, ReadOnlyOnesRefuseChanges) {
  const auto db = workspace.OpenDatabase(path, false, true);
  EXPECT_EQ(errorOf([&] { db->OpenRecordset("SELECT * FROM t")->Edit(); }), 3027);
  EXPECT_EQ(errorOf([&] { db->OpenRecordset("t", dbOpenTable)->Delete(); }), 3027);
  EXPECT_EQ(errorOf([&] { db->Execute("DELETE * FROM t"); }), 3027);
  const auto writable = workspace.OpenDatabase(path);
  EXPECT_EQ(errorOf([&] { writable->OpenRecordset("SELECT * FROM t", dbOpenSnapshot)->AddNew(); }), 3251);
  EXPECT_EQ(errorOf([&] { writable->OpenRecordset("SELECT DISTINCT b FROM t")->AddNew(); }), 3027);
}

}  // namespace
}  // namespace jet::dao
