// Bytes to digits and back.
#include "crypto/hexadecimal.h"

#include "runtime/numbers.h"
#include "runtime/text.h"

namespace crypto {

std::string hexadecimal(std::span<const std::byte> bytes) {
  std::string digits;
  digits.reserve(2 * bytes.size());
  for (const std::byte byte : bytes)
    digits += runtime::right("0" + runtime::hex(std::to_integer<std::int16_t>(byte)), 2);
  return digits;
}

}  // namespace crypto
