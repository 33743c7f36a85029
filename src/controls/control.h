#pragma once

#include <string>

#include "controls/event.h"

namespace controls {

/// What every control of a window has. A setter that changes something raises `changed`, by which a view
/// follows.
class Control {
 public:
  explicit Control(std::string name = {}) : name_(std::move(name)) {}
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const std::string& name() const { return name_; }
  bool visible() const { return visible_; }
  void setVisible(bool visible) { assign(visible_, visible); }
  bool enabled() const { return enabled_; }
  void setEnabled(bool enabled) { assign(enabled_, enabled); }
  /// Place in the order of the Tab key; -1 where the window's own order counts.
  int tabIndex() const { return tabIndex_; }
  void setTabIndex(int index) { assign(tabIndex_, index); }
  /// True if an operator could reach the control now.
  bool reachable() const { return visible_ && enabled_; }

  /// A property other than a text box's text has a new value.
  Event<> changed;

 protected:
  /// Stores `value` and tells the view, if it is a new one.
  template <typename T, typename U>
  bool assign(T& property, U&& value) {
    if (property == value) return false;
    property = std::forward<U>(value);
    changed.raise();
    return true;
  }

 private:
  std::string name_;
  bool visible_ = true;
  bool enabled_ = true;
  int tabIndex_ = -1;
};

/// A control with a caption, where "&" marks the letter that the keyboard reaches it by.
class CaptionedControl : public Control {
 public:
  CaptionedControl(std::string name, std::string caption)
      : Control(std::move(name)), caption_(std::move(caption)) {}

  const std::string& caption() const { return caption_; }
  void setCaption(const std::string& caption) { assign(caption_, caption); }

 private:
  std::string caption_;
};

}  // namespace controls
