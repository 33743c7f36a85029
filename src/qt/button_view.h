#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include "controls/button.h"

namespace qt {

class LabelView : public QLabel {
 public:
  LabelView(controls::Label& label, QWidget* parent);

 private:
  controls::Subscription subscription_;
};

/// Enter presses it while it has the focus, as the space bar does.
class ButtonView : public QPushButton {
 public:
  ButtonView(controls::Button& button, QWidget* parent);

 private:
  controls::Subscription subscription_;
};

class CheckBoxView : public QCheckBox {
 public:
  CheckBoxView(controls::CheckBox& box, QWidget* parent);

 private:
  controls::Subscription subscription_;
};

}  // namespace qt
