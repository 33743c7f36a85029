#include "patch.h"

#include <algorithm>
#include <filesystem>

#include "common/globale.h"
#include "platform/computer.h"
#include "platform/files.h"

namespace patch {

Computer::Computer() : settings(settingsFile(folder)) {
  for (const char* name :
       {"patch", "norvo\\db", "norvo\\Stampe", "norvo\\bin\\db", "tellaro", "win\\system", "programma"})
    std::filesystem::create_directories(folder.systemPath(name));
  writeComputerFile();
  common::Impostazioni = &settings;
  common::DirProgramma = path("programma");
  desktop.answerRestByDefault();
  form.Path(path("patch"));
}

Computer::~Computer() {
  form.unload();
  common::Impostazioni = nullptr;
  platform::useComputerFile("");
}

std::string Computer::settingsFile(const support::TempFolder& folder) {
  const std::string file = folder.path("impostazioni.ini");
  platform::writeWholeFile(file, "[albo\\DBSECTION]\ndbpath = " + folder.path("norvo\\db\\albo.mdb") + "\n");
  return file;
}

void Computer::writeComputerFile(const std::string& more) {
  platform::writeWholeFile(path("computer.ini"),
                           "[Computer]\nWindows = " + path("win") + "\nSystem = " + path("win\\system") +
                               "\n[App Paths]\nalbo.exe = " + path("norvo\\bin\\albo.exe") +
                               "\nTellaroService.exe = " + path("tellaro\\TellaroService.exe") + "\n" + more);
  platform::useComputerFile(path("computer.ini"));
}

void Computer::write(const std::string& name, const std::string& content, std::int64_t age) {
  constexpr std::int64_t date = 1'700'000'000, second = 1'000'000'000;
  platform::writeWholeFile(path(name), content);
  platform::setModified(path(name), (date - age) * second);
}

std::string Computer::read(const std::string& name) const {
  return platform::readWholeFile(path(name));
}

bool Computer::has(const std::string& name) const {
  return platform::fileExists(path(name));
}

std::vector<std::string> Computer::names(const std::string& inFolder) const {
  std::vector<std::string> found;
  for (const auto& entry : std::filesystem::directory_iterator(folder.systemPath(inFolder)))
    found.push_back(entry.path().filename().string());
  std::sort(found.begin(), found.end());
  return found;
}

void Computer::run() {
  form.load();
  form.cmd.press();
}

}  // namespace patch
