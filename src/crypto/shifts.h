#pragma once

#include <concepts>
#include <cstdint>
#include <limits>

#include "runtime/error.h"

namespace crypto {

/// Shifts of 32 bits or of a byte; zeros come in. Error 6 unless the count is from 0 to one less than the
/// bits.
template <std::unsigned_integral T>
constexpr T shiftLeft(T value, int count) {
  if (count < 0 || count >= std::numeric_limits<T>::digits) throw runtime::languageError(runtime::Overflow);
  return static_cast<T>(value << count);
}

template <std::unsigned_integral T>
constexpr T shiftRight(T value, int count) {
  if (count < 0 || count >= std::numeric_limits<T>::digits) throw runtime::languageError(runtime::Overflow);
  return static_cast<T>(value >> count);
}

/// By 0 to 31 bits.
constexpr std::uint32_t rotateLeft(std::uint32_t value, int count) {
  return count == 0 ? value : shiftLeft(value, count) | shiftRight(value, 32 - count);
}

}  // namespace crypto
