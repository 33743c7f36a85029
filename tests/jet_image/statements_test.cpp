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

}  // namespace
