// MD5 (RFC 1321).
#include <array>

#include "crypto/EncUtils.h"
#include "crypto/message_blocks.h"
#include "crypto/shifts.h"

namespace crypto {

namespace {

/// The integer part of 2^32 times the sine of 1, 2, 3 ...
constexpr std::uint32_t constants[] = {
    0xd76aa478, 0xe8c7b756, 0x242070db, 0xc1bdceee, 0xf57c0faf, 0x4787c62a, 0xa8304613, 0xfd469501,
    0x698098d8, 0x8b44f7af, 0xffff5bb1, 0x895cd7be, 0x6b901122, 0xfd987193, 0xa679438e, 0x49b40821,
    0xf61e2562, 0xc040b340, 0x265e5a51, 0xe9b6c7aa, 0xd62f105d, 0x02441453, 0xd8a1e681, 0xe7d3fbc8,
    0x21e1cde6, 0xc33707d6, 0xf4d50d87, 0x455a14ed, 0xa9e3e905, 0xfcefa3f8, 0x676f02d9, 0x8d2a4c8a,
    0xfffa3942, 0x8771f681, 0x6d9d6122, 0xfde5380c, 0xa4beea44, 0x4bdecfa9, 0xf6bb4b60, 0xbebfbc70,
    0x289b7ec6, 0xeaa127fa, 0xd4ef3085, 0x04881d05, 0xd9d4d039, 0xe6db99e5, 0x1fa27cf8, 0xc4ac5665,
    0xf4292244, 0x432aff97, 0xab9423a7, 0xfc93a039, 0x655b59c3, 0x8f0ccc92, 0xffeff47d, 0x85845dd1,
    0x6fa87e4f, 0xfe2ce6e0, 0xa3014314, 0x4e0811a1, 0xf7537e82, 0xbd3af235, 0x2ad7d2bb, 0xeb86d391,
};

using Mixture = std::uint32_t (*)(std::uint32_t, std::uint32_t, std::uint32_t);

/// A round of 16 steps: its function, by how much its steps turn in fours, and which word each takes.
struct Round {
  Mixture mixture;
  int turns[4];
  unsigned firstWord, wordStep;
};

constexpr Round rounds[] = {
    {[](auto x, auto y, auto z) { return (x & y) | (~x & z); }, {7, 12, 17, 22}, 0, 1},
    {[](auto x, auto y, auto z) { return (x & z) | (y & ~z); }, {5, 9, 14, 20}, 1, 5},
    {[](auto x, auto y, auto z) { return x ^ y ^ z; }, {4, 11, 16, 23}, 5, 3},
    {[](auto x, auto y, auto z) { return y ^ (x | ~z); }, {6, 10, 15, 21}, 0, 7},
};

using State = std::array<std::uint32_t, 4>;

State stirred(State state, std::span<const std::uint32_t> block) {
  auto [a, b, c, d] = state;
  const std::uint32_t* constant = constants;
  for (const Round& round : rounds)
    for (unsigned step = 0; step < 16; ++step) {
      const std::uint32_t word = block[(round.firstWord + step * round.wordStep) % wordsInBlock];
      const std::uint32_t sum = a + round.mixture(b, c, d) + word + *constant++;
      a = d;
      d = c;
      c = b;
      b += rotateLeft(sum, round.turns[step % 4]);
    }
  return {state[0] + a, state[1] + b, state[2] + c, state[3] + d};
}

}  // namespace

std::string EncUtils::MD5(std::string_view testo) {
  State state{0x67452301, 0xefcdab89, 0x98badcfe, 0x10325476};
  const std::vector<std::uint32_t> words = messageWords(testo, ByteOrder::LowFirst);
  for (std::size_t at = 0; at < words.size(); at += wordsInBlock)
    state = stirred(state, std::span(words).subspan(at, wordsInBlock));
  return digest(state, ByteOrder::LowFirst);
}

}  // namespace crypto
