#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace crypto {

/// How a digest reads four bytes as one number, and writes its numbers.
enum class ByteOrder { LowFirst, HighFirst };

/// What a digest works on: the text's bytes in code page 1252, the bit 1, zeros, and the number of the text's
/// bits in 64, as words; always a multiple of 16 words.
std::vector<std::uint32_t> messageWords(std::string_view text, ByteOrder order);

/// The words' hexadecimal digits in small letters.
std::string digest(std::span<const std::uint32_t> words, ByteOrder order);

}  // namespace crypto
