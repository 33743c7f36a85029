#pragma once

#include <functional>

namespace qt {

/// Runs what an operator's action asks for. An error that no procedure has trapped is shown in a box: it must
/// not travel through the toolkit.
void guarded(const std::function<void()>& action);

}  // namespace qt
