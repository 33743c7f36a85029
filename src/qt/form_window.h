#pragma once

#include <QMainWindow>

#include "controls/form.h"

class QPushButton;

namespace qt {

/// The window of a form: title, place, size, pointer, menu and the way out. Closing it by its frame unloads
/// the form; the window itself goes when the desktop takes it away. A class that derives from it lays the
/// controls out.
class FormWindow : public QMainWindow {
 public:
  explicit FormWindow(controls::Form& form);

  controls::Form& form() { return form_; }
  /// The views that the Tab key reaches, in the order of their controls' tabIndex; without one, behind them.
  QWidgetList tabOrder() const;
  /// Gives the form the size that the layout asks for, at most the screen's. To be called once, when laid
  /// out.
  void takeNaturalSize();

 protected:
  /// The view of a control, made as a child of `parent` and bound to it; nullptr for a control without a
  /// face.
  QWidget* viewOf(controls::Control& control, QWidget* parent);
  /// Makes `page` the window's content and brings its views into the order of the Tab key.
  void setPage(QWidget* page);
  /// The button that Enter presses wherever Enter has no meaning of its own.
  void setDefaultButton(QPushButton* button);
  /// The button that Esc presses wherever Esc has no meaning of its own.
  void setCancelButton(QPushButton* button);

  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void refresh();
  void tellGeometry();

  controls::Form& form_;
  QPushButton* defaultButton_ = nullptr;
  QPushButton* cancelButton_ = nullptr;
  bool synchronizing_ = false;
  controls::Subscription subscription_;
  controls::Subscription delayed_;
};

/// A window for forms that want no layout of their own: labels and boxes one above the other in the order of
/// the form, and the buttons in a row at the bottom.
class StackedWindow : public FormWindow {
 public:
  explicit StackedWindow(controls::Form& form);
};

}  // namespace qt
