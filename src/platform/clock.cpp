// The clock in force, and waiting on it.
#include "platform/clock.h"

#include <chrono>
#include <cmath>
#include <thread>
#include <utility>

#include "platform/local_time.h"
#include "runtime/date.h"

namespace platform {

namespace {

std::int64_t unixNanoseconds() {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
}

Clock systemClock;
Clock* replacementInForce = nullptr;

}  // namespace

runtime::Date Clock::now() {
  return localDate(unixNanoseconds());
}

float Clock::timer() {
  constexpr std::int64_t second = 1'000'000'000;
  const std::int64_t instant = unixNanoseconds();
  const double days = localDate(instant).days;
  const double seconds = std::round((days - std::floor(days)) * 86400);
  return static_cast<float>(seconds + static_cast<double>(instant % second) / static_cast<double>(second));
}

void Clock::rest(int milliseconds) {
  std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

Clock& clock() {
  return replacementInForce ? *replacementInForce : systemClock;
}

Clock* setClock(Clock* replacement) {
  const auto year = [] { return runtime::partsOf(clock().now()).year; };
  runtime::setYearSource(replacement ? static_cast<runtime::YearSource>(year) : nullptr);
  return std::exchange(replacementInForce, replacement);
}

}  // namespace platform
