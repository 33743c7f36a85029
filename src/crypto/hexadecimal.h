#pragma once

#include <cstddef>
#include <span>
#include <string>

namespace crypto {

/// Two digits for each byte, in capitals.
std::string hexadecimal(std::span<const std::byte> bytes);

}  // namespace crypto
