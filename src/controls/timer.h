#pragma once

#include "controls/control.h"

namespace controls {

/// Raises `timer` every `interval` milliseconds while it is enabled and the interval is above 0. Disabled at
/// first.
class Timer : public Control {
 public:
  explicit Timer(std::string name = {}) : Control(std::move(name)) { setEnabled(false); }

  int interval() const { return interval_; }
  void setInterval(int milliseconds) { assign(interval_, milliseconds); }
  bool running() const { return enabled() && interval_ > 0; }

  Event<> timer;

 private:
  int interval_ = 0;
};

}  // namespace controls
