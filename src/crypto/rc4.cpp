// RC4: its table of 256 bytes and the stream that it gives.
#include <numeric>
#include <utility>

#include "crypto/EncUtils.h"
#include "platform/code_page.h"
#include "runtime/error.h"

namespace crypto {

void EncUtils::RC4Initialize(std::string_view chiave) {
  const std::string key = platform::toCodePage1252(chiave);
  if (key.empty()) throw languageError(runtime::DivisionByZero);
  std::iota(box_.begin(), box_.end(), std::uint8_t{0});
  std::uint8_t other = 0;
  for (std::size_t i = 0; i < box_.size(); ++i) {
    other = static_cast<std::uint8_t>(other + box_[i] + static_cast<unsigned char>(key[i % key.size()]));
    std::swap(box_[i], box_[other]);
  }
}

std::string EncUtils::RC4(std::string_view testo, std::string_view chiave) {
  RC4Initialize(chiave);
  std::string bytes = platform::toCodePage1252(testo);
  std::uint8_t one = 0, other = 0;
  for (char& byte : bytes) {
    ++one;
    other = static_cast<std::uint8_t>(other + box_[one]);
    std::swap(box_[one], box_[other]);
    const auto sum = static_cast<std::uint8_t>(box_[one] + box_[other]);
    byte = static_cast<char>(static_cast<std::uint8_t>(byte) ^ box_[sum]);
  }
  return platform::fromCodePage1252(bytes);
}

}  // namespace crypto
