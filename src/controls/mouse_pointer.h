#pragma once

namespace controls {

enum class MousePointer : int { Default = 0, Arrow = 1, Hourglass = 11 };

}  // namespace controls
