#pragma once

#include "controls/control.h"

namespace controls {

class Label : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
};

class Button : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;

  /// What an operator's press does: raises `click`, unless the button is hidden or disabled (then false).
  bool press();

  Event<> click;
};

/// The values of a check box.
enum CheckValue : int { Unchecked = 0, Checked = 1, Grayed = 2 };

class CheckBox : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;

  int value() const { return value_; }
  /// 0, 1 or 2, otherwise error 380. A new value raises `click`, as an operator's tick does.
  void setValue(int value);
  /// What an operator's click does: ticks or unticks, unless the box is hidden or disabled (then false).
  bool toggle();

  Event<> click;

 private:
  int value_ = Unchecked;
};

}  // namespace controls
