#pragma once

#include <functional>

#include "controls/control.h"

class QWidget;

namespace qt {

/// Keeps a widget's name, visibility and availability as its control says, and calls `refresh` for the rest,
/// now and at every change. The result belongs into the view.
[[nodiscard]] controls::Subscription follow(
    controls::Control& control, QWidget& widget, std::function<void()> refresh = [] {});

}  // namespace qt
