// A list on screen, in step with its model.
#include "qt/list_box_view.h"

#include <QKeyEvent>

#include "qt/guard.h"
#include "qt/text.h"
#include "qt/view.h"

namespace qt {

ListBoxView::ListBoxView(controls::ListBox& list, QWidget* parent) : QListWidget(parent), list_(list) {
  setSelectionMode(QAbstractItemView::SingleSelection);
  setTextElideMode(Qt::ElideNone);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  // With the keyboard alone, Tab must leave the list again.
  setTabKeyNavigation(false);
  subscription_ = follow(list, *this, [this] { refresh(); });
  connect(this, &QListWidget::itemSelectionChanged, this, [this] { pickSelected(); });
  connect(this, &QListWidget::itemDoubleClicked, this,
          [this] { guarded([this] { list_.pickTwice(selectedRow()); }); });
}

void ListBoxView::refresh() {
  if (list_.listCount() < count()) clear();
  while (count() < list_.listCount()) addItem(toQt(list_.list(count())));
  if (selectedRow() != list_.listIndex()) {
    setCurrentRow(list_.listIndex());
    if (list_.listIndex() < 0) clearSelection();
  }
}

void ListBoxView::pickSelected() {
  const int row = selectedRow();
  // The control knows the row already where it has chosen it itself.
  if (row >= 0 && row != list_.listIndex()) guarded([&] { list_.pick(row); });
}

int ListBoxView::selectedRow() const {
  const auto rows = selectionModel()->selectedRows();
  return rows.isEmpty() ? -1 : rows.front().row();
}

void ListBoxView::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!enter || selectedRow() < 0) {
    QListWidget::keyPressEvent(event);
  } else if (!event->isAutoRepeat()) {
    guarded([this] { list_.pickTwice(selectedRow()); });
  }
}

int ListBoxView::heightOf(int rows) const {
  return rows * (fontMetrics().lineSpacing() + 4) + 2 * frameWidth();
}

QSize ListBoxView::sizeHint() const {
  return {fontMetrics().averageCharWidth() * 60, heightOf(6)};
}

QSize ListBoxView::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth() * 30, heightOf(3)};
}

}  // namespace qt
