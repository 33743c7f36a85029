#pragma once

#include <span>
#include <string>
#include <string_view>

#include "plain_rijndael.h"
#include "runtime/variant.h"

namespace crypto {

inline runtime::Bytes bytes(const plain::Bytes& numbers) {
  const std::span<const std::byte> all = std::as_bytes(std::span(numbers));
  return {all.begin(), all.end()};
}

inline plain::Bytes numbers(std::span<const std::byte> bytes) {
  plain::Bytes all;
  for (const std::byte byte : bytes) all.push_back(std::to_integer<std::uint8_t>(byte));
  return all;
}

inline plain::Bytes fromHex(std::string_view digits) {
  plain::Bytes all;
  for (std::size_t at = 0; at < digits.size(); at += 2)
    all.push_back(static_cast<std::uint8_t>(std::stoul(std::string(digits.substr(at, 2)), nullptr, 16)));
  return all;
}

inline std::string toHex(std::span<const std::uint8_t> bytes) {
  std::string digits;
  for (const unsigned byte : bytes) {
    digits += "0123456789abcdef"[byte / 16];
    digits += "0123456789abcdef"[byte % 16];
  }
  return digits;
}

}  // namespace crypto
