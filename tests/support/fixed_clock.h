#pragma once

#include "platform/clock.h"
#include "runtime/date.h"

namespace support {

/// 16/11/2026 17:16:00, and a timer; both move only while somebody waits.
class FixedClock : public platform::Clock {
 public:
  FixedClock() : before_(platform::setClock(this)) {}
  ~FixedClock() override { platform::setClock(before_); }
  FixedClock(const FixedClock&) = delete;
  FixedClock& operator=(const FixedClock&) = delete;

  runtime::Date now() override {
    const int second = waited_ / 1000;
    return runtime::dateFromParts(2026, 11, 16, 17, 16 + second / 60, second % 60);
  }
  float timer() override { return seconds; }
  void rest(int milliseconds) override {
    waited_ += milliseconds;
    seconds += static_cast<float>(milliseconds) / 1000;
    if (seconds >= 86400) seconds -= 86400;
  }

  float seconds = 62160;

 private:
  platform::Clock* before_;
  int waited_ = 0;  // milliseconds
};

}  // namespace support
