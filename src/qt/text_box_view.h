#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

#include "controls/text_box.h"

namespace qt {

/// A text box of one line. On a drop target, files dropped go to the control as paths of the product.
class LineEditView : public QLineEdit {
 public:
  LineEditView(controls::TextBox& box, QWidget* parent);

  QSize minimumSizeHint() const override;

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void refresh();

  controls::TextBox& box_;
  controls::Subscription properties_;
  controls::Subscription texts_[2];
};

/// A text box of many lines. What is appended is added at the end alone, and the end stays in view unless the
/// operator has scrolled away from it. Tab leaves the box.
class TextEditView : public QPlainTextEdit {
 public:
  TextEditView(controls::TextBox& box, QWidget* parent);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void replace();
  void append(std::string_view text);
  void takeTyped();
  void followEnd();
  QSize sizeOf(int columns, int rows) const;

  controls::TextBox& box_;
  bool followsEnd_ = true;
  bool synchronizing_ = false;
  controls::Subscription properties_;
  controls::Subscription texts_[2];
};

}  // namespace qt
