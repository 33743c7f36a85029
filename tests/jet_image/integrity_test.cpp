#include "desk.h"

namespace {

using desk::Cascades;
using desk::Desk;
using desk::relation;

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

}  // namespace
