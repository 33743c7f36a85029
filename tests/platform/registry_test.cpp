#include "platform/registry.h"

#include <gtest/gtest.h>

#include "platform/computer.h"
#include "platform/files.h"
#include "support/temp_folder.h"

namespace platform {
namespace {

using namespace std::string_literals;

/// A computer whose file holds what a test writes.
class ComputerFile : public testing::Test {
 protected:
  void write(const std::string& content) {
    writeWholeFile(folder_.path("computer.ini"), content);
    useComputerFile(folder_.path("computer.ini"));
  }
  ~ComputerFile() override { useComputerFile(""); }
  support::TempFolder folder_;
};

TEST_F(ComputerFile, HoldsTheValuesOfARegistryByTheirTypes) {
  write(
      "[HKEY_LOCAL_MACHINE\\Software\\Prova]\n"
      "@ = predefinito\ntesto=\" fra virgolette \"\nvuoto=\"\"\nnumero=dword:fffffffe\nbyte=hex:00,0a, ff\n"
      "nessun byte=hex:\nespandi=hex(2):25,45,e0,00\nelenco=hex(7):61,00,62,00,00\naltro=hex(b):01\n"
      "rotto=hex:1g\nlungo=dword:100000000\nmezzo=hex(7:00\n");
  const struct {
    const char* name;
    std::uint32_t type;
    std::string data;
  } cases[] = {
      {"", RegistryText, "predefinito\0"s},
      {"TESTO", RegistryText, " fra virgolette \0"s},
      {"vuoto", RegistryText, "\0"s},
      {"numero", RegistryDWord, "\xfe\xff\xff\xff"},
      {"byte", RegistryBinary, "\0\x0a\xff"s},
      {"nessun byte", RegistryBinary, ""},
      {"espandi", RegistryExpandText, "%Eà\0"s},
      {"elenco", RegistryMultiText, "a\0b\0\0"s},
      {"altro", 11, "\1"},
      {"rotto", RegistryText, "hex:1g\0"s},
      {"lungo", RegistryText, "dword:100000000\0"s},
      {"mezzo", RegistryText, "hex(7:00\0"s},
      {"manca", RegistryNone, ""},
  };
  for (const auto& test : cases) {
    const auto value = readRegistry(RegistryRoot::LocalMachine, "software\\PROVA", test.name);
    ASSERT_TRUE(value) << test.name;
    EXPECT_EQ(value->type, test.type) << test.name;
    EXPECT_EQ(value->data, test.data) << test.name;
  }
  EXPECT_FALSE(readRegistry(RegistryRoot::CurrentUser, "Software\\Prova", ""));
  EXPECT_FALSE(readRegistry(RegistryRoot::LocalMachine, "Software", ""));
}

TEST_F(ComputerFile, TellsWhatTheSystemCannot) {
  write("[computer]\nWINDOWS=\\srv\\windows\nSystem=/srv/windows/sistema/\nNome=UN-NOME-TROPPO-LUNGO\n");
  EXPECT_EQ(windowsFolder(), "\\srv\\windows");
  EXPECT_EQ(systemFolder(), "\\srv\\windows\\sistema");
  EXPECT_EQ(computerName(), "UN-NOME-TROPPO-");
  write("");
  EXPECT_EQ(systemFolder(), "");
  EXPECT_NE(computerName(), "");
  useComputerFile(folder_.path("manca.ini"));
  EXPECT_EQ(windowsFolder(), "");
}

}  // namespace
}  // namespace platform
