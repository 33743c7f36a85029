// How rows come into the image and go again, and when what was prepared for a design holds no longer.
#include "desk.h"
#include "support/case_file.h"

namespace {

using desk::Desk;
using jet::image::Prepared;

std::vector<std::string> tables() {
  std::vector<std::string> statements = {
      "CREATE TABLE soci (id LONG CONSTRAINT pk PRIMARY KEY, nome TEXT(20))",
      "CREATE TABLE quote (n COUNTER CONSTRAINT pk PRIMARY KEY, socio LONG)",
      "CREATE TABLE conto (a LONG, t TEXT(5))",
      "CREATE INDEX ia ON conto (a)",
      "CREATE TABLE grande (n LONG)",
      "CREATE TABLE peso (id LONG CONSTRAINT pk PRIMARY KEY, nota TEXT(5))",
      "INSERT INTO soci (id, nome) VALUES (1, 'Anna')",
      "INSERT INTO soci (id, nome) VALUES (2, 'Bruno')",
      "INSERT INTO quote (socio) VALUES (1)",
      "INSERT INTO conto (a) VALUES (1)",
      "INSERT INTO grande (n) VALUES (1)",
      "INSERT INTO peso (id) VALUES (1)",
  };
  for (int rows = 1; rows < 4096; rows *= 2)
    statements.emplace_back("INSERT INTO grande SELECT n FROM grande");
  return statements;
}

std::string stateOf(const jet::image::Table& table) {
  constexpr const char* states[] = {"InFile", "Scanned", "Empty", "EmptyScanned", "Loaded", "Constrained"};
  constexpr const char* unsaved[] = {"", " Design", " Rows", " Table"};
  const std::string state = states[static_cast<int>(table.rows)];
  const std::string change = unsaved[static_cast<int>(table.unsaved)];
  return state == "InFile" && change.empty() ? "" : table.name + " " + state + change;
}

void carryOut(Desk& desk, const std::string& step) {
  auto& image = desk.image();
  const auto blank = step.find(' ', 7);
  if (step == "begin") return image.begin();
  if (step == "commit") return image.commit();
  if (step == "rollback") return image.rollback();
  if (step == "save") return desk.save();
  if (step.starts_with("rename "))
    return image.renameTable(step.substr(7, blank - 7), step.substr(blank + 1));
  if (step.starts_with("SELECT "))
    desk.rows(step);
  else
    desk.run(step);
}

/// What stands behind => in states.cases.
std::string outcome(Desk& desk, const std::vector<std::string>& steps) {
  std::string ended, errors, states;
  for (std::size_t i = 0; i < steps.size(); ++i) {
    const auto before = desk.image().generation();
    const int error = office::errorOf([&] { carryOut(desk, steps[i]); });
    if (error != 0) errors += " !" + std::to_string(error);
    if (desk.image().generation() != before) ended += " " + std::to_string(i + 1);
  }
  for (const auto& table : desk.image().tables())
    if (const auto state = stateOf(table); !table.system() && !state.empty())
      states += (states.empty() ? "" : ", ") + state;
  return states + ";" + ended + errors;
}

TEST(States, RowsComeAndGoWithWhatStatementsNeed) {
  Desk desk(tables());
  desk.image().createRelation(desk::relation("tiene", "soci", "quote", {{"id", "socio"}}, desk::Cascades));
  desk.image().createRelation(desk::relation("pesa", "peso", "grande", {{"id", "n"}}));
  desk.reopen();
  const std::string asMade = desk.copy("made.mdb");
  support::CaseFile(CASES "/states.cases").expectResults([&](const support::Case& each) {
    desk.goOnWith(asMade);
    return outcome(desk, support::fieldsOf(each.statement));
  });
}

TEST(States, WhatWasPreparedHoldsForItsGenerationOnly) {
  const auto now = jet::image::Generation{0}, later = jet::image::Generation{1};
  Prepared<int> prepared;
  EXPECT_EQ(prepared.get(now), nullptr) << "the first generation too";
  prepared.set(now, 5);
  EXPECT_EQ(*prepared.get(now), 5);
  EXPECT_EQ(prepared.get(later), nullptr);
  EXPECT_EQ(*prepared.last(), 5);
  prepared.renew(later);
  EXPECT_EQ(*prepared.get(later), 5);
  EXPECT_EQ(prepared.getOrBegin(later), 5);
  EXPECT_EQ(prepared.getOrBegin(now), 0);
  prepared.reset();
  EXPECT_EQ(prepared.get(now), nullptr);
}

TEST(States, MessagesTellTheNameThatATableHasNow) {
  Desk desk({"CREATE TABLE t (n LONG NOT NULL)", "INSERT INTO t (n) VALUES (1)"});
  desk.run("UPDATE t SET n = 2");
  desk.image().renameTable("t", "nuova");
  try {
    desk.run("UPDATE nuova SET n = NULL");
    FAIL();
  } catch (const runtime::Error& error) {
    EXPECT_EQ(error.description(), "Il campo nuova.n è richiesto");
  }
}

}  // namespace
