#include <functional>

#include "desk.h"
#include "platform/files.h"

namespace {

using desk::Desk;
using desk::relation;
using jet::image::RelationDesign;

const std::vector<std::string> Tables = {
    "CREATE TABLE p (id LONG CONSTRAINT pk PRIMARY KEY, a LONG, b TEXT(10), n DECIMAL(8, 2))",
    "CREATE UNIQUE INDEX ab ON p (a, b)",
    "CREATE TABLE f (x LONG, y TEXT(10), d DOUBLE, n DECIMAL(8, 2))",
    "CREATE INDEX perX ON f (x)",
    "CREATE TABLE vuota (x LONG)",
    "CREATE INDEX occupato ON vuota (x)",
    "INSERT INTO p (id, a, b) VALUES (1, 1, 'uno')",
    "INSERT INTO f (x, y) VALUES (1, 'UNO')",
    "INSERT INTO f (x, y) VALUES (2, 'due')",
};

std::string show(const std::vector<RelationDesign>& relations) {
  std::string text;
  for (const auto& r : relations) {
    text += (text.empty() ? "" : "; ") + r.name + " " + r.table + ">" + r.foreignTable + " " +
            std::to_string(r.attributes);
    for (const auto& pair : r.pairs) text += " " + pair.column + "=" + pair.foreignColumn;
  }
  return text;
}

TEST(Relations, ThoseThatCannotStandAreRefusedAndLeaveNothing) {
  Desk desk(Tables);
  desk.image().createRelation(relation("libera", "p", "f", {{"id", "x"}}, RelationDesign::DontEnforce));
  desk.reopen();
  const auto before = platform::readWholeFile(desk.path());
  const std::pair<RelationDesign, int> refused[] = {
      {relation("r", "manca", "f", {{"id", "x"}}), 3078},
      {relation("r", "p", "manca", {{"id", "x"}}), 3078},
      {relation("r", "p", "f", {{"manca", "x"}}), 3265},
      {relation("r", "p", "f", {{"id", "manca"}}), 3265},
      {relation("r", "p", "f", {}), 3366},
      {relation("r", "p", "f", {{"id", "y"}}), 3368},
      {relation("r", "p", "f", {{"id", "d"}}), 3368},
      {relation("r", "p", "f", {{"a", "x"}}), 3609},
      {relation("r", "p", "f", {{"id", "x"}, {"b", "y"}}), 3609},
      {relation("r", "p", "f", {{"id", "x"}}), 3201},
      {relation("r", "p", "f", {{"a", "x"}, {"b", "y"}}), 3201},
      {relation("LIBERA", "p", "f", {{"id", "x"}}), 3012},
      {relation("occupato", "p", "vuota", {{"id", "x"}}), 3284},
      {relation("r.s", "p", "vuota", {{"id", "x"}}), 3125},
      {relation("r", "p", "MSysObjects", {{"id", "Id"}}), 3111},
  };
  for (const auto& [design, error] : refused)
    EXPECT_EQ(office::errorOf([&, &wanted = design] { desk.image().createRelation(wanted); }), error)
        << show({design});
  EXPECT_EQ(office::errorOf([&] { desk.image().dropRelation("r"); }), 3265);
  desk.reopen();
  EXPECT_EQ(platform::readWholeFile(desk.path()), before);
}

TEST(Relations, ComeBackFromTheFileAndGoWithoutATrace) {
  Desk desk(Tables);
  desk.run("DELETE FROM f WHERE x = 2");
  desk.reopen();
  const auto catalogue = office::exported(desk.path(), "MSysRelationships");
  const RelationDesign made[] = {
      relation("perDue", "p", "f", {{"a", "x"}, {"b", "y"}}, RelationDesign::UpdateCascade),
      relation("perUno", "p", "f", {{"id", "x"}}, RelationDesign::DeleteCascade | RelationDesign::LeftJoin),
      relation("libera", "p", "f", {{"n", "n"}}, RelationDesign::DontEnforce | RelationDesign::RightJoin),
      relation("stessa", "p", "p", {{"id", "a"}}, RelationDesign::Unique),
  };
  std::string expected;
  for (const auto& design : made) {
    desk.image().createRelation(design);
    expected += (expected.empty() ? "" : "; ") + show({design});
    desk.reopen();
  }
  EXPECT_EQ(show(desk.image().relations()), expected);
  // The relation over x shares the index that was there; the others have foreign indexes of their own.
  EXPECT_EQ(desk.image().definition("f")->realIndexes.size(), 2u);
  EXPECT_EQ(desk.image().definition("p")->realIndexes.size(), 3u);
  const auto theirs = office::exported(desk.path(), "MSysRelationships");
  EXPECT_NE(theirs.find("\"perDue\",256,2,1,\"f\",\"y\",\"p\",\"b\""), std::string::npos) << theirs;

  desk.compact();
  EXPECT_EQ(desk.complaints(), "");
  EXPECT_EQ(show(desk.image().relations()), expected);
  for (const char* name : {"perDue", "stessa", "PERUNO", "libera"}) {
    desk.image().dropRelation(name);
    desk.reopen();
    // The number of a relation that is gone is not given out again.
    EXPECT_EQ(desk.complaints("--strict --allow id-gap"), "") << name;
  }
  EXPECT_EQ(office::exported(desk.path(), "MSysRelationships"), catalogue);
  EXPECT_EQ(desk.image().definition("f")->realIndexes.size(), 1u);
  EXPECT_EQ(desk.image().definition("p")->logicalIndexes.size(), 2u);
}

TEST(Relations, HoldWhatTheyStandOn) {
  Desk desk(Tables);
  desk.run("DELETE FROM f");
  auto& image = desk.image();
  const auto f = desk.page("f"), p = desk.page("p");
  image.createRelation(relation("una", "p", "f", {{"id", "x"}}));
  image.createRelation(relation("altra", "p", "vuota", {{"a", "x"}}, RelationDesign::DontEnforce));
  const std::pair<int, std::function<void()>> refused[] = {{3281, [&] { image.dropTable("p"); }},
                                                           {3281, [&] { image.dropTable("f"); }},
                                                           {3281, [&] { image.dropTable("vuota"); }},
                                                           {3281, [&] { image.dropIndex("p", "pk"); }},
                                                           {3281, [&] { image.dropIndex("f", "una"); }},
                                                           {3303, [&] { image.dropColumn(p, "id"); }},
                                                           {3303, [&] { image.dropColumn(f, "x"); }},
                                                           {3303, [&] { image.dropColumn(p, "a"); }},
                                                           {3303, [&] { image.replaceColumn(f, "x", "d"); }}};
  for (const auto& [error, change] : refused) EXPECT_EQ(office::errorOf(change), error);
  // The plain index of the foreign side may go: the relation keeps the tree.
  image.dropIndex("f", "perX");
  image.renameColumn(f, "x", "nuovo");
  image.renameColumn(p, "id", "chiave");
  image.renameTable("p", "padri");
  image.renameTable("f", "figli");
  EXPECT_EQ(show(image.relations()), "una padri>figli 0 chiave=nuovo; altra padri>vuota 2 a=x");
  EXPECT_EQ(desk.error("INSERT INTO figli (nuovo) VALUES (8)"), 3201);
  desk.reopen();
  EXPECT_EQ(desk.complaints(), "");
  EXPECT_EQ(show(desk.image().relations()), "una padri>figli 0 chiave=nuovo; altra padri>vuota 2 a=x");
  EXPECT_EQ(desk.error("INSERT INTO figli (nuovo) VALUES (8)"), 3201);
  desk.image().dropRelation("una");
  desk.image().dropRelation("altra");
  desk.image().dropTable("padri");
  desk.reopen();
  EXPECT_EQ(desk.complaints(), "");
}

}  // namespace
