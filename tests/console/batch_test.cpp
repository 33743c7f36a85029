// The update from the command line: what it refuses, what it prints, its exit status.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>

#include "office.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "support/case_file.h"
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
       "Database inesistente o non leggibile: /manca"},
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
    const bool database = test.number == std::string("3031");
    EXPECT_EQ(result.status, database ? console::FailedUnchanged : console::Refused);
    EXPECT_THAT(result.out, testing::ContainsRegex(std::string("\nErrore: ") + test.number +
                                                   "\n[^\n]+\n\nAggiornamento annullato!\n"));
    EXPECT_THAT(result.err,
                testing::MatchesRegex(std::string("Aggiornamento (annullato|rifiutato): errore ") +
                                      test.number + ": [^\n]+\n"));
    EXPECT_EQ(platform::readWholeFile(office.target), test.content);
    EXPECT_EQ(office.dataFiles().size(), database ? 2u : 1u) << "the backup of a database alone";
    EXPECT_EQ(platform::fileExists(office.log), database);
  }
}

TEST(Batch, NeverTakesTheReferenceForItsTarget) {
  namespace fs = std::filesystem;
  Office office;
  const std::string reference = platform::toSystemPath(office.program) + "/AggNorvo.mdb";
  const std::string before = support::contentOf(reference);
  fs::create_symlink(reference, platform::toSystemPath(office.file("legame.mdb")));
  fs::create_hard_link(reference, platform::toSystemPath(office.file("altro nome.mdb")));
  for (const std::string& path : {reference, platform::toSystemPath(office.file("legame.mdb")),
                                  platform::toSystemPath(office.file("altro nome.mdb"))}) {
    auto options = office.batch();
    options.database = path;
    options.answer = controls::BatchDesktop::Answer::Yes;
    const auto result = batch(options);
    EXPECT_EQ(result.status, console::Refused) << path;
    EXPECT_THAT(result.err, HasSubstr("quello di riferimento e non può essere aggiornato"));
    EXPECT_EQ(support::contentOf(reference), before);
    EXPECT_EQ(office.dataFiles().size(), 3u);
  }
}

TEST(Batch, TellsWhatIsWrongWithTheReference) {
  const struct {
    const char* statement;
    const char* error;
  } cases[] = {{"DROP TABLE Norvi", "Norvi"}, {"ALTER TABLE Norvi DROP COLUMN norvo", "norvo"}};
  for (const auto& [statement, error] : cases) {
    Office office;
    const auto db = jet::dao::DBEngine::OpenDatabase(office.program + "\\AggNorvo.mdb", true);
    if (statement != std::string("DROP TABLE Norvi")) db->Execute("ALTER TABLE Norvi ADD COLUMN altro LONG");
    db->Execute(statement);
    db->Close();
    const auto result = batch(office.batch());
    EXPECT_EQ(result.status, console::Refused);
    EXPECT_THAT(result.err, testing::MatchesRegex("Database di riferimento non utilizzabile: [^\n]+: errore "
                                                  "[0-9]+: [^\n]*" +
                                                  std::string(error) + "[^\n]*\n"));
  }
}

TEST(Batch, SaysTheCauseOfAFailureInOneLine) {
  const struct {
    const char* statement;
    const char* leftover;
    bool link;
    int status;
    const char* error;
  } cases[] = {
      {"DROP TABLE ragioniere", "", false, 1,
       "Aggiornamento annullato: errore [0-9]+: [^\n]*ragioniere[^\n]*\n"},
      {"", "Newstudio.mdb", false, 4, "Aggiornato, ma non compattato: errore 3204: [^\n]+\n"},
      {"", "", true, 4, "Errore tralasciato: errore [0-9]+: [^\n]+tabella enti\n"},
  };
  for (const auto& test : cases) {
    Office office;
    auto statements = office::oldInstallation();
    if (*test.statement) statements.push_back(test.statement);
    office.makeTarget(statements);
    if (test.link) {
      const std::string far = office.program + "\\altrove.mdb";
      office::makeDatabase(far, {"CREATE TABLE enti (id LONG)"});
      const auto db = jet::dao::DBEngine::OpenDatabase(office.program + "\\AggNorvo.mdb", true);
      const auto linked = db->CreateTableDef("ADD_enti");
      linked->setConnect(";DATABASE=" + far);
      linked->setSourceTableName("enti");
      db->TableDefs().Append(linked);
      db->Close();
    }
    if (*test.leftover) std::filesystem::create_directory(platform::toSystemPath(office.file(test.leftover)));
    const auto result = batch(office.batch());
    EXPECT_EQ(result.status, test.status) << result.out << result.err;
    EXPECT_THAT(result.err, testing::MatchesRegex(test.error));
  }
}

TEST(Batch, RunsInOneFolderAndSecondHaveABackupEach) {
  Office office;
  constexpr int runs = 3, trials = 2;
  const std::string folder = platform::toSystemPath(office.data);
  for (int trial = 0; trial < trials; ++trial) {
    std::string line;
    std::set<std::string> before;
    for (int run = 0; run < runs; ++run) {
      const std::string name = folder + "/albo" + std::to_string(run) + ".mdb";
      std::filesystem::copy_file(platform::toSystemPath(office.target), name,
                                 std::filesystem::copy_options::overwrite_existing);
      const auto db = jet::dao::DBEngine::OpenDatabase(platform::fromSystemPath(name), true);
      db->Execute("INSERT INTO gruppi VALUES (" + std::to_string(100 + run) + ")", jet::dao::dbFailOnError);
      db->Close();
      before.insert(support::contentOf(name));
      line += command(office, "--batch --app collgeometri --database " + shellWord(name)) + " & p" +
              std::to_string(run) + "=$!; ";
    }
    for (int run = 0; run < runs; ++run) line += "wait $p" + std::to_string(run) + " || exit 1; ";
    const auto result = runCommand(line);
    EXPECT_EQ(result.status, 0) << result.errors;
    std::set<std::string> backups;
    for (const std::string& name : office.dataFiles())
      if (name.starts_with("Backup")) {
        backups.insert(support::contentOf(folder + "/" + name));
        std::filesystem::remove(folder + "/" + name);
      }
    EXPECT_TRUE(backups == before) << backups.size() << " backups of " << runs;
  }
}

TEST(Batch, LeavesWhatHasTheNameOfItsBackup) {
  namespace fs = std::filesystem;
  for (const char* kind : {"file", "folder", "link"}) {
    SCOPED_TRACE(kind);
    Office office;
    const std::string taken = platform::toSystemPath(office.backup), own = "Backup20261116171601.mdb";
    if (*kind == 'l') {
      fs::create_symlink("nessuno", taken);
    } else if (kind == std::string("folder")) {
      fs::create_directory(taken);
    } else {
      platform::writeWholeFile(office.backup, "mio");
    }
    const std::string before = platform::readWholeFile(office.target);
    const auto result = batch(office.batch());
    EXPECT_EQ(result.status, console::Done) << result.out << result.err;
    EXPECT_THAT(office.dataFiles(), ElementsAre("Backup20261116171600.mdb", own, "studio.mdb"));
    EXPECT_EQ(platform::readWholeFile(office.file(own)), before);
    if (kind == std::string("file")) {
      EXPECT_EQ(support::contentOf(taken), "mio");
    }
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

TEST(Program, ListsApartWhatItDoesNotFind) {
  Office office;
  office.writeSettings(Office::registered("PROTOCOLLO", office.target) +
                       Office::registered("ordmedici", office.file("manca.mdb")));
  const auto list = runCommand(command(office, "--list"));
  EXPECT_EQ(list.status, 0);
  EXPECT_EQ(list.output, "PROTOCOLLO\t" + platform::toSystemPath(office.target) + "\n");
  EXPECT_EQ(list.errors, "ordmedici: il database registrato non c'è: " +
                             platform::toSystemPath(office.file("manca.mdb")) + "\n");
}

TEST(Program, FailsWhereWhatItShowsCanNotBeWritten) {
  Office office;
  const struct {
    const char* arguments;
    int status;
  } cases[] = {{"--list", 1},
               {"--batch --plan --app collgeometri", 1},
               {"--batch --app collgeometri", 0}};  // the run stands, and its summary has a file
  for (const auto& [arguments, status] : cases) {
    const auto result = runCommand(command(office, arguments) + " >/dev/full");
    EXPECT_EQ(result.status, status) << arguments;
    EXPECT_EQ(result.errors, "Lo standard output non si può scrivere.\n") << arguments;
  }
}

TEST(Program, NeverTurnsADryRunIntoTheRealOne) {
  Office office;
  const std::string before = platform::readWholeFile(office.target);
  const auto named = [](const char* name, const std::string& path) {
    return std::string(name) + "=" + shellWord(platform::toSystemPath(path)) + "; ";
  };
  const std::string names =
      named("T", office.target) + named("P", office.program) + named("S", office.settings);
  support::CaseFile(CASES "/dry_runs.cases").expectResults([&](const support::Case& each) {
    const auto result = runCommand(names + AGGNORVO " " + each.statement);
    EXPECT_EQ(platform::readWholeFile(office.target), before);
    EXPECT_THAT(office.dataFiles(), ElementsAre("studio.mdb"));
    EXPECT_EQ(result.errors.empty(), result.status == console::WouldChange) << result.errors;
    return std::to_string(result.status);
  });
}

TEST(Program, AnswersInItalianAndRefusesWrongUsage) {
  support::expectUsage(AGGNORVO, CASES "/usage.cases");
}

}  // namespace
