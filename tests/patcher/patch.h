#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "patcher/frmPatch.h"
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
  Computer();
  ~Computer();

  /// Makes a file in the folder that holds all; `age`: seconds before a fixed date.
  void write(const std::string& name, const std::string& content, std::int64_t age = 0);
  std::string read(const std::string& name) const;
  bool has(const std::string& name) const;
  /// Writes the list, in code page 1252 as it stands.
  void list(const std::string& content) { write("patch\\PatchList.txt", content); }
  /// Gives the computer the file in which its administrator names directories and programs.
  void writeComputerFile(const std::string& more = {});
  std::string path(const std::string& name) const { return folder.path(name); }
  /// Names in a folder, sorted.
  std::vector<std::string> names(const std::string& inFolder) const;

  /// Loads the window with the list as it is, and runs it.
  void run();
  const std::string& report() const { return form.txt.text(); }

  support::FixedClock clock;
  support::TempFolder folder;
  platform::Settings settings;
  support::ScriptedDesktop desktop;
  controls::DesktopScope scope{desktop};
  patcher::frmPatch form;

 private:
  static std::string settingsFile(const support::TempFolder& folder);
};

}  // namespace patch
