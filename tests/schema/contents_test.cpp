// Stored queries and reference tables: what a target has of them after an update.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "study.h"
#include "support/disk_faults.h"

namespace {

using study::Statements;
using study::Study;
using testing::HasSubstr;

struct ContentsCase {
  const char* name;
  Statements reference, target;
  std::string summary;  // behind "Aggiungo le query..."
  std::string plan;     // with its status
  std::string file;
};

const std::string Codes = "CREATE TABLE codici (c LONG CONSTRAINT PK PRIMARY KEY, d TEXT(9))";
const std::string None = "fatto!\n\nAggiornamento tabelle...";

Statements reference(const std::string& table, const Statements& rows) {
  Statements made = {"CREATE TABLE " + table + " (c LONG, d TEXT(9))"};
  for (const std::string& row : rows) made.push_back("INSERT INTO " + table + " VALUES (" + row + ")");
  return made;
}

Statements target(const Statements& rows) {
  Statements made = {Codes};
  for (const std::string& row : rows) made.push_back("INSERT INTO codici VALUES (" + row + ")");
  return made;
}

std::string parameter(const std::string& name, const std::string& value) {
  return "INSERT INTO KepGenerali VALUES ('" + name + "', " + value + ")";
}

using study::operator+;

// clang-format off
const ContentsCase Cases[] = {
    {"rows are replaced", reference("ADD_codici", {"1, 'a'", "2, 'b'"}), target({"2, 'x'", "3, 'y'"}),
     None + "\n- tabella codici  fatto.", "3\n- tabella codici\n", "codici(c 4, d 10(9)) PK[PU c] : 1,a / 2,b\n"},
    {"rows that are there already", reference("add_codici", {"1, 'a'", "2, 'b'"}), target({"2, 'b'", "1, 'a'"}),
     None + "\n- tabella codici  fatto.", "0\n", "codici(c 4, d 10(9)) PK[PU c] : 1,a / 2,b\n"},
    {"none empties the table", reference("ADD_codici", {}), target({"2, 'x'"}), None + "\n- tabella codici  fatto.",
     "3\n- tabella codici\n", "codici(c 4, d 10(9)) PK[PU c]\n"},
    {"rows are added where the key allows", reference("INS_codici", {"1, 'a'", "2, 'b'", "2, 'c'"}), target({"2, 'x'"}),
     None + "\n- tabella codici  fatto.", "3\n- tabella codici\n", "codici(c 4, d 10(9)) PK[PU c] : 2,x / 1,a\n"},
    {"first replaced, then added", reference("INS_codici", {"3, 'c'"}) + reference("ADD_codici", {"1, 'a'"}), target({"2, 'x'"}),
     None + "\n- tabella codici  fatto.\n- tabella codici  fatto.", "3\n- tabella codici\n- tabella codici\n",
     "codici(c 4, d 10(9)) PK[PU c] : 1,a / 3,c\n"},
    {"switched off", reference("ADD_codici", {"1, 'a'"}) + reference("INS_codici", {"1, 'a'"}),
     target({"2, 'x'"}) + Statements{parameter("add_CODICI", "'0'"), parameter("INS_codici", "NULL")},
     None + "\n- tabella codici  saltato (impostazione database).\n- tabella codici  saltato (impostazione database).", "0\n",
     "codici(c 4, d 10(9)) PK[PU c] : 2,x\n"},
    {"00 is not 0", reference("ADD_codici", {"1, 'a'"}), target({"2, 'x'"}) + Statements{parameter("ADD_codici", "'00'")},
     None + "\n- tabella codici  fatto.", "3\n- tabella codici\n", "codici(c 4, d 10(9)) PK[PU c] : 1,a\n"},
    {"names with a blank, and the tables after them",
     Statements{"CREATE TABLE [ADD_due parole] (c LONG)", "INSERT INTO [ADD_due parole] VALUES (1)", "CREATE TABLE [INS_due parole] (c LONG)",
                "INSERT INTO [INS_due parole] VALUES (2)"} +
         reference("ADD_codici", {"1, 'a'"}),
     Statements{"CREATE TABLE [due parole] (c LONG CONSTRAINT PK PRIMARY KEY)", "INSERT INTO [due parole] VALUES (9)"} + target({"2, 'x'"}),
     None + "\n- tabella due parole  fatto.\n- tabella codici  fatto.\n- tabella due parole  fatto.",
     "3\n- tabella due parole\n- tabella codici\n- tabella due parole\n",
     "due parole(c 4) PK[PU c] : 1 / 2\ncodici(c 4, d 10(9)) PK[PU c] : 1,a\n"},
    {"no such table", reference("ADD_codici", {"1, 'a'"}) + reference("INS_altri", {"1, 'a'"}), {},
     None + "\n- tabella codici  non necessario.\n- tabella altri  non presente nel database.", "0\n", ""},
    {"a left-over link is made anew", reference("ADD_codici", {"1, 'a'"}),
     target({"2, 'x'"}) + Statements{"CREATE TABLE linkcodici (z LONG)"}, None + "\n- tabella codici  fatto.", "3\n- tabella codici\n",
     "codici(c 4, d 10(9)) PK[PU c] : 1,a\n"},
    {"rows that don't fit leave the table, and end the procedure alone",
     Statements{"CREATE TABLE ADD_codici (c LONG, z LONG)", "INSERT INTO ADD_codici VALUES (1, 1)"} + reference("ADD_dopo", {"1, 'a'"}) +
         reference("INS_dopo", {"1, 'a'"}),
     target({"2, 'x'"}) + Statements{"CREATE TABLE dopo (c LONG CONSTRAINT PK PRIMARY KEY, d TEXT(9))"}, None + "\n- tabella codici  \n- tabella dopo  fatto.",
     "3\n- tabella dopo\n", "codici(c 4, d 10(9)) PK[PU c] : 2,x\ndopo(c 4, d 10(9)) PK[PU c] : 1,a\n"},
};
// clang-format on

TEST(Contents, ComeFromTheReference) {
  for (const ContentsCase& test : Cases) {
    SCOPED_TRACE(test.name);
    Study study(test.reference, test.target);
    const std::string before = study.bytes();
    EXPECT_EQ(study.plan(), test.plan);
    EXPECT_EQ(study.bytes(), before);
    for (int round = 0; round < 2; ++round) {
      const auto update = study.update();
      EXPECT_EQ(update.status, console::Done) << update.errors;
      EXPECT_EQ(update.contents, test.summary);
      // A link to the reference that an error has left is taken away by the next update that gets there.
      std::string file = study::described(study.office.target);
      if (const auto link = file.find("linkcodici("); link != std::string::npos)
        file.erase(link, file.find('\n', link) + 1 - link);
      EXPECT_EQ(file, test.file);
    }
    EXPECT_EQ(study.faults(), "");
  }
}

/// The reference, open already, can't be opened a second time.
class UnreadableLink : public platform::DiskObserver {
 public:
  void before(const platform::DiskCall& call) override {
    if (call.operation == platform::DiskOperation::Open && call.path.ends_with("AggNorvo.mdb") &&
        opened_++ > 0)
      throw platform::DiskError(platform::DiskFault::Io, call.path);
  }

 private:
  int opened_ = 0;
  support::ObservedDisk scope_{*this};
};

TEST(Contents, ThatCanNotBeReadAreNoSuccess) {
  Study study(reference("ADD_codici", {"1, 'a'"}), target({"2, 'x'"}));
  EXPECT_THAT((UnreadableLink(), study.plan()),
              testing::MatchesRegex("1\nErrore tralasciato: errore 3043: [^\n]+ - tabella codici\n"));
  const UnreadableLink fault;
  const auto update = study.update();
  EXPECT_EQ(update.status, console::FailedChanged);
  EXPECT_EQ(update.contents, None + "\n- tabella codici  ");
  EXPECT_THAT(study::described(study.office.target), HasSubstr("codici(c 4, d 10(9)) PK[PU c] : 2,x\n"));
}

/// Stores queries in a file.
void store(const std::string& path, const std::vector<std::pair<const char*, const char*>>& queries) {
  const auto db = jet::dao::DBEngine::OpenDatabase(path, true);
  for (const auto& [name, sql] : queries) db->CreateQueryDef(name, sql);
  db->Close();
}

TEST(Queries, AreCopiedByNameAndOthersStay) {
  Study study({}, {"CREATE TABLE t (a LONG)"});
  store(study.office.program + "\\AggNorvo.mdb",
        {{"prima", "SELECT a FROM t;"}, {"seconda", "SELECT x FROM manca;"}, {"uguale", "SELECT 1;"}});
  store(study.office.target, {{"PRIMA", "DELETE * FROM t;"}, {"mia", "SELECT 2;"}, {"uguale", "SELECT 1;"}});
  EXPECT_EQ(study.plan(), "3\nAggiungo le query...prima\nAggiungo le query...seconda\n");
  EXPECT_EQ(study.update().contents, None);
  const std::string file = study::described(study.office.target);
  EXPECT_THAT(file, HasSubstr("PRIMA = SELECT a\r\nFROM t;"));
  EXPECT_THAT(file, HasSubstr("seconda = SELECT x\r\nFROM manca;"));
  EXPECT_THAT(file, HasSubstr("mia = SELECT 2"));
  EXPECT_EQ(study.plan(), "0\n");
  EXPECT_EQ(study.faults(), "");
}

TEST(Queries, StopAtAnErrorAndTheUpdateGoesOn) {
  Study study(reference("ADD_codici", {"1, 'a'"}), target({}));
  store(study.office.program + "\\AggNorvo.mdb",
        {{"a", "SELECT 1;"}, {"codici", "SELECT 2;"}, {"z", "SELECT 3;"}});
  EXPECT_THAT(study.plan(), HasSubstr("3\nAggiungo le query...a\n- tabella codici\n- errore 3012 durante"));
  const auto update = study.update();
  EXPECT_EQ(update.status, console::Done);
  EXPECT_THAT(update.contents, testing::MatchesRegex("\n- errore 3012 durante la creazione query codici\n"
                                                     "[^\n]+fatto!\n\nAggiornamento tabelle...\n"
                                                     "- tabella codici  fatto."));
  EXPECT_EQ(study::described(study.office.target).find("z = "), std::string::npos);
}

}  // namespace
