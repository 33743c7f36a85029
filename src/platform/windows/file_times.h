#pragma once

#include <windows.h>

#include <cstdint>

namespace platform::windows {

/// The system counts tenths of microseconds from the year 1601. What the other side can't hold is cut to its
/// end.
std::int64_t unixNanoseconds(const FILETIME& time);
FILETIME fileTime(std::int64_t unixNanoseconds);

}  // namespace platform::windows
