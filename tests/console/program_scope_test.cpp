#include <gtest/gtest.h>

#include "common/globale.h"
#include "console/program_options.h"
#include "platform/computer.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/settings.h"
#include "support/temp_folder.h"

namespace {

TEST(ProgramScope, PutsFolderSettingsAndComputerInForceAndTakesThemBack) {
  support::TempFolder folder;
  const std::string computer = folder.systemPath("computer.ini");
  platform::writeWholeFile(folder.path("a.ini"),
                           "[aggnorvo\\computer]\nfile=" + computer + "\n[X\\Y]\nz=1\n");
  platform::writeWholeFile(folder.path("computer.ini"), "[Computer]\nSystem=/una/cartella/di prova\n");
  {
    const console::ProgramScope scope({folder.systemPath(), folder.systemPath("a.ini")});
    EXPECT_EQ(common::DirProgramma, folder.path());
    ASSERT_NE(common::Impostazioni, nullptr);
    EXPECT_EQ(common::Impostazioni->get("x", "y", "Z"), "1");
    EXPECT_EQ(platform::systemFolder(), "\\una\\cartella\\di prova");
  }
  EXPECT_EQ(common::Impostazioni, nullptr);
  EXPECT_NE(platform::systemFolder(), "\\una\\cartella\\di prova");
  const console::ProgramScope scope({std::nullopt, folder.systemPath("manca.ini")});
  EXPECT_EQ(common::DirProgramma, platform::executableFolder());
}

}  // namespace
