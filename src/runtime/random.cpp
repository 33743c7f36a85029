// The language's random numbers, which repeat from the same seed.
#include "runtime/random.h"

#include <bit>

namespace runtime {

float Random::next(float argument) {
  constexpr std::uint32_t mask = 0xFFFFFF;
  if (argument < 0) {
    const auto bits = std::bit_cast<std::uint32_t>(argument);
    state_ = (bits + (bits >> 24)) & mask;
  }
  if (argument != 0) state_ = (state_ * 0x43FD43FDu + 0xC39EC3u) & mask;
  return static_cast<float>(state_) / static_cast<float>(mask + 1);
}

}  // namespace runtime
