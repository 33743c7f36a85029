#pragma once

#include <cstdint>

namespace runtime {

/// The language's Rnd: numbers from 0 up to but not including 1, the same row of them in each run.
class Random {
 public:
  /// Above 0: the next number. 0: the last one again. Below 0: always the same for the same `argument`, from
  /// which the row then goes on.
  float next(float argument = 1);

 private:
  std::uint32_t state_ = 0x50000;  // 24 bits
};

}  // namespace runtime
