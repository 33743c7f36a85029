// SHA-1 (FIPS 180-1).
#include <algorithm>
#include <array>

#include "crypto/EncUtils.h"
#include "crypto/message_blocks.h"
#include "crypto/word_bits.h"

namespace crypto {

namespace {

constexpr std::int32_t roundCount = 80;
constexpr std::uint32_t constants[] = {0x5A827999, 0x6ED9EBA1, 0x8F1BBCDC, 0xCA62C1D6};

using State = std::array<std::uint32_t, 5>;

std::uint32_t roundFunction(std::int32_t t, std::uint32_t b, std::uint32_t c, std::uint32_t d) {
  if (t <= 19) return (b & c) | (~b & d);
  if (t >= 40 && t <= 59) return (b & c) | (b & d) | (c & d);
  return b ^ c ^ d;
}

State stirred(State state, std::span<const std::uint32_t> block) {
  std::array<std::uint32_t, roundCount> schedule;
  std::copy(block.begin(), block.end(), schedule.begin());
  for (std::size_t t = block.size(); t < schedule.size(); ++t)
    schedule[t] = rotateLeft(schedule[t - 3] ^ schedule[t - 8] ^ schedule[t - 14] ^ schedule[t - 16], 1);

  auto [a, b, c, d, e] = state;
  for (std::int32_t t = 0; t < roundCount; ++t) {
    const std::uint32_t sum = rotateLeft(a, 5) + roundFunction(t, b, c, d) + e +
                              schedule[static_cast<std::size_t>(t)] + constants[t / 20];
    e = d;
    d = c;
    c = rotateLeft(b, 30);
    b = a;
    a = sum;
  }
  return {state[0] + a, state[1] + b, state[2] + c, state[3] + d, state[4] + e};
}

}  // namespace

Word EncUtils::f(std::int32_t t, const Word& b, const Word& c, const Word& d) {
  return toWord(roundFunction(t, toBits(b), toBits(c), toBits(d)));
}

std::string EncUtils::SHA1(std::string_view testo) {
  State state{0x67452301, 0xEFCDAB89, 0x98BADCFE, 0x10325476, 0xC3D2E1F0};
  const std::vector<std::uint32_t> words = messageWords(testo, ByteOrder::HighFirst);
  for (std::size_t at = 0; at < words.size(); at += wordsInBlock)
    state = stirred(state, std::span(words).subspan(at, wordsInBlock));
  return digest(state, ByteOrder::HighFirst);
}

}  // namespace crypto
