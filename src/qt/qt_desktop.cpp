// Boxes, dialogs, events and pointer by Qt.
#include "qt/qt_desktop.h"

#include <QApplication>
#include <QCursor>
#include <QEventLoop>
#include <QInputDialog>
#include <QLibraryInfo>
#include <QScreen>
#include <QWindow>

#include "controls/form.h"
#include "qt/boxes.h"
#include "qt/main_window.h"
#include "qt/patch_window.h"
#include "qt/text.h"

namespace qt {
namespace {

FormWindow* makeWindow(controls::Form& form) {
  if (form.name() == "frmAggMain") return new MainWindow(form);
  if (form.name() == "frmPatch") return new PatchWindow(form);
  return new StackedWindow(form);
}

/// A box is answered with the ordinary pointer, also in the middle of a run.
class OrdinaryPointer {
 public:
  OrdinaryPointer() : covers_(QApplication::overrideCursor()) {
    if (covers_) QApplication::setOverrideCursor(Qt::ArrowCursor);
  }
  ~OrdinaryPointer() {
    if (covers_) QApplication::restoreOverrideCursor();
  }

 private:
  bool covers_;
};

}  // namespace

QtDesktop::QtDesktop() {
  QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
  // The words of the toolkit itself, where its translations are installed: context menus and file dialog.
  if (italian_.load("qtbase_it", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QCoreApplication::installTranslator(&italian_);
  QApplication::setQuitOnLastWindowClosed(false);
}

QtDesktop::~QtDesktop() {
  for (const auto& [form, window] : windows_) delete window.data();
}

int QtDesktop::run() {
  return ended_ || windows_.empty() ? 0 : QApplication::exec();
}

FormWindow* QtDesktop::windowOf(controls::Form& form) {
  const auto found = windows_.find(&form);
  return found == windows_.end() ? nullptr : found->second.data();
}

controls::MessageAnswer QtDesktop::showBox(const std::string& text, int style, const std::string& title) {
  const OrdinaryPointer pointer;
  return askBox(toQt(text), style, toQt(title));
}

std::string QtDesktop::showInput(const std::string& prompt, const std::string& title,
                                 const std::string& text) {
  const OrdinaryPointer pointer;
  return fromQt(askText(toQt(prompt), toQt(title), toQt(text)));
}

bool QtDesktop::showOpen(controls::CommonDialog& dialog) {
  const OrdinaryPointer pointer;
  return askFile(dialog);
}

void QtDesktop::doEvents() {
  QCoreApplication::processEvents();
}

void QtDesktop::setMousePointer(controls::MousePointer pointer) {
  while (QApplication::overrideCursor()) QApplication::restoreOverrideCursor();
  if (pointer == controls::MousePointer::Hourglass) QApplication::setOverrideCursor(Qt::WaitCursor);
  if (pointer == controls::MousePointer::Arrow) QApplication::setOverrideCursor(Qt::ArrowCursor);
}

int QtDesktop::screenWidth() const {
  return QGuiApplication::primaryScreen()->availableSize().width();
}

int QtDesktop::screenHeight() const {
  return QGuiApplication::primaryScreen()->availableSize().height();
}

void QtDesktop::loadForm(controls::Form& form) {
  FormWindow* window = makeWindow(form);
  windows_[&form] = window;
  window->takeNaturalSize();
}

void QtDesktop::showForm(controls::Form& form, bool modal) {
  FormWindow* window = windowOf(form);
  if (!window || ended_) return;
  if (modal) {
    window->setWindowModality(Qt::ApplicationModal);
    // Before the window that it was opened from, in the taskbar too. A parent would delete it with itself.
    QWidget* owner = ownerWindow();
    if (owner && owner != window) {
      window->winId();  // makes the handle
      window->windowHandle()->setTransientParent(owner->windowHandle());
    }
  }
  window->show();
  window->activateWindow();
  if (!modal) return;
  QEventLoop loop;
  QObject::connect(window, &QObject::destroyed, &loop, &QEventLoop::quit);
  loop.exec();
}

void QtDesktop::keepOnTop(controls::Form& form, bool onTop) {
  FormWindow* window = windowOf(form);
  if (!window || !window->isVisible()) return;
  // The flag of the widget itself would take the window off the screen for a moment.
  window->windowHandle()->setFlag(Qt::WindowStaysOnTopHint, onTop);
  window->raise();
  window->activateWindow();
}

void QtDesktop::unloadForm(controls::Form& form) {
  const auto found = windows_.find(&form);
  if (found == windows_.end()) return;
  // One of the window's own widgets may be on the stack, in the click that led here.
  if (FormWindow* window = found->second) {
    window->hide();
    window->deleteLater();
  }
  windows_.erase(found);
  if (windows_.empty()) endProgram();
}

void QtDesktop::endProgram() {
  ended_ = true;
  QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
}

}  // namespace qt
