#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <ctime>
#include <iomanip>
#include <sstream>

#include "platform/clock.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/settings.h"
#include "support/case_file.h"
#include "support/temp_folder.h"

namespace platform {
namespace {

TEST(CodePage, EveryByteComesBack) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  EXPECT_EQ(toCodePage1252(fromCodePage1252(all)), all);
}

TEST(CodePage, KnownCharactersAndThoseOutsideThePage) {
  support::CaseFile(CASES "/code_page.cases").expectResults([](const support::Case& each) {
    std::ostringstream bytes;
    bytes << std::hex << std::uppercase << std::setfill('0');
    for (const unsigned char byte : toCodePage1252(support::fieldsOf(each.statement)[0]))
      bytes << (bytes.tellp() > 0 ? " " : "") << std::setw(2) << int{byte};
    return bytes.str();
  });
  EXPECT_EQ(fromCodePage1252("\x80\x9C\x8D"), "€œ\xC2\x8D");
}

TEST(Settings, ReadsTheStoreOfTheUserWithoutRegardToCase) {
  support::TempFolder folder;
  const std::string longValue(5000, 'v');
  std::filesystem::create_directory(folder.systemPath("aggnorvo"));
  writeWholeFile(folder.path("aggnorvo\\impostazioni.ini"),
                 "; commento\r\n[Registro\\DBSECTION]\r\ndbPath = \\srv\\città\\registro 1.mdb \r\nLungo=" +
                     longValue + "\n\n[Altro\\DBSECTION]\ndbPath=C:\\x=y;z.mdb\nVuoto=\n");
  ::setenv("XDG_CONFIG_HOME", folder.systemPath().c_str(), 1);
  const Settings settings;
  ::unsetenv("XDG_CONFIG_HOME");
  EXPECT_EQ(settings.get("Registro", "DBSECTION", "dbPath"), "\\srv\\città\\registro 1.mdb");
  EXPECT_EQ(settings.get("REGISTRO", "dbsection", "DBPATH"), "\\srv\\città\\registro 1.mdb");
  EXPECT_EQ(settings.get("Registro", "DBSECTION", "lungo"), longValue);
  EXPECT_EQ(settings.get("Altro", "DBSECTION", "dbPath"), "C:\\x=y;z.mdb");
  EXPECT_EQ(settings.get("Altro", "DBSECTION", "vuoto", "x"), "");
  EXPECT_EQ(settings.get("Altro", "DBSECTION", "lungo", "x"), "x");
  EXPECT_EQ(settings.get("Terzo", "DBSECTION", "dbPath"), "");
  EXPECT_EQ(Settings(folder.path("none.ini")).get("Registro", "DBSECTION", "dbPath", "x"), "x");
}

TEST(Paths, FoldersAndTheSystemsForm) {
  const struct {
    const char *path, *folder, *containing;
  } cases[] = {{"\\srv\\db\\a.mdb", "\\srv\\db", "\\srv\\db"},
               {"a.mdb", "", "."},
               {"\\a.mdb", "", "\\"},
               {"", "", "."},
               {"db\\", "db", "db"}};
  for (const auto& test : cases) {
    EXPECT_EQ(folderOf(test.path), test.folder);
    EXPECT_EQ(containingFolder(test.path), test.containing);
  }
  EXPECT_EQ(toSystemPath("\\srv\\città\\a.mdb"), "/srv/città/a.mdb");
  EXPECT_EQ(fromSystemPath("/srv//db/./a.mdb"), "\\srv\\db\\a.mdb");
  EXPECT_EQ(fromSystemPath("/srv/db/"), "\\srv\\db");
  EXPECT_EQ(fromSystemPath("/"), "\\");
  EXPECT_EQ(toSystemPath(fromSystemPath("a.mdb")), std::filesystem::current_path().string() + "/a.mdb");
  EXPECT_EQ(toSystemPath(fromSystemPath("")), std::filesystem::current_path().string());
  EXPECT_EQ(executableName(), "test_platform");
  EXPECT_TRUE(fileExists(executableFolder() + "\\" + executableName()));
}

TEST(Clock, TellsTheLocalTimeAndCanBeReplaced) {
  ::setenv("TZ", "XXX-5:30", 1);
  ::tzset();
  const double expected = 25569 + (static_cast<double>(std::time(nullptr)) + 5.5 * 3600) / 86400;
  EXPECT_NEAR(clock().now().days, expected, 5.0 / 86400);
  const double seconds = (expected - std::floor(expected)) * 86400;
  const double apart = std::abs(static_cast<double>(clock().timer()) - seconds);
  EXPECT_LT(std::min(apart, 86400 - apart), 5);
  ::unsetenv("TZ");
  ::tzset();

  struct Standing : Clock {
    runtime::Date now() override { return {1}; }
  } standing;
  Clock* before = setClock(&standing);
  EXPECT_EQ(clock().now().days, 1);
  EXPECT_EQ(setClock(before), &standing);
  EXPECT_GT(clock().now().days, 40000);
}

}  // namespace
}  // namespace platform
