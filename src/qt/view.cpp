// What all views keep in step with their control.
#include "qt/view.h"

#include <QWidget>

#include "qt/text.h"

namespace qt {

controls::Subscription follow(controls::Control& control, QWidget& widget, std::function<void()> refresh) {
  widget.setObjectName(toQt(control.name()));
  auto update = [&control, &widget, refresh = std::move(refresh)] {
    if (widget.isHidden() == control.visible()) widget.setVisible(control.visible());
    widget.setEnabled(control.enabled());
    refresh();
  };
  update();
  return control.changed.subscribe(update);
}

}  // namespace qt
