// The run, judged by what lies on the disk afterwards, by the flag and by the summary.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <map>

#include "common/globale.h"
#include "office.h"
#include "platform/files.h"
#include "platform/program.h"
#include "support/case_file.h"
#include "support/child_process.h"
#include "support/disk_faults.h"

namespace {

using console::Esito;
using office::contentOf;
using office::Office;
using office::Window;
using office::with;
using platform::DiskCall;
using platform::DiskError;
using platform::DiskFault;
using platform::DiskOperation;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

/// Does something before each call on the disk.
class OnDisk : public platform::DiskObserver {
 public:
  explicit OnDisk(std::function<void(const DiskCall&)> action) : action_(std::move(action)), scope_(*this) {}
  void before(const DiskCall& call) override { action_(call); }

 private:
  std::function<void(const DiskCall&)> action_;
  support::ObservedDisk scope_;
};

bool names(const DiskCall& call, const std::string& part) {
  return call.path.find(part) != std::string::npos;
}

const char* const Duplicate = "INSERT INTO italia_comuni VALUES ('066049', 'L''Aquila', 'AQ', #12/31/2010#)";
const char* const ShortName = "ds_reg_cert_energetico";
const char* const LongName = "ds_regione_certificatore_energetico";

TEST(Run, ThatEndsNormallyLeavesTheUpdatedFileItsBackupAndItsSummary) {
  Office office;
  office.makeTarget(
      with(office::oldInstallation(),
           {Duplicate, "INSERT INTO italia_comuni VALUES ('066049', 'L''Aquila', 'AQ', NULL)"}));
  const std::string before = platform::readWholeFile(office.target);
  Window window(office);
  window.update();

  const std::string expected =
      "Aggiornamento in data 16/11/2026 17:16:00\r\nDatabase:" + office.target +
      "\r\nCopia di sicurezza in corso...fatto."
      "\r\nTabella italia_comuni: eliminazione comuni duplicati ....fatto"
      "\r\nTabella ragioniere - campo ds_regione_certificatore_energetico in modifica"
      "\r\n\r\nAggiungo le query...fatto!\r\n\r\nAggiornamento tabelle..."
      "\r\nAggiornamento tabelle terminato!\r\nCompattazione del database " +
      office.target +
      "...\r\nCompattazione eseguita.\r\n\r\nAggiornamento del database terminato,"
      "\r\npuoi uscire.\r\n";
  EXPECT_EQ(window.summary(), expected);
  EXPECT_EQ(platform::readWholeFile(office.log), expected + "\r\n");
  EXPECT_TRUE(window.form.AggiornamentoEseguito);
  EXPECT_EQ(console::exitStatus(window.form.UltimaCorsa), console::Done);
  EXPECT_THAT(office.dataFiles(), ElementsAre("Backup20261116171600.mdb", "studio.mdb"));
  EXPECT_EQ(platform::readWholeFile(office.backup), before);
  // A Null sorts before every date: the row without an end goes first, then the earliest.
  EXPECT_EQ(office::ask(office.target, "SELECT DataFine FROM italia_comuni"), "31/12/2010");
  EXPECT_EQ(office::ask(office.target, std::string("SELECT ") + ShortName + " FROM ragioniere WHERE id = 2"),
            "Forlì-Cesena");
  EXPECT_THAT(window.desktop.pointers,
              ElementsAre(controls::MousePointer::Hourglass, controls::MousePointer::Default));
}

/// Fails calls on a file while the summary holds a text, or ends with it if the text ends with a blank.
struct Fault {
  explicit Fault(const support::Case& end) {
    for (const auto& [name, text] : end.answers)
      if (name == "fault") fields = support::fieldsOf(text);
    fields.resize(4);
  }

  void judge(const DiskCall& call, const std::string& summary) const {
    static const std::map<std::string, DiskOperation> operations = {{"Write", DiskOperation::Write},
                                                                    {"Remove", DiskOperation::Remove}};
    static const std::map<std::string, DiskFault> faults = {{"AccessDenied", DiskFault::AccessDenied},
                                                            {"Io", DiskFault::Io},
                                                            {"NoSpace", DiskFault::NoSpace},
                                                            {"Sharing", DiskFault::Sharing}};
    const std::string &kind = fields[0], &operation = fields[1], &file = fields[2], &phase = fields[3];
    if (kind.empty() || !names(call, file)) return;
    if (operation != "any" && operations.at(operation) != call.operation) return;
    if (phase.ends_with(' ') ? summary.ends_with(phase) : summary.find(phase) != std::string::npos)
      throw DiskError(faults.at(kind), call.path);
  }

  std::vector<std::string> fields;  // fault, operation, part of the file's name, phase
};

/// Leaves a file or a folder where the compacted file is to come.
void leave(const std::string& what, const std::string& path) {
  if (what == "file") platform::writeWholeFile(path, "avanzo");
  if (what == "folder") std::filesystem::create_directory(platform::toSystemPath(path));
}

/// Changes the target once the summary announces the compaction.
std::function<void()> changing(const Window& window, const std::string& statement) {
  return [&window, statement, done = statement.empty()]() mutable {
    if (done || window.summary().find("Compattazione") == std::string::npos) return;
    done = true;
    const auto db = jet::dao::DBEngine::OpenDatabase(window.office.target);
    db->Execute(statement);
    db->Close();
  };
}

std::string endOf(const support::Case& end) {
  static const std::map<Esito, std::string> names = {{Esito::Completata, "Completata"},
                                                     {Esito::Fallita, "Fallita"},
                                                     {Esito::NonCompattata, "NonCompattata"},
                                                     {Esito::NonRimossa, "NonRimossa"},
                                                     {Esito::Ripristinata, "Ripristinata"}};
  Office office;
  office.makeTarget(with(office::oldInstallation(), end.all("design")));
  leave(end.one("leftover"), office.file("Newstudio.mdb"));
  const std::string before = platform::readWholeFile(office.target);
  const Fault fault(end);
  Window window(office);
  window.desktop.setEventsHook(changing(window, end.one("meanwhile")));
  {
    OnDisk faults([&](const DiskCall& call) { fault.judge(call, window.summary()); });
    window.update(end.one("application", "collgeometri"));
  }
  for (const std::string& part : end.all("summary")) EXPECT_THAT(window.summary(), HasSubstr(part));
  const std::vector<std::string> boxes = end.all("box");
  EXPECT_EQ(window.desktop.boxes.size(), boxes.size());
  for (std::size_t box = 0; box < std::min(boxes.size(), window.desktop.boxes.size()); ++box)
    EXPECT_THAT(window.desktop.boxes[box].text, HasSubstr(boxes[box]));
  const Esito esito = window.form.UltimaCorsa.esito;
  EXPECT_EQ(window.form.UltimaCorsa.causa.has_value(),
            console::exitStatus(window.form.UltimaCorsa) != console::Done);
  const std::string kept = office.file("ErrUnioncol20261116171600.mdb");
  EXPECT_EQ(platform::fileExists(kept), esito == Esito::Ripristinata);
  EXPECT_EQ(platform::fileExists(office.backup), fault.fields[2] != "Backup");
  const bool old = platform::readWholeFile(office.target) == before;
  const bool renamed = contentOf(office.target).find(ShortName) != std::string::npos;
  return names.at(esito) + ", status " + std::to_string(console::exitStatus(window.form.UltimaCorsa)) +
         (window.form.AggiornamentoEseguito ? ", done" : ", not done") +
         (old       ? ", old target"
          : renamed ? ", field renamed"
                    : ", other target");
}

TEST(Run, EndsInEveryWayAsItShould) {
  support::CaseFile(CASES "/ends.cases").expectResults(endOf);
}

TEST(Run, BeginsOnADatabaseThatIsOpenElsewhereOnlyWhenItIsFree) {
  struct {
    controls::MessageAnswer answer;
    bool updated;
  } const cases[] = {{controls::vbNo, false}, {controls::vbCancel, false}, {controls::vbYes, true}};
  for (const auto& [answer, updated] : cases) {
    SCOPED_TRACE(answer);
    Office office;
    int ready[2];
    ASSERT_EQ(::pipe(ready), 0);
    support::Child other([&] {
      const auto db = jet::dao::DBEngine::OpenDatabase(office.target);
      if (::write(ready[1], "x", 1) != 1) return 1;
      ::pause();
      return 0;
    });
    char sign = 0;
    ASSERT_EQ(::read(ready[0], &sign, 1), 1);
    Window window(office);
    window.desktop.expectBox("Il database è aperto da un altro programma. Si desidera riprovare", answer);
    const float asked = office.clock.seconds;
    window.desktop.setEventsHook([&] {
      if (office.clock.seconds > asked + 2) other.kill(), other.wait();
    });
    window.update();
    EXPECT_EQ(window.desktop.boxes.at(0).style, 67);
    EXPECT_EQ(window.desktop.boxes.at(0).title, "Attenzione database aperto!");
    EXPECT_EQ(window.desktop.boxes.size(), 1u);
    EXPECT_EQ(office.clock.seconds >= asked + 4.5, updated);
    EXPECT_EQ(window.form.AggiornamentoEseguito, updated);
    EXPECT_EQ(platform::fileExists(office.backup), updated);
    EXPECT_EQ(window.summary().empty(), !updated);
    ::close(ready[0]), ::close(ready[1]);
  }
}

/// How a run begins: the boxes and questions, then whether it does, or ends the program.
std::string beginningOf(const support::Case& each) {
  Office office(each.one("folder", "dati"));
  office.writePatchList(each.one("patch"));
  if (!each.one("marker").empty()) platform::writeWholeFile(office.folder.path(each.one("marker")), "");
  Window window(office);
  if (each.one("path") == "set") window.form.Path(office.program);
  for (const std::string& answer : each.all("answer"))
    window.desktop.expectInput(answer == "-" ? std::nullopt : std::optional(answer));
  window.update(each.one("application"));
  std::string told;
  for (const auto& input : window.desktop.inputs) told += input.title + ": " + input.text + ", ";
  for (const auto& box : window.desktop.boxes) told += box.text.substr(box.text.find('\n') + 1) + ", ";
  EXPECT_EQ(window.form.AggiornamentoEseguito, platform::fileExists(office.backup));
  return told +
         (window.desktop.ended                ? "ended"
          : window.form.AggiornamentoEseguito ? "done"
                                              : "not done") +
         " as [" + common::NomeApplicazione + "]";
}

TEST(Run, BeginsOrNotAsItShould) {
  support::CaseFile(CASES "/beginnings.cases").expectResults(beginningOf);
}

TEST(Run, IsNotStartedTwiceAndKeepsItsTargetAndItsWindow) {
  Office office;
  Window window(office);
  int clicks = 0;
  window.desktop.setEventsHook([&] {
    if (!window.form.busy() || clicks++ > 20) return;
    window.form.cmdAggiorna_Click();
    window.form.txtAltroDB_OLEDragDrop({true, {office.file("altro.mdb")}});
    window.form.unload();
  });
  window.update();
  EXPECT_GT(clicks, 5);
  EXPECT_THAT(window.summary(), EndsWith("puoi uscire.\r\n"));
  EXPECT_THAT(window.summary(), Not(HasSubstr("altro.mdb")));
  EXPECT_FALSE(window.form.loaded()) << "the wish to leave is granted after the run";
}

TEST(Run, SurvivesADiskThatFillsUp) {
  struct {
    const char* name;
    const char* file;
    int status;
    const char* summary;
    bool old;
  } const cases[] = {{"backing up", "Backup", 1, "corso...\nErrore: 61", true},
                     {"saving", "studio.mdb.tmp", 1, "terminato!\nErrore: ", true},
                     {"compacting", "Newstudio.mdb", 4, "studio.mdb...\nErrore: ", false}};
  for (const auto& test : cases) {
    SCOPED_TRACE(test.name);
    Office office;
    const std::string before = platform::readWholeFile(office.target);
    const int status = support::runInChild([&] {
      platform::keepRunningOnWriteSignals();
      OnDisk limit([&](const DiskCall& call) {
        if (!names(call, test.file)) return;
        const rlimit small{20000, 20000};
        ::setrlimit(RLIMIT_FSIZE, &small);
      });
      const auto result = office::batch(office.batch());
      EXPECT_THAT(result.out, HasSubstr(test.summary));
      return testing::Test::HasFailure() ? 98 : result.status;
    });
    EXPECT_EQ(status, test.status);
    EXPECT_TRUE(platform::fileExists(office.log));
    if (test.old) {
      EXPECT_EQ(platform::readWholeFile(office.target), before);
    } else {
      EXPECT_THAT(contentOf(office.target), HasSubstr(ShortName));
    }
    EXPECT_FALSE(platform::fileExists(office.file("Newstudio.mdb")));
    const auto next = office::batch(office.batch());
    EXPECT_EQ(next.status, console::Done) << next.out << next.err;
  }
}

TEST(Run, StandsAReadOnlyProgramFolder) {
  Office office;
  for (const std::string& path : {office.data, office.target})
    if (::chown(platform::toSystemPath(path).c_str(), 65534, 65534) != 0)
      GTEST_SKIP() << "only root can give files";
  ::chmod(platform::toSystemPath(office.program).c_str(), 0555);
  const int status = support::runInChild([&] {
    if (::setgid(65534) != 0 || ::setuid(65534) != 0) return 97;
    const auto result = office::batch(office.batch());
    EXPECT_EQ(result.err, "[messaggio] Salvataggio riepilogo: Non è possibile salvare il file log\n");
    return testing::Test::HasFailure() ? 98 : result.status;
  });
  EXPECT_EQ(status, console::Done);
  EXPECT_THAT(contentOf(office.target), HasSubstr(ShortName));
  EXPECT_THAT(contentOf(office.backup), HasSubstr(LongName));
}

}  // namespace
