#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

/// Little-endian numbers in a buffer. The caller has checked the bounds.
namespace jet::file {

inline std::uint16_t readU16(const std::byte* at) {
  return static_cast<std::uint16_t>(std::to_integer<unsigned>(at[0]) | std::to_integer<unsigned>(at[1]) << 8);
}

inline std::uint32_t readU24(const std::byte* at) {
  return readU16(at) | std::to_integer<std::uint32_t>(at[2]) << 16;
}

inline std::uint32_t readU32(const std::byte* at) {
  return readU16(at) | static_cast<std::uint32_t>(readU16(at + 2)) << 16;
}

inline std::uint64_t readU64(const std::byte* at) {
  return readU32(at) | static_cast<std::uint64_t>(readU32(at + 4)) << 32;
}

/// IEEE numbers.
inline double readDouble(const std::byte* at) {
  const std::uint64_t bits = readU64(at);
  double value;
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

inline float readSingle(const std::byte* at) {
  const std::uint32_t bits = readU32(at);
  float value;
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

}  // namespace jet::file
