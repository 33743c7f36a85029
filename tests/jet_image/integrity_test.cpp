#include "desk.h"
#include "platform/files.h"

namespace {

using desk::Desk;
using desk::relation;
using jet::image::RelationDesign;

constexpr std::uint32_t Cascades = RelationDesign::UpdateCascade | RelationDesign::DeleteCascade;

/// Members and their payments; payment 4 has no member.
const std::vector<std::string> Members = {
    "CREATE TABLE soci (id LONG CONSTRAINT pk PRIMARY KEY, nome TEXT(20))",
    "CREATE TABLE quote (n COUNTER CONSTRAINT pk PRIMARY KEY, socio LONG, euro LONG)",
    "INSERT INTO soci (id, nome) VALUES (1, 'Anna')",
    "INSERT INTO soci (id, nome) VALUES (2, 'Bruno')",
    "INSERT INTO soci (id, nome) VALUES (3, 'Carla')",
    "INSERT INTO quote (socio, euro) VALUES (1, 10)",
    "INSERT INTO quote (socio, euro) VALUES (1, 20)",
    "INSERT INTO quote (socio, euro) VALUES (2, 30)",
    "INSERT INTO quote (euro) VALUES (40)",
};
constexpr char MembersAtFirst[] = "1|Anna 2|Bruno 3|Carla";
constexpr char PaymentsAtFirst[] = "1|1|10 2|1|20 3|2|30 4|Null|40";

struct Change {
  std::uint32_t attributes;
  const char* sql;
  int error;
  const char* members;
  const char* payments;
};

TEST(Integrity, ChangesKeepPartnersOrCarryThemAlong) {
  constexpr std::uint32_t None = RelationDesign::DontEnforce;
  const Change changes[] = {
      {0, "INSERT INTO quote (socio, euro) VALUES (9, 1)", 3201, MembersAtFirst, PaymentsAtFirst},
      {0, "INSERT INTO quote (socio, euro) VALUES (3, 1)", 0, MembersAtFirst,
       "1|1|10 2|1|20 3|2|30 4|Null|40 5|3|1"},
      {0, "INSERT INTO quote (euro) VALUES (1)", 0, MembersAtFirst,
       "1|1|10 2|1|20 3|2|30 4|Null|40 5|Null|1"},
      {0, "UPDATE quote SET socio = 9 WHERE n = 3", 3201, MembersAtFirst, PaymentsAtFirst},
      {0, "UPDATE quote SET socio = n", 3201, MembersAtFirst, PaymentsAtFirst},
      {0, "UPDATE quote SET socio = NULL WHERE n = 3", 0, MembersAtFirst,
       "1|1|10 2|1|20 3|Null|30 4|Null|40"},
      {0, "UPDATE quote SET socio = 3 WHERE n = 4", 0, MembersAtFirst, "1|1|10 2|1|20 3|2|30 4|3|40"},
      {0, "DELETE FROM soci WHERE id = 1", 3200, MembersAtFirst, PaymentsAtFirst},
      {0, "DELETE FROM soci WHERE id = 3", 0, "1|Anna 2|Bruno", PaymentsAtFirst},
      {0, "DELETE FROM soci", 3200, MembersAtFirst, PaymentsAtFirst},
      {0, "UPDATE soci SET id = 7 WHERE id = 2", 3200, MembersAtFirst, PaymentsAtFirst},
      {0, "UPDATE soci SET id = 7 WHERE id = 3", 0, "1|Anna 2|Bruno 7|Carla", PaymentsAtFirst},
      {0, "UPDATE soci SET id = id, nome = 'X' WHERE id = 2", 0, "1|Anna 2|X 3|Carla", PaymentsAtFirst},
      {RelationDesign::DeleteCascade, "DELETE FROM soci WHERE id = 1", 0, "2|Bruno 3|Carla",
       "3|2|30 4|Null|40"},
      {RelationDesign::DeleteCascade, "UPDATE soci SET id = 7 WHERE id = 2", 3200, MembersAtFirst,
       PaymentsAtFirst},
      {RelationDesign::UpdateCascade, "UPDATE soci SET id = id + 100", 0, "101|Anna 102|Bruno 103|Carla",
       "1|101|10 2|101|20 3|102|30 4|Null|40"},
      {RelationDesign::UpdateCascade, "DELETE FROM soci WHERE id = 2", 3200, MembersAtFirst, PaymentsAtFirst},
      {Cascades, "UPDATE soci SET id = 2 WHERE id = 1", 3022, MembersAtFirst, PaymentsAtFirst},
      {Cascades, "DELETE FROM soci", 0, "", "4|Null|40"},
      {Cascades, "INSERT INTO quote (socio, euro) VALUES (9, 1)", 3201, MembersAtFirst, PaymentsAtFirst},
      {None, "DELETE FROM soci WHERE id = 1", 0, "2|Bruno 3|Carla", PaymentsAtFirst},
      {None, "INSERT INTO quote (socio, euro) VALUES (9, 1)", 0, MembersAtFirst,
       "1|1|10 2|1|20 3|2|30 4|Null|40 5|9|1"},
      {None, "UPDATE soci SET id = 7 WHERE id = 2", 0, "1|Anna 3|Carla 7|Bruno", PaymentsAtFirst},
  };
  std::vector<std::unique_ptr<Desk>> desks;
  std::vector<std::string> paths;
  for (const Change& change : changes) {
    SCOPED_TRACE(std::to_string(change.attributes) + " " + change.sql);
    Desk& desk = *desks.emplace_back(std::make_unique<Desk>(Members));
    paths.push_back(desk.path());
    desk.image().createRelation(relation("tiene", "SOCI", "Quote", {{"ID", "Socio"}}, change.attributes));
    desk.reopen();
    EXPECT_EQ(desk.error(change.sql), change.error);
    // What came of it counts in the file, and what cascades changed reaches it too.
    desk.reopen();
    EXPECT_EQ(desk.rows("SELECT * FROM soci ORDER BY id"), change.members);
    EXPECT_EQ(desk.rows("SELECT * FROM quote ORDER BY n"), change.payments);
  }
  EXPECT_EQ(desk::complaints(paths), "");
}

TEST(Integrity, CascadesRunThroughSeveralLevelsAndCountOnce) {
  Desk desk({"CREATE TABLE a (id TEXT(10) CONSTRAINT pk PRIMARY KEY)",
             "CREATE TABLE b (id LONG CONSTRAINT pk PRIMARY KEY, a TEXT(10))",
             "CREATE TABLE c (b LONG, a TEXT(10))", "CREATE TABLE d (a TEXT(10) CONSTRAINT u UNIQUE)",
             "INSERT INTO a (id) VALUES ('Uno')", "INSERT INTO a (id) VALUES ('Due')",
             "INSERT INTO b (id, a) VALUES (1, 'uno')", "INSERT INTO b (id, a) VALUES (2, 'DUE')",
             "INSERT INTO c (b, a) VALUES (1, 'due')", "INSERT INTO c (b) VALUES (2)",
             "INSERT INTO d (a) VALUES ('UNO')"});
  auto& image = desk.image();
  image.createRelation(relation("ab", "a", "b", {{"id", "a"}}, Cascades));
  image.createRelation(relation("bc", "b", "c", {{"id", "b"}}, Cascades));
  image.createRelation(relation("ad", "a", "d", {{"id", "a"}}, RelationDesign::UpdateCascade));
  desk.reopen();
  // Case makes no difference between partners, nor is a change of it one of the key.
  EXPECT_EQ(desk.run("UPDATE a SET id = 'DUE' WHERE id = 'due'"), 1);
  EXPECT_EQ(desk.rows("SELECT a FROM b WHERE id = 2"), "DUE");
  EXPECT_EQ(desk.run("UPDATE a SET id = 'Tre' WHERE id = 'uno'"), 1);
  EXPECT_EQ(desk.rows("SELECT b.a, d.a FROM b, d WHERE b.id = 1"), "Tre|Tre");
  EXPECT_EQ(desk.run("DELETE FROM a WHERE id = 'due'"), 1);
  EXPECT_EQ(desk.rows("SELECT * FROM b"), "1|Tre");
  EXPECT_EQ(desk.rows("SELECT * FROM c"), "1|due");
  // A table at the end of a chain refuses for all of it.
  EXPECT_EQ(desk.error("DELETE FROM a"), 3200);
  EXPECT_EQ(desk.rows("SELECT * FROM c"), "1|due");
  desk.reopen();
  EXPECT_EQ(desk.rows("SELECT * FROM b"), "1|Tre");
  EXPECT_EQ(desk.complaints(), "");
}

TEST(Integrity, ATableMayPointAtItself) {
  Desk desk({"CREATE TABLE t (id LONG CONSTRAINT pk PRIMARY KEY, capo LONG)",
             "INSERT INTO t (id, capo) VALUES (1, 1)", "INSERT INTO t (id, capo) VALUES (2, 1)",
             "INSERT INTO t (id, capo) VALUES (3, 2)", "INSERT INTO t (id) VALUES (4)"});
  desk.image().createRelation(relation("capi", "t", "t", {{"id", "capo"}}, Cascades));
  desk.reopen();
  EXPECT_EQ(desk.complaints(), "");
  EXPECT_EQ(desk.error("INSERT INTO t (id, capo) VALUES (5, 5)"), 0);
  EXPECT_EQ(desk.error("INSERT INTO t (id, capo) VALUES (6, 7)"), 3201);
  EXPECT_EQ(desk.run("UPDATE t SET id = 20 WHERE id = 2"), 1);
  EXPECT_EQ(desk.rows("SELECT * FROM t ORDER BY id"), "1|1 3|20 4|Null 5|5 20|1");
  EXPECT_EQ(desk.run("DELETE FROM t WHERE id = 1"), 1);
  desk.reopen();
  EXPECT_EQ(desk.rows("SELECT * FROM t ORDER BY id"), "4|Null 5|5");
  EXPECT_EQ(desk.complaints(), "");
}

TEST(Integrity, ARelationOverTwoColumnsTakesThemTogether) {
  Desk desk({"CREATE TABLE p (a LONG, b TEXT(5), c LONG, CONSTRAINT pk PRIMARY KEY (a, b))",
             "CREATE TABLE f (n LONG, x LONG, y TEXT(5))", "INSERT INTO p (a, b) VALUES (1, 'x')",
             "INSERT INTO p (a, b) VALUES (2, 'y')", "INSERT INTO f (n, x, y) VALUES (1, 1, 'X')",
             "INSERT INTO f (n, x) VALUES (2, 9)"});
  desk.image().createRelation(
      relation("pf", "p", "f", {{"a", "x"}, {"b", "y"}}, RelationDesign::UpdateCascade));
  desk.reopen();
  EXPECT_EQ(desk.complaints(), "");
  const std::pair<const char*, int> statements[] = {
      {"INSERT INTO f (n, x, y) VALUES (3, 1, 'y')", 3201},
      {"INSERT INTO f (n, x, y) VALUES (3, 2, 'y')", 0},
      {"INSERT INTO f (n, y) VALUES (4, 'z')", 0},
      {"UPDATE f SET x = 1 WHERE n = 4", 3201},
      {"UPDATE f SET x = 1, y = 'x' WHERE n = 4", 0},
      {"UPDATE f SET y = 'y' WHERE n = 2", 3201},
      {"UPDATE p SET c = 1", 0},
      {"UPDATE p SET b = 'zz' WHERE a = 1", 0},
      {"DELETE FROM p WHERE a = 1", 3200},
  };
  for (const auto& [sql, error] : statements) EXPECT_EQ(desk.error(sql), error) << sql;
  EXPECT_EQ(desk.rows("SELECT * FROM f ORDER BY n"), "1|1|zz 2|9|Null 3|2|y 4|1|zz");
  desk.reopen();
  EXPECT_EQ(desk.complaints(), "");
}

TEST(Integrity, OnlyTheTablesThatAChangeCanMeetAreLoaded) {
  const std::pair<const char*, const char*> cases[] = {
      {"INSERT INTO soci (id, nome) VALUES (9, 'x')", "soci"},
      {"UPDATE soci SET nome = 'x'", "soci"},
      {"UPDATE soci SET id = 9 WHERE id = 3", "soci quote"},
      {"DELETE FROM soci WHERE id = 3", "soci quote"},
      {"DELETE FROM quote", "quote"},
      {"UPDATE quote SET euro = 1", "quote"},
      {"UPDATE quote SET socio = 1", "soci quote"},
      {"INSERT INTO quote (socio) VALUES (1)", "soci quote"},
      {"SELECT * FROM soci", "soci"},
  };
  Desk desk(Members);
  desk.image().createRelation(relation("tiene", "soci", "quote", {{"id", "socio"}}, Cascades));
  desk.reopen();
  for (const auto& [sql, loaded] : cases) {
    desk.abandon();
    if (std::string_view(sql).starts_with("SELECT"))
      desk.rows(sql);
    else
      EXPECT_EQ(desk.error(sql), 0) << sql;
    EXPECT_EQ(desk.loaded(), loaded) << sql;
  }
}

TEST(Integrity, ARefusedCascadeAndARollbackLeaveTheFileAlone) {
  Desk desk(Members);
  desk.image().createRelation(relation("tiene", "soci", "quote", {{"id", "socio"}}, Cascades));
  desk.reopen();
  const auto before = platform::readWholeFile(desk.path());
  desk.image().begin();
  EXPECT_EQ(desk.run("DELETE FROM soci WHERE id = 1"), 1);
  desk.image().dropRelation("tiene");
  EXPECT_EQ(desk.error("INSERT INTO quote (socio) VALUES (77)"), 0);
  desk.image().rollback();
  EXPECT_EQ(desk.error("INSERT INTO quote (socio) VALUES (77)"), 3201);
  EXPECT_EQ(desk.error("UPDATE soci SET id = 2 WHERE id = 1"), 3022);
  desk.reopen();
  EXPECT_EQ(platform::readWholeFile(desk.path()), before);
}

}  // namespace
