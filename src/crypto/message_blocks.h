#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace crypto {

constexpr std::size_t wordsInBlock = 16;

/// How a digest reads four bytes as one number, and writes its numbers.
enum class ByteOrder { LowFirst, HighFirst };

/// What a digest works on: the text's bytes in code page 1252, the bit 1, zeros, and the number of the text's
/// bits in 64, as words; always whole blocks.
std::vector<std::uint32_t> messageWords(std::string_view text, ByteOrder order);

/// The words' hexadecimal digits in small letters.
std::string digest(std::span<const std::uint32_t> words, ByteOrder order);

}  // namespace crypto
