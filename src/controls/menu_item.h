#pragma once

#include <vector>

#include "controls/control.h"

namespace controls {

/// A menu, an entry of it, or the line between entries (caption "-").
class MenuItem : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;

  bool separator() const { return caption() == "-"; }
  /// Appends an entry, which its window owns and keeps as long as this one.
  void add(MenuItem& item) { children_.push_back(&item); }
  const std::vector<MenuItem*>& children() const { return children_; }

  /// What an operator's choice does: raises `click`, unless the entry is hidden, disabled or a line (then
  /// false).
  bool choose();

  Event<> click;

 private:
  std::vector<MenuItem*> children_;
};

}  // namespace controls
