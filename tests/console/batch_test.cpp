// The update from the command line: what it refuses, what it prints, its exit status.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "office.h"
#include "platform/files.h"
#include "support/command.h"
#include "support/usage.h"

namespace {

using office::batch;
using office::Office;
using support::runCommand;
using support::shellWord;
using testing::ElementsAre;
using testing::HasSubstr;

std::string command(const Office& office, const std::string& arguments) {
  return AGGNORVO " " + arguments + " --program-dir " + shellWord(platform::toSystemPath(office.program)) +
         " --settings " + shellWord(platform::toSystemPath(office.settings));
}

TEST(Batch, StreamsTheSummaryAndKeepsBoxesApart) {
  Office office;
  const auto result = runCommand(command(office, "--batch --app COLLGEOMETRI"));
  EXPECT_EQ(result.status, 0) << result.errors;
  EXPECT_EQ(result.errors, "");
  EXPECT_THAT(result.output,
              HasSubstr("\nDatabase:" + office.target + "\nCopia di sicurezza in corso...fatto.\n"));
  EXPECT_TRUE(result.output.ends_with("\nAggiornamento del database terminato,\npuoi uscire.\n"));
  EXPECT_EQ(result.output.find('\r'), std::string::npos);
}

TEST(Batch, RefusesWhatItCanNotBegin) {
  Office office;
  auto options = [&](auto change) {
    auto changed = office.batch();
    change(changed);
    return changed;
  };
  const struct {
    console::BatchOptions options;
    std::string err;
  } cases[] = {
      {options([](auto& o) { o.app = "ordsarti"; }), "Applicazione sconosciuta: ordsarti\n"},
      {options([](auto& o) { o.app = "ordmedici", o.database.reset(); }), "Applicazione non installata"},
      {options([](auto& o) { o.app.reset(), o.database.reset(); }), "Specificare l'applicazione:\n"},
      {options([](auto& o) { o.database = "/manca/del/tutto.mdb"; }),
       "Database inesistente, non leggibile o aperto da un altro programma: /manca"},
      {options([&](auto& o) { o.database = platform::toSystemPath(office.data); }), "Database inesistente"},
      {options([](auto& o) { o.app.reset(); }), "Nome dell'applicazione non indicato"},  // the answer is no
      {options([](auto& o) { o.programDir = "/manca"; }), "Database mancante"},
  };
  for (const auto& test : cases) {
    const auto result = batch(test.options);
    EXPECT_EQ(result.status, console::Refused);
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.err, HasSubstr(test.err));
    EXPECT_THAT(office.dataFiles(), ElementsAre("studio.mdb"));
  }
}

TEST(Batch, LeavesAFileThatIsNoUsableDatabaseAsItIs) {
  Office office;
  const std::string good = platform::readWholeFile(office.target);
  const auto with = [&](std::size_t place, char mask) {
    std::string changed = good;
    changed[place] = static_cast<char>(changed[place] ^ mask);
    return changed;
  };
  const struct {
    const char* name;
    std::string content;
    const char* number;
  } cases[] = {{"no database", std::string(8192, 'x'), "3343"},
               {"text", "Gentile collega,", "3343"},
               {"empty", "", "3343"},
               {"half a page", good.substr(0, 2000), "3343"},
               {"truncated", good.substr(0, good.size() / 2 + 100), "3343"},
               {"password", with(0x42, 'x'), "3031"}};
  for (const auto& test : cases) {
    SCOPED_TRACE(test.name);
    platform::writeWholeFile(office.target, test.content);
    const auto result = batch(office.batch());
    EXPECT_EQ(result.status, console::FailedUnchanged);
    EXPECT_THAT(result.out, testing::ContainsRegex(std::string("\nErrore: ") + test.number +
                                                   "\n[^\n]+\n\nAggiornamento annullato!\n"));
    EXPECT_EQ(platform::readWholeFile(office.target), test.content);
  }
}

TEST(Batch, TakesPathsWithQuotesAndAccents) {
  Office office("l'unità \"è\" [già] 100%");
  const auto result = batch(office.batch());
  EXPECT_EQ(result.status, console::Done) << result.out << result.err;
  EXPECT_THAT(office.dataFiles(), ElementsAre("Backup20261116171600.mdb", "studio.mdb"));
}

TEST(Program, ListsWhatTheWindowWouldOffer) {
  Office office;
  office.writeSettings(Office::registered("PROTOCOLLO", platform::toSystemPath(office.target)));
  const auto list = runCommand(command(office, "--list"));
  EXPECT_EQ(list.status, 0);
  EXPECT_EQ(list.output, "PROTOCOLLO\t" + platform::toSystemPath(office.target) + "\n");
  platform::removeFile(office.program + "\\AggNorvo.mdb");
  const auto none = runCommand(command(office, "--list"));
  EXPECT_EQ(none.status, 2);
  EXPECT_THAT(none.errors, HasSubstr("Database mancante"));
}

TEST(Program, ShowsAPlanAndWritesNothing) {
  Office office;
  const std::string before = platform::readWholeFile(office.target);
  const auto plan = runCommand(command(office, "--batch --plan --app collgeometri"));
  EXPECT_EQ(plan.status, 3) << plan.errors;
  EXPECT_EQ(plan.output, "Tabella ragioniere - campo ds_regione_certificatore_energetico in modifica\n");
  EXPECT_EQ(platform::readWholeFile(office.target), before);
  EXPECT_THAT(office.dataFiles(), ElementsAre("studio.mdb"));
  EXPECT_FALSE(platform::fileExists(office.log));
  const auto refused = runCommand(command(office, "--batch --plan --app ordmedici"));
  EXPECT_EQ(refused.status, 2);
  EXPECT_THAT(refused.errors, HasSubstr("Applicazione non installata"));
}

TEST(Program, AnswersInItalianAndRefusesWrongUsage) {
  support::expectUsage(AGGNORVO, CASES "/usage.cases");
}

}  // namespace
