#pragma once

#include <QAction>
#include <QMenu>

#include "controls/menu_item.h"

namespace qt {

/// An entry of a menu, or the line between entries.
class ActionView : public QAction {
 public:
  ActionView(controls::MenuItem& item, QObject* parent);

 private:
  controls::Subscription subscription_;
};

/// A menu with its entries and menus.
class MenuView : public QMenu {
 public:
  MenuView(controls::MenuItem& menu, QWidget* parent);

 private:
  controls::Subscription subscription_;
};

}  // namespace qt
