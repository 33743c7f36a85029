#include <gtest/gtest.h>

#include <cstdlib>

#include "common/directories.h"
#include "common/globale.h"
#include "common/registry.h"
#include "platform/computer.h"
#include "platform/files.h"
#include "platform/settings.h"
#include "support/case_file.h"
#include "support/scripted_desktop.h"
#include "support/temp_folder.h"

namespace {

using runtime::Variant;
using namespace std::string_literals;

/// A program with a folder, settings and a file of the computer of its own.
class LookUps : public testing::Test {
 protected:
  ~LookUps() override {
    common::Impostazioni = nullptr;
    common::DirProgramma.clear();
    platform::useComputerFile("");
  }
  void useSettings(const std::string& content) {
    platform::writeWholeFile(folder_.path("impostazioni.ini"), content);
    settings_ = std::make_unique<platform::Settings>(folder_.path("impostazioni.ini"));
    common::Impostazioni = settings_.get();
    common::DirProgramma = folder_.path();
  }
  void useComputer(const std::string& content) {
    platform::writeWholeFile(folder_.path("computer.ini"), content);
    platform::useComputerFile(folder_.path("computer.ini"));
  }

  support::TempFolder folder_;
  std::unique_ptr<platform::Settings> settings_;
};

TEST_F(LookUps, FindTheDirectoriesOfAnApplication) {
  useSettings(
      "[Prova\\DBSECTION]\ndbPath=C:\\Prog\\db\\Dati.mdb\n[Radice\\dbsection]\nDBPATH=C:\\Dati.mdb\n"
      "[Nuda\\DBSECTION]\ndbPath=Dati.mdb\n[Cima\\DBSECTION]\ndbPath=\\Dati.mdb\n"
      "[Rete\\DBSECTION]\ndbPath=\\\\srv\\è\\Dati.mdb\n[Barre\\DBSECTION]\ndbPath=/srv/db/a.mdb\n");
  useComputer("[Computer]\nNome=UFFICIO1\n");
  ASSERT_EQ(::setenv("TeMp", "/tmp/ mia", 1), 0);
  support::CaseFile(CASES "/directories.cases").expectResults([&](const support::Case& each) {
    const auto fields = support::fieldsOf(each.statement);
    if (fields[0] == "GetDBParentDir") return common::GetDBParentDir(fields[1], std::stoi(fields[2]));
    std::string found = common::VerificaDir(std::stoi(fields[1]), fields[2]);
    if (found.starts_with(folder_.path())) found.replace(0, folder_.path().size(), "%");
    return found;
  });
  ::unsetenv("TeMp");
}

TEST_F(LookUps, ReportAnErrorOnceAndGiveNothing) {
  common::DirProgramma = folder_.path();  // and no settings at all
  support::ScriptedDesktop desktop;
  controls::DesktopScope scope(desktop);
  desktop.expectBox("GetDBParentDir\r\nErrore N° 5\r\n", controls::vbOK);
  EXPECT_EQ(common::VerificaDir(common::DirDatabaseNorvo, "Prova"), "");
  EXPECT_EQ(desktop.left(), 0u);
  EXPECT_EQ(platform::readWholeFile(folder_.path("error.log")).find("Procedura: GetDBParentDir\r\n"), 0u);
  // A report that can't be written leaves its procedure: an error inside the trap of the one that called it.
  common::DirProgramma = folder_.path("manca");
  EXPECT_THROW(common::VerificaDir(common::DirDatabaseNorvo, "Prova"), runtime::Error);
}

TEST_F(LookUps, GiveTheDirectoriesOfTheSystemClosed) {
  useComputer("[Computer]\nWindows=/srv/windows\nSystem=C:\\Windows\\System32\\\n");
  EXPECT_EQ(common::DirWindows(), "\\srv\\windows\\");
  EXPECT_EQ(common::DirSystem(), "C:\\Windows\\System32\\");
  useComputer("");
  EXPECT_EQ(common::DirWindows(), "");
  EXPECT_EQ(common::DirSystem(), "");
}

TEST_F(LookUps, ConvertARegistryValueByItsType) {
  const std::string longText(5000, 'x');
  useComputer("[HKEY_LOCAL_MACHINE\\Chiave]\n@=\ntesto=%TEMP%\\è\nlungo=" + longText +
              "\nnumero=dword:ffffffff\ncorto=hex(4):02,01\nbyte=hex:00,ff\nelenco=hex(7):61,00,62,00,00\n"
              "zero=hex(1):\nmonco=hex(7):00\naltro=hex(b):01\n");
  const auto read = [](const char* name, const Variant& otherwise = {}) {
    return common::LeggiRegistro(platform::RegistryRoot::LocalMachine, "Chiave", name, otherwise);
  };
  const struct {
    const char* name;
    std::string text;
  } texts[] = {{"", ""},     {"testo", "%TEMP%\\è"}, {"lungo", longText}, {"elenco", "a\0b"s},
               {"zero", ""}, {"monco", ""}};
  for (const auto& test : texts) {
    EXPECT_TRUE(read(test.name).isText()) << test.name;
    EXPECT_EQ(read(test.name).toText(), test.text) << test.name;
  }
  EXPECT_EQ(read("numero").kind(), Variant::Kind::Long);
  EXPECT_EQ(read("numero").toLong(), -1);
  EXPECT_EQ(read("corto").toLong(), 258);
  EXPECT_EQ(std::get<runtime::Bytes>(read("byte").value()), (runtime::Bytes{std::byte{0}, std::byte{255}}));
  for (const char* name : {"altro", "manca"}) {
    try {
      read(name, "predefinito");
      ADD_FAILURE() << name;
    } catch (const runtime::Error& error) {
      EXPECT_EQ(error.number(), 1001) << name;
      EXPECT_EQ(error.description(), "Unsupported value type");
    }
  }
  const auto missing = [](const Variant& otherwise) {
    return common::LeggiRegistro(platform::RegistryRoot::CurrentUser, "Chiave", "testo", otherwise);
  };
  EXPECT_TRUE(missing({}).isEmpty());
  EXPECT_EQ(missing(std::int32_t{7}).toLong(), 7);
}

TEST_F(LookUps, FindInstalledProgramsInTheirTable) {
  useComputer(
      "[App Paths]\nprova.exe=C:\\Prog\\Prova.exe\nbarre.exe=/srv/norvo/barre.exe\nvuoto.exe=\n"
      "[HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\senza.exe]\n"
      "Path=C:\\Prog\n");
  EXPECT_EQ(common::LeggiAppPath("PROVA.EXE"), "C:\\Prog\\Prova.exe");
  EXPECT_EQ(common::LeggiAppPath("barre.exe"), "\\srv\\norvo\\barre.exe");
  EXPECT_EQ(common::LeggiAppPath("vuoto.exe"), "");
  EXPECT_EQ(common::LeggiAppPath("manca.exe"), "");
  EXPECT_EQ(common::LeggiAppPath(""), "");
  EXPECT_THROW(common::LeggiAppPath("senza.exe"), runtime::Error);
}

}  // namespace
