#include "desk.h"

namespace {

using desk::Desk;

TEST(Statements, TablesAreLoadedAndAlteredWhileOthersAreBeingRead) {
  Desk desk({"CREATE TABLE a (n LONG)", "INSERT INTO a (n) VALUES (1)", "INSERT INTO a (n) VALUES (2)",
             "CREATE TABLE b (n LONG CONSTRAINT pk PRIMARY KEY)", "INSERT INTO b (n) VALUES (1)"});
  auto reading = desk.prepare("SELECT n FROM a ORDER BY n");
  ASSERT_TRUE(reading.step());
  EXPECT_EQ(desk.rows("SELECT * FROM b"), "1");
  EXPECT_EQ(desk.error("ALTER TABLE a ADD COLUMN m LONG"), 0);
  EXPECT_EQ(desk.error("ALTER TABLE b ADD COLUMN m LONG"), 0);
  EXPECT_EQ(desk.error("ALTER TABLE a ADD CONSTRAINT r FOREIGN KEY (m) REFERENCES b"), 0);
  EXPECT_EQ(desk.error("UPDATE a SET m = 7"), 3201);
  EXPECT_EQ(desk.error("CREATE TABLE c (n LONG)"), 0);
  ASSERT_TRUE(reading.step());
  EXPECT_EQ(reading.text(0), "2");
  EXPECT_FALSE(reading.step());
}

TEST(Statements, ARollbackTakesEveryDesignChangeBack) {
  Desk desk({"CREATE TABLE p (id LONG CONSTRAINT pk PRIMARY KEY, a TEXT(10))",
             "INSERT INTO p (id) VALUES (1)", "CREATE TABLE f (x LONG, y MEMO)",
             "INSERT INTO f (x, y) VALUES (1, 'prima')"});
  for (const bool loadedBefore : {false, true}) {
    SCOPED_TRACE(loadedBefore);
    if (loadedBefore) desk.run("UPDATE f SET x = 1 WHERE 1 = 0");
    auto& image = desk.image();
    image.begin();
    for (const char* sql : {"ALTER TABLE f ADD COLUMN z TEXT(10)",
                            "ALTER TABLE f ADD CONSTRAINT r FOREIGN KEY (x) REFERENCES p",
                            "ALTER TABLE f ALTER COLUMN y TEXT(50)", "ALTER TABLE p DROP COLUMN a",
                            "CREATE TABLE n (a COUNTER)", "INSERT INTO n (a) VALUES (1)",
                            "CREATE INDEX i ON f (z)", "UPDATE f SET z = 'zeta'"})
      EXPECT_EQ(desk.error(sql), 0) << sql;
    image.renameTable("f", "g");
    image.linkTable("l", {"\\manca.mdb", "t", ""});
    image.rollback();
    EXPECT_EQ(desk.rows("SELECT * FROM f"), "1|prima");
    EXPECT_EQ(desk.error("SELECT * FROM g"), 3078);
    EXPECT_EQ(desk.error("INSERT INTO f (x) VALUES (77)"), 0);
    EXPECT_EQ(desk.error("DELETE FROM f WHERE x = 77"), 0);
    EXPECT_EQ(desk.error("ALTER TABLE f ADD CONSTRAINT r FOREIGN KEY (x) REFERENCES p"), 0);
    desk.image().dropRelation("r");
    desk.reopen();
    EXPECT_EQ(desk.complaints("--strict --allow id-gap"), "");
    EXPECT_EQ(desk.rows("SELECT * FROM f"), "1|prima");
  }
}

TEST(Statements, BeyondMemoryOrLengthEndInANumberAndLeaveWhatWas) {
  Desk desk({"CREATE TABLE a (n LONG, m MEMO)", "INSERT INTO a VALUES (1, 'prima')"});
  auto& image = desk.image();
  image.begin();
  image.begin();
  desk.run("UPDATE a SET n = 2");
  const std::string grow = "UPDATE a SET m = String(400000, 'x') & String(400000, 'y')";
  sqlite3_limit(image.connection().handle(), SQLITE_LIMIT_LENGTH, 500000);
  EXPECT_EQ(desk.error(grow), 14);
  EXPECT_EQ(desk.rows("SELECT * FROM a"), "2|prima");
  sqlite3_limit(image.connection().handle(), SQLITE_LIMIT_LENGTH, 1000000);
  sqlite3_hard_heap_limit64(sqlite3_memory_used() + 300000);
  const int number = desk.error(grow);
  sqlite3_hard_heap_limit64(0);
  EXPECT_EQ(number, 7);
  image.rollback();
  image.rollback();
  EXPECT_EQ(desk.rows("SELECT * FROM a"), "1|prima");
  EXPECT_EQ(desk.error(grow), 0);
}

}  // namespace
