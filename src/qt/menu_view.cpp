// Menus on screen.
#include "qt/menu_view.h"

#include "qt/guard.h"
#include "qt/text.h"

namespace qt {
namespace {

/// As qt::follow, for what stands in a menu.
controls::Subscription followItem(controls::MenuItem& item, QAction& action) {
  action.setObjectName(toQt(item.name()));
  action.setSeparator(item.separator());
  // The suite's entry "&Esci" stays where the suite put it, whatever a desktop thinks of such names.
  action.setMenuRole(QAction::NoRole);
  auto update = [&item, &action] {
    // Some styles show the text of a line.
    if (!item.separator()) action.setText(toQt(item.caption()));
    action.setVisible(item.visible());
    action.setEnabled(item.enabled());
  };
  update();
  return item.changed.subscribe(update);
}

}  // namespace

ActionView::ActionView(controls::MenuItem& item, QObject* parent)
    : QAction(parent), subscription_(followItem(item, *this)) {
  connect(this, &QAction::triggered, this, [&item] { guarded([&] { item.choose(); }); });
}

MenuView::MenuView(controls::MenuItem& menu, QWidget* parent)
    : QMenu(parent), subscription_(followItem(menu, *menuAction())) {
  for (controls::MenuItem* child : menu.children()) {
    if (child->children().empty()) {
      addAction(new ActionView(*child, this));
    } else {
      addMenu(new MenuView(*child, this));
    }
  }
}

}  // namespace qt
