#pragma once

#include <QListWidget>

#include "controls/list_box.h"

namespace qt {

/// A list whose height asks for a few rows. Enter on a row is its double click.
class ListBoxView : public QListWidget {
 public:
  ListBoxView(controls::ListBox& list, QWidget* parent);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void refresh();
  void pickSelected();
  int selectedRow() const;
  int heightOf(int rows) const;

  controls::ListBox& list_;
  controls::Subscription subscription_;
};

}  // namespace qt
