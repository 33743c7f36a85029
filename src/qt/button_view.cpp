// Buttons and check boxes on screen.
#include "qt/button_view.h"

#include "qt/guard.h"
#include "qt/text.h"
#include "qt/view.h"

namespace qt {
namespace {

Qt::CheckState stateOf(int value) {
  constexpr Qt::CheckState states[] = {Qt::Unchecked, Qt::Checked, Qt::PartiallyChecked};
  return states[value];
}

}  // namespace

LabelView::LabelView(controls::Label& label, QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  subscription_ = follow(label, *this, [this, &label] { setText(toQt(label.caption())); });
}

ButtonView::ButtonView(controls::Button& button, QWidget* parent) : QPushButton(parent) {
  setAutoDefault(true);
  subscription_ = follow(button, *this, [this, &button] {
    setText(toQt(button.caption()));
    setAccessibleName(withoutMnemonic(text()));
  });
  connect(this, &QPushButton::clicked, this, [&button] { guarded([&] { button.press(); }); });
}

CheckBoxView::CheckBoxView(controls::CheckBox& box, QWidget* parent) : QCheckBox(parent) {
  auto refresh = [this, &box] {
    setText(toQt(box.caption()));
    setAccessibleName(withoutMnemonic(text()));
    setTristate(box.value() == controls::Grayed);
    setCheckState(stateOf(box.value()));
  };
  subscription_ = follow(box, *this, refresh);
  // The model decides what a click means; the widget has already ticked itself.
  connect(this, &QCheckBox::clicked, this, [&box, refresh] {
    guarded([&] { box.toggle(); });
    refresh();
  });
}

}  // namespace qt
