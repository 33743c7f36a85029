#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

/// Little-endian numbers into a buffer. The caller has checked the bounds.
namespace jet::file {

inline void putU8(std::byte* at, std::size_t value) {
  *at = static_cast<std::byte>(value);
}

inline void putU16(std::byte* at, std::size_t value) {
  at[0] = static_cast<std::byte>(value & 0xFF);
  at[1] = static_cast<std::byte>(value >> 8 & 0xFF);
}

inline void putU24(std::byte* at, std::uint32_t value) {
  putU16(at, value);
  at[2] = static_cast<std::byte>(value >> 16 & 0xFF);
}

inline void putU32(std::byte* at, std::uint32_t value) {
  putU16(at, value);
  putU16(at + 2, value >> 16);
}

inline void appendU8(std::vector<std::byte>& out, std::size_t value) {
  out.push_back(static_cast<std::byte>(value));
}

inline void appendU16(std::vector<std::byte>& out, std::size_t value) {
  appendU8(out, value & 0xFF);
  appendU8(out, value >> 8 & 0xFF);
}

inline void appendU32(std::vector<std::byte>& out, std::uint32_t value) {
  appendU16(out, value & 0xFFFF);
  appendU16(out, value >> 16);
}

inline void appendZeros(std::vector<std::byte>& out, std::size_t count) {
  out.insert(out.end(), count, std::byte{0});
}

inline void appendBytes(std::vector<std::byte>& out, std::span<const std::byte> bytes) {
  out.insert(out.end(), bytes.begin(), bytes.end());
}

}  // namespace jet::file
