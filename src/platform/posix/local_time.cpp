// Local time by the C library.
#include "platform/local_time.h"

#include <cmath>
#include <ctime>

namespace platform {

runtime::Date localDate(std::int64_t unixNanoseconds) {
  constexpr double unixEpoch = 25569;  // 1 January 1970 in days since 1899-12-30
  constexpr double secondsOfDay = 86400;
  const auto instant = static_cast<std::time_t>(std::floor(static_cast<long double>(unixNanoseconds) / 1e9L));
  std::tm local{};
  ::localtime_r(&instant, &local);
  const double days = unixEpoch + static_cast<double>(::timegm(&local)) / secondsOfDay;
  const double whole = std::floor(days);
  return {whole < 0 ? whole - (days - whole) : days};
}

}  // namespace platform
