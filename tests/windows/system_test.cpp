#include <gtest/gtest.h>
#include <windows.h>

#include "platform/clock.h"
#include "platform/computer.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/process.h"
#include "platform/program.h"
#include "platform/registry.h"
#include "platform/settings.h"
#include "runtime/error.h"
#include "support/errors.h"
#include "support/temp_folder.h"

namespace {

using namespace std::string_literals;

/// A key below the user's registry, removed with all it holds at the end.
class Key {
 public:
  explicit Key(const wchar_t* name) : name_(name) {
    ::RegCreateKeyExW(HKEY_CURRENT_USER, name, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key_, nullptr);
  }
  ~Key() {
    ::RegCloseKey(key_);
    ::RegDeleteTreeW(HKEY_CURRENT_USER, name_);
  }
  void set(const wchar_t* value, DWORD type, const std::wstring& text) {
    set(value, type, std::string(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t)));
  }
  void set(const wchar_t* value, DWORD type, const std::string& data) {
    ::RegSetValueExW(key_, value, 0, type, reinterpret_cast<const BYTE*>(data.data()),
                     static_cast<DWORD>(data.size()));
  }

 private:
  const wchar_t* name_;
  HKEY key_ = nullptr;
};

TEST(WindowsRegistry, GivesValuesByTheirTypes) {
  Key key(L"Software\\AggNorvoProva");
  const std::wstring longText(3000, L'è');
  key.set(L"", REG_SZ, L"predefinito\0"s);
  key.set(L"lungo", REG_SZ, longText + L'\0');
  key.set(L"vuoto", REG_SZ, L"\0"s);
  key.set(L"espandi", REG_EXPAND_SZ, L"%TEMP%\0"s);
  key.set(L"elenco", REG_MULTI_SZ, L"a\0b\0\0"s);
  key.set(L"byte", REG_BINARY, "\0\xff"s);
  key.set(L"numero", REG_DWORD, "\xfe\xff\xff\xff"s);
  key.set(L"altro", REG_QWORD, "12345678"s);
  key.set(L"niente", REG_SZ, ""s);
  const struct {
    const char* name;
    std::uint32_t type;
    std::string data;
  } cases[] = {
      {"", platform::RegistryText, "predefinito\0"s},
      {"VUOTO", platform::RegistryText, "\0"s},
      {"espandi", platform::RegistryExpandText, "%TEMP%\0"s},
      {"elenco", platform::RegistryMultiText, "a\0b\0\0"s},
      {"byte", platform::RegistryBinary, "\0\xff"s},
      {"numero", platform::RegistryDWord, "\xfe\xff\xff\xff"},
      {"altro", REG_QWORD, "12345678"},
      {"niente", platform::RegistryText, ""},
      {"manca", platform::RegistryNone, ""},
  };
  const auto read = [](const char* name) {
    return platform::readRegistry(platform::RegistryRoot::CurrentUser, "software\\aggnorvoprova", name);
  };
  for (const auto& test : cases) {
    ASSERT_TRUE(read(test.name)) << test.name;
    EXPECT_EQ(read(test.name)->type, test.type) << test.name;
    EXPECT_EQ(read(test.name)->data, test.data) << test.name;
  }
  EXPECT_EQ(read("lungo")->data.size(), 6001u);  // more than the first question has room for
  EXPECT_FALSE(platform::readRegistry(platform::RegistryRoot::LocalMachine, "Software\\AggNorvoProva", ""));
}

TEST(WindowsSettings, AreTheUsersRegistryOrAFile) {
  Key key(L"Software\\VB and VBA Program Settings\\AggNorvoProva\\DBSECTION");
  key.set(L"dbPath", REG_SZ, L"C:\\è\\a.mdb\0"s);
  EXPECT_EQ(platform::Settings().get("aggnorvoprova", "dbsection", "DBPATH"), "C:\\è\\a.mdb");
  EXPECT_EQ(platform::Settings().get("aggnorvoprova", "dbsection", "altro", "no"), "no");
  support::TempFolder folder;
  platform::writeWholeFile(folder.path("a.ini"), "[Prova\\DBSECTION]\r\ndbPath=C:\\b.mdb\r\n");
  EXPECT_EQ(platform::Settings(folder.path("a.ini")).get("Prova", "DBSECTION", "dbPath"), "C:\\b.mdb");
}

TEST(WindowsComputer, TellsItsDirectoriesAndName) {
  EXPECT_TRUE(platform::inspectFile(platform::windowsFolder())->folder);
  EXPECT_TRUE(platform::inspectFile(platform::systemFolder())->folder);
  EXPECT_FALSE(platform::computerName().empty());
  EXPECT_EQ(platform::environmentVariable("un nome che non c'è"), "");
  EXPECT_EQ(platform::environmentVariable("TEMP"), platform::environmentVariable("Temp"));
  EXPECT_GT(platform::clock().now().days, 45000);
}

class WindowsChildren : public testing::Test {
 protected:
  support::TempFolder folder_;
  const std::string self_ = platform::executableFolder() + "\\" + platform::executableName();
};

TEST_F(WindowsChildren, GetTheirWordsAndAreSeenToEnd) {
  platform::Process child('"' + self_ + "\" --figlio " + folder_.path("parole") +
                          " \"due parole\" %TEMP% a^&b \"c\\\" d\\\"");
  while (child.running()) platform::clock().rest(5);
  EXPECT_EQ(platform::readWholeFile(folder_.path("parole")), "due parole\n%TEMP%\na^&b\nc\" d\"\n");
}

TEST_F(WindowsChildren, ThatCannotBeStartedAreNumbered) {
  platform::writeWholeFile(folder_.path("niente.exe"), "non è un programma");
  platform::writeWholeFile(folder_.path("comandi.bat"), "exit");
  const struct {
    std::string command;
    int number;
  } cases[] = {{"", 53},
               {folder_.path("manca.exe") + " a", 53},
               {std::string("cmd\0", 4), 53},
               {folder_.path("niente.exe"), 5},
               {folder_.path("comandi.bat"), 5}};
  for (const auto& test : cases)
    EXPECT_EQ(support::errorOf([&] { platform::Process child(test.command); }), test.number) << test.command;
}

TEST_F(WindowsChildren, CanTakeThePlaceOfTheProgram) {
  EXPECT_EQ(platform::continueAs(self_, {"--figlio", folder_.path("parole"), "a \"b\" \\", ""}), 7);
  EXPECT_EQ(platform::readWholeFile(folder_.path("parole")), "a \"b\" \\\n\n");
  EXPECT_THROW(platform::continueAs(folder_.path("manca"), {}), runtime::Error);
}

}  // namespace
