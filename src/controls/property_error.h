#pragma once

#include <string>

#include "runtime/error.h"

namespace controls {

/// Error 380: `property` of `control` was given a value that it cannot have.
runtime::Error invalidProperty(const std::string& control, const std::string& property);

}  // namespace controls
