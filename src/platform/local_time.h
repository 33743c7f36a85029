#pragma once

#include <cstdint>

#include "runtime/variant.h"

namespace platform {

/// An instant of the system as local date and time, in whole seconds.
runtime::Date localDate(std::int64_t unixNanoseconds);

}  // namespace platform
