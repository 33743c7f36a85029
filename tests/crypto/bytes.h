#pragma once

#include <string>
#include <string_view>

#include "runtime/variant.h"

namespace crypto {

inline runtime::Bytes fromHex(std::string_view digits) {
  runtime::Bytes all;
  for (std::size_t at = 0; at < digits.size(); at += 2)
    all.push_back(static_cast<std::byte>(std::stoul(std::string(digits.substr(at, 2)), nullptr, 16)));
  return all;
}

inline std::string toHex(const runtime::Bytes& bytes) {
  std::string digits;
  for (const std::byte byte : bytes) {
    digits += "0123456789abcdef"[std::to_integer<unsigned>(byte) / 16];
    digits += "0123456789abcdef"[std::to_integer<unsigned>(byte) % 16];
  }
  return digits;
}

}  // namespace crypto
