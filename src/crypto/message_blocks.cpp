// The padding that MD5 and SHA-1 share.
#include "crypto/message_blocks.h"

#include <algorithm>

#include "crypto/hexadecimal.h"
#include "crypto/word_bits.h"
#include "platform/code_page.h"
#include "runtime/text.h"

namespace crypto {

namespace {

constexpr std::size_t bytesInBlock = 64, bytesOfLength = 8;

int placeOfByte(std::size_t index, ByteOrder order) {
  return static_cast<int>(8 * (order == ByteOrder::LowFirst ? index % 4 : 3 - index % 4));
}

}  // namespace

std::vector<std::uint32_t> messageWords(std::string_view text, ByteOrder order) {
  const std::string bytes = platform::toCodePage1252(text) + '\x80';
  const std::size_t blocks = (bytes.size() - 1 + bytesOfLength) / bytesInBlock + 1;
  std::vector<std::uint32_t> words(blocks * wordsInBlock);
  for (std::size_t i = 0; i < bytes.size(); ++i)
    words[i / 4] |= shiftLeft<std::uint32_t>(static_cast<unsigned char>(bytes[i]), placeOfByte(i, order));
  const std::uint64_t bits = 8 * static_cast<std::uint64_t>(bytes.size() - 1);
  const bool isLowFirst = order == ByteOrder::LowFirst;
  words[words.size() - (isLowFirst ? 2 : 1)] = static_cast<std::uint32_t>(bits);
  words[words.size() - (isLowFirst ? 1 : 2)] = static_cast<std::uint32_t>(shiftRight(bits, 32));
  return words;
}

std::string digest(std::span<const std::uint32_t> words, ByteOrder order) {
  std::string digits;
  for (const std::uint32_t bits : words) {
    Word word = toWord(bits);
    if (order == ByteOrder::LowFirst) std::reverse(word.begin(), word.end());
    digits += EncUtils::WordToHex(word);
  }
  return runtime::lowerCase(digits);
}

}  // namespace crypto
