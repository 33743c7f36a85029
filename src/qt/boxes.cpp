// Message and input boxes with Italian buttons.
#include "qt/boxes.h"

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>
#include <map>

#include "controls/common_dialog.h"
#include "platform/paths.h"
#include "qt/text.h"

namespace qt {
namespace {

QMessageBox::Icon iconOf(int style) {
  switch (controls::iconOf(style)) {
    case controls::vbCritical:
      return QMessageBox::Critical;
    case controls::vbQuestion:
      return QMessageBox::Question;
    case controls::vbExclamation:
      return QMessageBox::Warning;
    case controls::vbInformation:
      return QMessageBox::Information;
    default:
      return QMessageBox::NoIcon;
  }
}

QMessageBox::ButtonRole roleOf(controls::MessageAnswer button) {
  switch (button) {
    case controls::vbYes:
      return QMessageBox::YesRole;
    case controls::vbNo:
      return QMessageBox::NoRole;
    case controls::vbCancel:
    case controls::vbAbort:
      return QMessageBox::RejectRole;
    default:
      return QMessageBox::AcceptRole;
  }
}

/// What Esc and the frame answer: the button that changes nothing.
controls::MessageAnswer escapeOf(int style) {
  for (const auto button : {controls::vbCancel, controls::vbNo, controls::vbAbort})
    if (controls::hasButton(style, button)) return button;
  return controls::defaultButtonOf(style);
}

}  // namespace

QWidget* ownerWindow() {
  if (QWidget* active = QApplication::activeWindow()) return active;
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  const QWidgetList all = QApplication::topLevelWidgets();
  const auto main = std::ranges::find_if(all, [](const QWidget* window) {
    return window->isVisible() && qobject_cast<const QMainWindow*>(window);
  });
  return main == all.end() ? nullptr : *main;
}

controls::MessageAnswer askBox(const QString& text, int style, const QString& title) {
  QMessageBox box(ownerWindow());
  box.setWindowTitle(title);
  box.setTextFormat(Qt::PlainText);
  box.setText(QString(text).remove(u'\r'));
  box.setIcon(iconOf(style));
  std::map<QAbstractButton*, controls::MessageAnswer> answers;
  for (const controls::MessageAnswer answer : controls::buttonsOf(style)) {
    QPushButton* button = box.addButton(u'&' + toQt(controls::captionOf(answer)), roleOf(answer));
    answers[button] = answer;
    if (answer == controls::defaultButtonOf(style)) box.setDefaultButton(button);
    if (answer == escapeOf(style)) box.setEscapeButton(button);
  }
  box.exec();
  const auto pressed = answers.find(box.clickedButton());
  return pressed == answers.end() ? escapeOf(style) : pressed->second;
}

QString askText(const QString& prompt, const QString& title, const QString& text) {
  QInputDialog dialog(ownerWindow());
  dialog.setWindowTitle(title);
  dialog.setLabelText(prompt);
  dialog.setTextValue(text);
  dialog.setOkButtonText("&OK");
  dialog.setCancelButtonText("&Annulla");
  return dialog.exec() == QDialog::Accepted ? dialog.textValue() : QString();
}

QStringList nameFilters(const QString& filter) {
  QStringList filters;
  const QStringList parts = filter.split(u'|');
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const QString patterns = QString(parts[i + 1]).replace(u';', u' ');
    const qsizetype bracket = parts[i].indexOf(u'(');
    filters << parts[i].left(bracket).trimmed() + " (" + patterns + ')';
  }
  return filters;
}

bool askFile(controls::CommonDialog& dialog) {
  QFileDialog window(ownerWindow(), toQt(dialog.dialogTitle()));
  const bool mustExist = dialog.flags() & controls::CommonDialog::FileMustExist;
  window.setAcceptMode(QFileDialog::AcceptOpen);
  window.setFileMode(mustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  window.setNameFilters(nameFilters(toQt(dialog.filter())));
  window.setLabelText(QFileDialog::Accept, "&Apri");
  window.setLabelText(QFileDialog::Reject, "A&nnulla");
  window.setLabelText(QFileDialog::FileName, "&Nome file:");
  window.setLabelText(QFileDialog::FileType, "Tipo di file:");
  window.setLabelText(QFileDialog::LookIn, "Cerca in:");
  if (!dialog.fileName().empty()) window.selectFile(toQt(platform::toSystemPath(dialog.fileName())));
  if (window.exec() != QDialog::Accepted || window.selectedFiles().isEmpty()) return false;
  dialog.setFileName(platform::fromSystemPath(fromQt(window.selectedFiles().front())));
  return true;
}

}  // namespace qt
