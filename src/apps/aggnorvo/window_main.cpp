// The program of the window.
#include <CLI/CLI.hpp>
#include <QApplication>
#include <cstdlib>
#include <iostream>
#include <memory>

#include "apps/aggnorvo/options.h"
#include "apps/command_line.h"
#include "console/batch.h"
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

/// The toolkit knows no way to go on without a display but to abort, after pages of its own advice.
void endWithoutDisplay(QtMsgType type, const QMessageLogContext&, const QString&) {
  if (type != QtFatalMsg) return;
  std::cerr << "aggnorvo-window: manca uno schermo per la finestra; senza finestra: aggnorvo --batch"
            << std::endl;
  std::_Exit(apps::wrongUsage);
}

std::unique_ptr<QApplication> openDisplay(int& argc, char** argv) {
  const QtMessageHandler usual = qInstallMessageHandler(endWithoutDisplay);
  auto application = std::make_unique<QApplication>(argc, argv);
  qInstallMessageHandler(usual);
  return application;
}

}  // namespace

int main(int argc, char** argv) {
  platform::holdStandardStreams();
  platform::keepRunningOnWriteSignals();
  CLI::App app("Apre la finestra dell'aggiornamento.\n", "aggnorvo-window");
  apps::speakItalian(app);
  console::ProgramOptions program;
  aggnorvo::addProgramOptions(app, program);
  if (const auto status = apps::parse(app, argc, argv)) return *status;
  if (const std::string missing = console::missingOf(program); !missing.empty()) {
    std::cerr << "aggnorvo-window: " << missing << "\n";
    return console::Refused;
  }
  const auto application = openDisplay(argc, argv);
  const console::ProgramScope scopeOfProgram(program);
  qt::QtDesktop desktop;
  controls::DesktopScope scope(desktop);
  console::frmAggMain window({.impostazioni = scopeOfProgram.settings(),
                              .cartella = scopeOfProgram.folder(),
                              .mostraPatch = showPatch});
  window.show();
  return desktop.run();
}
