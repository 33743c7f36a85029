#pragma once

#include <cstdint>

#include "crypto/EncUtils.h"
#include "crypto/shifts.h"

namespace crypto {

constexpr std::uint32_t toBits(const Word& word) {
  std::uint32_t bits = 0;
  for (const std::uint8_t byte : word) bits = shiftLeft(bits, 8) | byte;
  return bits;
}

constexpr Word toWord(std::uint32_t bits) {
  Word word{};
  for (auto byte = word.rbegin(); byte != word.rend(); ++byte, bits = shiftRight(bits, 8))
    *byte = static_cast<std::uint8_t>(bits);
  return word;
}

}  // namespace crypto
