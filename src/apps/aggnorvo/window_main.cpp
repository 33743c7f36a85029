#include <CLI/CLI.hpp>
#include <QApplication>

#include "apps/aggnorvo/options.h"
#include "apps/command_line.h"
#include "console/frmAggMain.h"
#include "patcher/frmPatch.h"
#include "platform/program.h"
#include "qt/qt_desktop.h"

namespace {

void showPatch(const std::string& folder) {
  patcher::frmPatch window;
  window.Path(folder);
  window.show(true);
}

}  // namespace

int main(int argc, char** argv) {
  platform::holdStandardStreams();
  platform::keepRunningOnWriteSignals();
  QApplication application(argc, argv);
  CLI::App app("Apre la finestra dell'aggiornamento.\n", "aggnorvo-window");
  apps::speakItalian(app);
  console::ProgramOptions program;
  aggnorvo::addProgramOptions(app, program);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return apps::answer(app, error);
  }
  const console::ProgramScope scopeOfProgram(program);
  qt::QtDesktop desktop;
  controls::DesktopScope scope(desktop);
  console::frmAggMain window({.impostazioni = scopeOfProgram.settings(),
                              .cartella = scopeOfProgram.folder(),
                              .mostraPatch = showPatch});
  window.show();
  return desktop.run();
}
