// The window: what a list says, the directories that it names, what a run does and how it is stopped.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "computer.h"
#include "support/case_file.h"
#include "support/disk_faults.h"

namespace {

using patch::Computer;
using support::fieldsOf;

TEST(List, IsReadInWhateverBytesItComes) {
  for (const char* file : {CASES "/rows.cases", CASES "/lists.cases"})
    support::CaseFile(file).expectResults([](const support::Case& each) {
      Computer computer;
      computer.list(fieldsOf(each.statement)[0]);
      computer.form.load();
      std::string found;
      for (std::size_t i = 1; i <= static_cast<std::size_t>(computer.form.NumeroRighe); ++i) {
        const patcher::Riga& row = computer.form.RigaPatch[i];
        found += (i > 1 ? " " : "") + row.Chiave + "|" + row.Comando + "|" + row.Valore;
      }
      return support::inBraces(found);
    });
}

TEST(Paths, ComeFromTheLastApplicationThatTheListNames) {
  support::CaseFile(CASES "/paths.cases").expectResults([](const support::Case& each) {
    Computer computer;
    std::string more;
    for (const std::string& line : each.all("computer")) more += line + "\n";
    computer.writeComputerFile(more);
    computer.list(fieldsOf(each.statement)[0]);
    const auto& form = computer.form;
    computer.form.load();
    std::string found = form.caption() + ", " + form.lblTop.caption();
    for (const std::string& folder :
         {form.DirNorvoDB, form.DirNorvoStampe, form.DirNorvoEXE, form.DirNorvoEXEDB, form.DirTellaroFaxExe,
          form.DirWinSys, form.DirWindowsPatch})
      found += " | " + folder;
    for (const auto& box : computer.desktop.boxes)
      found += "\n" + box.text.substr(0, box.text.find("\r\nSorg"));
    return computer.shown(found);
  });
}

/// What happens to a run from outside, as a case tells it.
class Circumstances : public platform::DiskObserver {
 public:
  Circumstances(Computer& computer, const support::Case& each) : computer_(computer) {
    for (const auto& [name, value] : each.answers) prepare(name, fieldsOf(value));
    start_ = computer.clock.seconds;
    computer.desktop.setEventsHook([this] { meanwhile(); });
  }

  float seconds() const { return std::fmod(computer_.clock.seconds - start_ + 86400, 86400.0F); }

  void before(const platform::DiskCall& call) override {
    if (call.operation == platform::DiskOperation::Inspect && call.path == undated_)
      throw platform::DiskError(platform::DiskFault::Io, call.path);
  }

 private:
  void prepare(const std::string& name, const std::vector<std::string>& f) {
    if (name == "file") computer_.write(f[0], f[1], f.size() > 2 ? std::stoi(f[2]) : 0);
    if (name == "folder") std::filesystem::create_directories(computer_.system(f[0]));
    if (name == "link") std::filesystem::create_symlink(computer_.system(f[1]), computer_.system(f[0]));
    if (name == "held") {
      held_ = platform::openFile(computer_.path(f[0]), platform::OpenMode::Read);
      EXPECT_TRUE(held_.tryLock(platform::LockMode::Exclusive));
      freed_ = std::stof(f[1]);
    }
    if (name == "arrives") late_ = f;
    if (name == "stop") stop_ = std::stoi(f[0]);
    if (name == "clock") computer_.clock.seconds = std::stof(f[0]);
    if (name == "alone") computer_.form.SenzaOperatore = true;
    if (name == "undated") undated_ = computer_.path(f[0]);
    if (name == "program") computer_.form.PercorsoEseguibile = computer_.path(f[0]);
    if (name == "registrar") computer_.putRegistrar();
  }
  void meanwhile() {
    if (held_ && seconds() >= freed_) held_.close();
    if (!late_.empty() && seconds() >= std::stof(late_[1]))
      computer_.write(std::exchange(late_, {})[0], "tardi");
    if (computer_.report().ends_with("...") && stop_ == computer_.form.FileSostituiti + 1)
      computer_.form.cmdEsci.press();
  }

  Computer& computer_;
  float start_ = 0, freed_ = 0;
  platform::File held_;
  std::vector<std::string> late_;
  int stop_ = 0;
  std::string undated_;
};

TEST(Runs, LeaveWhatTheirListAsksFor) {
  support::CaseFile(CASES "/runs.cases").expectResults([](const support::Case& each) {
    Computer computer;
    computer.list(fieldsOf(each.statement)[0]);
    computer.form.load();
    Circumstances circumstances(computer, each);
    const support::ObservedDisk scope(circumstances);
    const auto folder = std::filesystem::current_path();
    std::filesystem::current_path(computer.system("win"));
    computer.form.cmd.press();
    std::filesystem::current_path(folder);
    EXPECT_TRUE(computer.form.loaded() && computer.form.cmd.enabled()) << "the report stays to be read";
    std::string found = computer.report();
    const long seconds = std::lround(circumstances.seconds());
    if (each.one("registrar", "none") != "none")
      EXPECT_THAT(computer.desktop.forms, testing::IsSupersetOf({"top frmPatch", "not top frmPatch"}));
    else if (seconds != 0)
      found += "\n" + std::to_string(seconds) + " s";
    for (const auto& box : computer.desktop.boxes) found += "\n" + box.text;
    return computer.shown(found + computer.filesOutsideThePatch());
  });
}

TEST(Run, ShowsThatItIsUnderWayAndCanBeRepeated) {
  Computer computer;
  computer.list("Windows-AGG=a\nWindows-SOST=a");
  computer.write("patch\\a", "x");
  auto& form = computer.form;
  form.load();
  EXPECT_EQ(form.cmd.caption() + form.cmdEsci.caption(), "AggiornaESCI");
  int rounds = 0;
  computer.desktop.setEventsHook([&] {
    ++rounds;
    EXPECT_EQ(form.cmdEsci.caption(), "Annulla");
    EXPECT_FALSE(form.cmd.press());
  });
  form.cmd.press();
  EXPECT_EQ(rounds, 6) << "behind the announcement, the copy and the row";
  const std::string report = computer.report();
  form.cmd.press();
  EXPECT_EQ(computer.report(), report);
  EXPECT_EQ(form.cmdEsci.caption(), "ESCI");
  EXPECT_THAT(computer.desktop.pointers,
              testing::ElementsAre(controls::MousePointer::Hourglass, controls::MousePointer::Default,
                                   controls::MousePointer::Hourglass, controls::MousePointer::Default));
  computer.desktop.setEventsHook([&] { form.unload(); });
  computer.list("Windows-SOST=a\nWindows-SOST=b");
  computer.write("patch\\b", "x");
  form.GetKeys();
  form.cmd.press();
  EXPECT_TRUE(platform::fileExists(computer.path("win\\b"))) << "closed by its frame it goes after the run";
  EXPECT_FALSE(form.loaded());
  form.load();
  form.cmdEsci.press();
  EXPECT_FALSE(form.loaded());
}

}  // namespace
