// A form's window: place, pointer, menu and the ways out of it.
#include "qt/form_window.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScreen>
#include <QStatusBar>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

#include "qt/button_view.h"
#include "qt/guard.h"
#include "qt/list_box_view.h"
#include "qt/menu_view.h"
#include "qt/text.h"
#include "qt/text_box_view.h"
#include "qt/timer_view.h"

namespace qt {

FormWindow::FormWindow(controls::Form& form) : form_(form) {
  setObjectName(toQt(form.name()));
  for (controls::MenuItem* menu : form.menus()) menuBar()->addMenu(new MenuView(*menu, menuBar()));
  for (controls::Control* control : form.controlList())
    if (auto* timer = dynamic_cast<controls::Timer*>(control)) new TimerView(*timer, this);
  refresh();
  subscription_ = form.changed.subscribe([this] { refresh(); });
  delayed_ = form.unloadDelayed.subscribe(
      [this] { statusBar()->showMessage("La finestra si chiuderà al termine dell'operazione in corso."); });
}

QWidget* FormWindow::viewOf(controls::Control& control, QWidget* parent) {
  if (auto* label = dynamic_cast<controls::Label*>(&control)) return new LabelView(*label, parent);
  if (auto* button = dynamic_cast<controls::Button*>(&control)) return new ButtonView(*button, parent);
  if (auto* box = dynamic_cast<controls::CheckBox*>(&control)) return new CheckBoxView(*box, parent);
  if (auto* list = dynamic_cast<controls::ListBox*>(&control)) return new ListBoxView(*list, parent);
  auto* text = dynamic_cast<controls::TextBox*>(&control);
  if (!text) return nullptr;
  if (text->multiLine()) return new TextEditView(*text, parent);
  return new LineEditView(*text, parent);
}

QWidgetList FormWindow::tabOrder() const {
  std::vector<controls::Control*> order = form_.controlList();
  std::ranges::stable_sort(
      order, {}, [](const controls::Control* control) { return static_cast<unsigned>(control->tabIndex()); });
  QWidgetList views;
  for (const controls::Control* control : order) {
    auto* view = findChild<QWidget*>(toQt(control->name()));
    if (view && view->focusPolicy() & Qt::TabFocus) views << view;
  }
  return views;
}

void FormWindow::setPage(QWidget* page) {
  setCentralWidget(page);
  QWidget* before = nullptr;
  for (QWidget* view : tabOrder()) {
    if (before) setTabOrder(before, view);
    before = view;
  }
}

void FormWindow::setDefaultButton(QPushButton* button) {
  defaultButton_ = button;
  button->setDefault(true);
}

void FormWindow::setCancelButton(QPushButton* button) {
  cancelButton_ = button;
}

void FormWindow::takeNaturalSize() {
  const QSize frame(0, style()->pixelMetric(QStyle::PM_TitleBarHeight));
  resize(sizeHint().boundedTo(screen()->availableSize() - frame));
  tellGeometry();
}

void FormWindow::refresh() {
  setWindowTitle(toQt(form_.caption()));
  if (form_.mousePointer() == controls::MousePointer::Default) {
    unsetCursor();
  } else {
    setCursor(form_.mousePointer() == controls::MousePointer::Hourglass ? Qt::WaitCursor : Qt::ArrowCursor);
  }
  if (synchronizing_ || form_.width() == 0) return;
  const QScopedValueRollback guard(synchronizing_, true);
  if (pos() != QPoint(form_.left(), form_.top())) move(form_.left(), form_.top());
  if (size() != QSize(form_.width(), form_.height())) resize(form_.width(), form_.height());
}

void FormWindow::tellGeometry() {
  if (synchronizing_) return;
  const QScopedValueRollback guard(synchronizing_, true);
  form_.setLeft(x());
  form_.setTop(y());
  form_.setWidth(width());
  form_.setHeight(height());
}

void FormWindow::moveEvent(QMoveEvent* event) {
  QMainWindow::moveEvent(event);
  if (isVisible()) tellGeometry();
}

void FormWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  if (isVisible()) tellGeometry();
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->setAccepted(!form_.loaded());
  if (form_.loaded()) guarded([this] { form_.unload(); });
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  QPushButton* button = enter ? defaultButton_ : event->key() == Qt::Key_Escape ? cancelButton_ : nullptr;
  if (button && button->isVisible()) {
    if (!event->isAutoRepeat()) button->click();
  } else {
    QMainWindow::keyPressEvent(event);
  }
}

StackedWindow::StackedWindow(controls::Form& form) : FormWindow(form) {
  auto* page = new QWidget(this);
  auto* column = new QVBoxLayout(page);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  for (controls::Control* control : form.controlList()) {
    QWidget* view = viewOf(*control, page);
    if (!view) continue;
    const bool large = dynamic_cast<TextEditView*>(view) || dynamic_cast<ListBoxView*>(view);
    if (dynamic_cast<ButtonView*>(view)) {
      buttons->addWidget(view);
    } else {
      column->addWidget(view, large ? 1 : 0);
    }
  }
  column->addLayout(buttons);
  setPage(page);
}

}  // namespace qt
