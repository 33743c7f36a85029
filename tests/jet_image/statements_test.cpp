#include "desk.h"

namespace {

using desk::Desk;

struct Step {
  const char* sql;
  int error = 0;
};

TEST(Statements, DesignARegisterAndKeepItThroughTheFile) {
  const Step steps[] = {
      {"CREATE TABLE albi (cd COUNTER CONSTRAINT pk PRIMARY KEY, nome TEXT(30) NOT NULL)"},
      {"CREATE TABLE iscritti (id LONG CONSTRAINT pk PRIMARY KEY, cd_albo LONG CONSTRAINT haAlbo REFERENCES "
       "albi (cd) ON DELETE CASCADE, capo LONG)"},
      {"INSERT INTO albi (nome) VALUES ('Primo')"},
      {"INSERT INTO albi (nome) VALUES ('Secondo')"},
      {"INSERT INTO iscritti (id, cd_albo) SELECT cd * 10, cd FROM albi"},
      {"INSERT INTO iscritti (id, cd_albo) VALUES (1, 3)", 3201},
      {"ALTER TABLE iscritti ADD CONSTRAINT haCapo FOREIGN KEY (capo) REFERENCES iscritti (id) ON UPDATE "
       "CASCADE"},
      {"ALTER TABLE iscritti ADD COLUMN quota CURRENCY"},
      {"UPDATE iscritti SET capo = 10, quota = 12.5"},
      {"UPDATE iscritti SET id = 11 WHERE id = 10"},
      {"ALTER TABLE iscritti ALTER COLUMN quota TEXT(20)"},
      {"ALTER TABLE iscritti ALTER COLUMN cd_albo TEXT(20)", 3303},
      {"ALTER TABLE iscritti DROP COLUMN capo", 3303},
      {"DROP TABLE albi", 3281},
      {"SELECT cd, nome & '!' AS grido, quota INTO copia FROM albi, iscritti WHERE cd = cd_albo"},
      {"SELECT * INTO copia FROM albi", 3010},
      {"DELETE FROM albi WHERE cd = 1", 3200},
      {"ALTER TABLE iscritti DROP CONSTRAINT haCapo"},
      {"DELETE FROM albi WHERE cd = 1"},
      {"ALTER TABLE iscritti DROP COLUMN capo"},
      {"ALTER TABLE iscritti ALTER quota SET DEFAULT 'dieci'"},
      {"ALTER TABLE iscritti ALTER capo DROP DEFAULT", 3381},
      {"INSERT INTO iscritti (id) VALUES (30)"},
      {"ALTER TABLE iscritti ALTER COLUMN quota DROP DEFAULT"},
      {"INSERT INTO iscritti (id) VALUES (31)"},
  };
  Desk desk({});
  std::vector<std::string> states;
  for (const Step& step : steps) {
    EXPECT_EQ(desk.error(step.sql), step.error) << step.sql;
    desk.reopen();
    states.push_back(desk.copy(std::to_string(states.size()) + ".mdb"));
  }
  EXPECT_EQ(desk::complaints(states), "");
  EXPECT_EQ(desk.rows("SELECT * FROM iscritti"), "20|2|12,5 30|Null|dieci 31|Null|Null");
  EXPECT_EQ(desk.rows("SELECT * FROM copia ORDER BY cd"), "1|Primo!|12,5 2|Secondo!|12,5");
  EXPECT_EQ(office::exported(desk.path(), "copia"),
            "cd,grido,quota\n1,\"Primo!\",\"12,5\"\n2,\"Secondo!\",\"12,5\"\n");
  const auto schema = support::runCommand("mdb-schema " + office::system(desk.path())).output;
  EXPECT_NE(schema.find("[nome]\t\t\tText (30) NOT NULL"), std::string::npos) << schema;
}

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
