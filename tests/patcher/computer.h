#pragma once

#include <filesystem>
#include <set>
#include <string>

#include "common/globale.h"
#include "common/text.h"
#include "patcher/frmPatch.h"
#include "platform/computer.h"
#include "platform/files.h"
#include "platform/settings.h"
#include "support/fixed_clock.h"
#include "support/scripted_desktop.h"
#include "support/temp_folder.h"

namespace patch {

/// A computer with a patch in one folder and the suite in others, and the patch's window on a scripted
/// desktop.
///
///   norvo\db\albo.mdb   the database of application "albo"; norvo\Stampe, norvo\bin, norvo\bin\db
///   tellaro, win, win\system, programma
class Computer {
 public:
  Computer() {
    for (const char* name :
         {"patch", "norvo/db", "norvo/Stampe", "norvo/bin/db", "tellaro", "win/system", "programma"})
      std::filesystem::create_directories(system(name));
    writeComputerFile();
    common::Impostazioni = &settings;
    common::DirProgramma = path("programma");
    desktop.answerRestByDefault();
    form.Path(path("patch"));
  }
  ~Computer() {
    form.unload();
    common::Impostazioni = nullptr;
    platform::useComputerFile("");
  }

  std::string path(const std::string& name) const { return folder.path(name); }
  std::string system(const std::string& name) const { return folder.systemPath(name); }
  const std::string& report() const { return form.txt.text(); }

  /// Makes a file in the folder that holds all; `age`: seconds before a fixed date.
  void write(const std::string& name, const std::string& content, std::int64_t age = 0) {
    platform::writeWholeFile(path(name), content);
    platform::setModified(path(name), (date - age) * second);
  }
  /// Writes the list, as it stands.
  void list(const std::string& content) { write("patch\\PatchList.txt", content); }
  /// Gives the computer the file in which its administrator names directories and programs.
  void writeComputerFile(const std::string& more = {}) {
    write("computer.ini", "[Computer]\nWindows = " + path("win") + "\nSystem = " + path("win\\system") +
                              "\n[App Paths]\nalbo.exe = " + path("norvo\\bin\\albo.exe") +
                              "\nTellaroService.exe = " + path("tellaro\\TellaroService.exe") + "\n" + more);
    platform::useComputerFile(path("computer.ini"));
  }
  /// Registers components with a program that logs its arguments and what stands at the destination.
  void putRegistrar() {
    write("programma\\registra",
          "#!/bin/sh\necho \"$@ [$(cat \"$1\")]\" >>'" + system("win/registrazioni") + "'\n");
    std::filesystem::permissions(system("programma/registra"), std::filesystem::perms(0755));
    writeComputerFile("[Comandi]\nRegSvr32.exe = " + path("programma\\registra") + "\n");
  }
  /// Lines "\n" name = content, and @age unless it is 0, of the files outside patch and programma.
  std::string filesOutsideThePatch() const {
    std::set<std::string> lines;
    for (const char* part : {"norvo", "tellaro", "win"})
      for (const auto& entry : std::filesystem::recursive_directory_iterator(system(part))) {
        if (!entry.is_regular_file()) continue;
        const std::string name = platform::fromSystemPath(entry.path().string());
        const std::int64_t age = date - platform::inspectFile(name)->modifiedUnixNanoseconds / second;
        std::string content = platform::readWholeFile(name);
        if (content.ends_with('\n')) content.pop_back();
        lines.insert("\n" + name.substr(path("").size()) + " = " + content +
                     (age == 0 || name.ends_with("registrazioni") ? "" : "@" + std::to_string(age)));
      }
    std::string all;
    for (const std::string& line : lines) all += line;
    return all;
  }
  /// A text with % for the folder that holds all and ¶ for CR LF.
  std::string shown(const std::string& text) const {
    std::string result = common::SostituisciTutto(text, path(""), "%");
    return common::SostituisciTutto(common::SostituisciTutto(result, system(""), "%"), "\r\n", "¶");
  }

  static constexpr std::int64_t date = 1'700'000'000, second = 1'000'000'000;
  support::FixedClock clock;
  support::TempFolder folder;
  platform::Settings settings{[this] {
    write("impostazioni.ini", "[albo\\DBSECTION]\ndbpath = " + path("norvo\\db\\albo.mdb") + "\n");
    return path("impostazioni.ini");
  }()};
  support::ScriptedDesktop desktop;
  controls::DesktopScope scope{desktop};
  patcher::frmPatch form;
};

}  // namespace patch
