#include "desk.h"

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
  for (const Change& change : changes) {
    SCOPED_TRACE(std::to_string(change.attributes) + " " + change.sql);
    Desk desk(Members);
    desk.image().createRelation(relation("tiene", "SOCI", "Quote", {{"ID", "Socio"}}, change.attributes));
    desk.reopen();
    EXPECT_EQ(desk.error(change.sql), change.error);
    // What came of it counts in the file, and what cascades changed reaches it too.
    desk.reopen();
    EXPECT_EQ(desk.complaints(), "");
    EXPECT_EQ(desk.rows("SELECT * FROM soci ORDER BY id"), change.members);
    EXPECT_EQ(desk.rows("SELECT * FROM quote ORDER BY n"), change.payments);
  }
}

}  // namespace
