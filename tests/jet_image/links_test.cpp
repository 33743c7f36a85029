#include "desk.h"

namespace {

using desk::Desk;

const std::vector<std::string> Others = {
    "CREATE TABLE voci (n LONG CONSTRAINT pk PRIMARY KEY, nome TEXT(20), note MEMO)",
    "INSERT INTO voci (n, nome, note) VALUES (1, 'Anna', 'è lunga')",
    "INSERT INTO voci (n, nome) VALUES (2, 'Bruno')",
};

TEST(Links, ReadTheirTableInTheOtherFileAndNeverChangeIt) {
  Desk desk({"CREATE TABLE qui (n LONG)", "INSERT INTO qui (n) VALUES (2)"});
  const std::string other = desk.path("altro.mdb");
  office::make(other, Others);
  desk.image().linkTable("collegata", {other, "VOCI", ""});
  EXPECT_EQ(office::errorOf([&] { desk.image().linkTable("Collegata", {other, "voci", ""}); }), 3012);
  desk.reopen();
  EXPECT_EQ(desk.complaints(), "");
  const auto page = desk.page("collegata");
  EXPECT_EQ(desk.image().link(page)->path, other);
  EXPECT_EQ(desk.image().link(page)->sourceTable, "VOCI");
  EXPECT_EQ(desk.rows("SELECT c.nome, c.note FROM qui INNER JOIN collegata AS c ON qui.n = c.n"),
            "Bruno|Null");
  EXPECT_EQ(desk.rows("SELECT * FROM collegata WHERE nome = 'anna'"), "1|Anna|è lunga");
  const auto before = platform::readWholeFile(other);
  EXPECT_EQ(desk.error("UPDATE collegata SET nome = 'x'"), 3027);
  EXPECT_EQ(desk.error("DELETE FROM collegata"), 3027);
  EXPECT_EQ(desk.error("CREATE INDEX i ON collegata (nome)"), 3057);
  EXPECT_EQ(desk.error("UPDATE qui SET n = 1"), 0);
  // What the other file has become is seen by the next statement.
  {
    jet::dao::Workspace workspace;
    const auto db = workspace.OpenDatabase(other, true);
    db->Execute("INSERT INTO voci (n, nome) VALUES (3, 'Carla')");
    db->Execute("ALTER TABLE voci ADD COLUMN anno LONG");
    db->Close();
  }
  EXPECT_EQ(desk.rows("SELECT Max(n) FROM collegata"), "3");
  EXPECT_EQ(desk.rows("SELECT * FROM collegata WHERE nome = 'anna'"), "1|Anna|è lunga|Null");
  desk.compact();
  EXPECT_EQ(desk.complaints(), "");
  EXPECT_EQ(desk.rows("SELECT Count(*) FROM collegata"), "3");
  desk.image().renameTable("collegata", "vicina");
  desk.reopen();
  EXPECT_EQ(desk.rows("SELECT Count(*) FROM vicina"), "3");
  desk.run("DROP TABLE vicina");
  desk.reopen();
  EXPECT_EQ(desk.complaints(), "");
  EXPECT_EQ(desk.error("UPDATE vicina SET n = 1"), 3078);
  EXPECT_EQ(office::query(other, "SELECT Count(*) FROM voci"), "3");
}

TEST(Links, OnesThatLeadNowhereFailWhenUsed) {
  Desk desk({"CREATE TABLE qui (n LONG)"});
  const std::string other = desk.path("altro.mdb");
  office::make(other, Others);
  platform::writeWholeFile(desk.path("testo.mdb"), "nessun database");
  const std::pair<jet::image::Link, int> links[] = {
      {{other, "manca", ""}, 3011},
      {{desk.path("manca.mdb"), "voci", ""}, 3024},
      {{desk.path("manca\\altro.mdb"), "voci", ""}, 3044},
      {{"C:\\Dati\\altro.mdb", "voci", ""}, 3044},
      {{desk.path("testo.mdb"), "voci", ""}, 3343},
      {{"", "voci", "ODBC;DSN=x"}, 3170},
  };
  std::size_t number = 0;
  for (const auto& [link, error] : links) {
    const auto name = "l" + std::to_string(number++);
    desk.image().linkTable(name, link);
    EXPECT_EQ(office::errorOf([&] { desk.rows("SELECT * FROM " + name); }), error) << link.path;
    EXPECT_EQ(desk.error("DELETE FROM " + name), error) << link.path;
  }
  desk.reopen();
  EXPECT_EQ(desk.complaints(), "");
  EXPECT_EQ(desk.error("INSERT INTO qui (n) VALUES (1)"), 0);
  for (std::size_t i = 0; i < number; ++i) EXPECT_EQ(desk.error("DROP TABLE l" + std::to_string(i)), 0);
  desk.reopen();
  EXPECT_EQ(desk.complaints(), "");
}

}  // namespace
