// Local time by the system's time zone.
#include "platform/local_time.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "platform/windows/file_times.h"

namespace platform {

namespace windows {

namespace {

constexpr std::int64_t Unit = 100;                           // nanoseconds
constexpr std::int64_t UnixEpoch = 116'444'736'000'000'000;  // 1 January 1970 in the system's count

}  // namespace

std::int64_t unixNanoseconds(const FILETIME& time) {
  constexpr std::int64_t farthest = std::numeric_limits<std::int64_t>::max() / Unit;
  const auto count =
      static_cast<std::int64_t>(static_cast<std::uint64_t>(time.dwHighDateTime) << 32 | time.dwLowDateTime);
  return std::clamp(count - UnixEpoch, -farthest, farthest) * Unit;
}

FILETIME fileTime(std::int64_t unixNanoseconds) {
  const std::int64_t part = (unixNanoseconds % Unit + Unit) % Unit;
  const auto count =
      static_cast<std::uint64_t>(std::max<std::int64_t>((unixNanoseconds - part) / Unit + UnixEpoch, 0));
  return {static_cast<DWORD>(count), static_cast<DWORD>(count >> 32)};
}

}  // namespace windows

runtime::Date localDate(std::int64_t unixNanoseconds) {
  constexpr double startOfCount = -109205;  // 1 January 1601 in days since 1899-12-30
  constexpr double unitsOfSecond = 1e7, secondsOfDay = 86400;
  const FILETIME instant = windows::fileTime(unixNanoseconds);
  SYSTEMTIME universal{}, local{};
  FILETIME result{};
  if (!::FileTimeToSystemTime(&instant, &universal) ||
      !::SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local) ||
      !::SystemTimeToFileTime(&local, &result))
    return {startOfCount};
  const auto count =
      static_cast<double>(static_cast<std::uint64_t>(result.dwHighDateTime) << 32 | result.dwLowDateTime);
  const double days = startOfCount + std::floor(count / unitsOfSecond) / secondsOfDay;
  const double whole = std::floor(days);
  return {whole < 0 ? whole - (days - whole) : days};
}

}  // namespace platform
