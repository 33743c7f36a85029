// An office with its program, its databases and its settings, for whoever tests a run.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "console/batch.h"
#include "console/frmAggMain.h"
#include "platform/settings.h"
#include "support/fixed_clock.h"
#include "support/scripted_desktop.h"
#include "support/temp_folder.h"

namespace office {

using support::FixedClock;

/// Makes a database by running `statements` in a new file.
void makeDatabase(const std::string& path, const std::vector<std::string>& statements);
/// Statements of a reference database: three applications, an empty catalogue.
std::vector<std::string> reference();
/// Statements of an old installation: parameters, the six control tables, a member with accents, a long field
/// name.
std::vector<std::string> oldInstallation();
std::vector<std::string> with(std::vector<std::string> statements, const std::vector<std::string>& more);
/// Names of the fields and all rows of every user table, for comparing two files by content.
std::string contentOf(const std::string& path);
/// First value of the first row.
std::string ask(const std::string& path, const std::string& sql);

/// A computer with the program, its reference database, settings and one target that is open nowhere.
class Office {
 public:
  explicit Office(const std::string& dataFolder = "dati");

  std::string file(const std::string& name) const { return data + "\\" + name; }
  /// Names in the data folder, sorted.
  std::vector<std::string> dataFiles() const;
  /// Gives the target these statements' content.
  void makeTarget(const std::vector<std::string>& statements);
  void makeReference(const std::vector<std::string>& statements);
  /// Writes the settings: lines as they stand in the file.
  void writeSettings(const std::string& content);
  void writePatchList(const std::string& content);
  /// The settings that register the target as this application's database.
  static std::string registered(const std::string& application, const std::string& path);

  console::BatchOptions batch(const std::string& app = "collgeometri") const;

  FixedClock clock;
  support::TempFolder folder;
  std::string program, data, target, backup, log, settings;
};

/// A batch run: its exit status and what it prints.
struct Printed {
  int status;
  std::string out, err;
};
Printed batch(const console::BatchOptions& options);

/// The window of an office on a scripted desktop, loaded.
class Window {
 public:
  explicit Window(const Office& office);
  ~Window() { form.unload(); }

  /// Runs the update of the target as that of `application`.
  void update(const std::string& application = "collgeometri");
  const std::string& summary() const { return form.txtRiepilogo.text(); }

  const Office& office;
  platform::Settings settings;
  support::ScriptedDesktop desktop;
  controls::DesktopScope scope{desktop};
  std::vector<std::string> patches;  // folders for which the window of the file patch was asked for
  std::function<void()> duringPatch = [] {};
  console::frmAggMain form;
};

}  // namespace office
