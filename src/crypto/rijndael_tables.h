#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "crypto/shifts.h"

/// The tables of Rijndael, made by the compiler from its definition. A word holds a column, row 0 in its low
/// byte.
namespace crypto::tables {

using ByteTable = std::array<std::uint8_t, 256>;
using WordTable = std::array<std::uint32_t, 256>;
using Column = std::array<std::uint8_t, 4>;

constexpr std::uint32_t packed(const Column& rows) {
  std::uint32_t word = 0;
  for (int row = 3; row >= 0; --row) word = shiftLeft(word, 8) | rows[static_cast<std::size_t>(row)];
  return word;
}

/// Twice the value in GF(2^8) modulo x^8 + x^4 + x^3 + x + 1.
constexpr std::uint8_t doubled(std::uint8_t value) {
  constexpr unsigned polynomial = 0x1B;
  return static_cast<std::uint8_t>(shiftLeft(value, 1) ^ (shiftRight(value, 7) * polynomial));
}

/// Powers of the generator 3, and their logarithms; 0 has none.
struct Field {
  ByteTable power{}, logarithm{};
};

constexpr Field field = [] {
  Field made;
  std::uint8_t value = 1;
  for (std::size_t exponent = 0; exponent < made.power.size(); ++exponent) {
    made.power[exponent] = value;
    made.logarithm[value] = static_cast<std::uint8_t>(exponent % 255);
    value = static_cast<std::uint8_t>(value ^ doubled(value));
  }
  return made;
}();

constexpr std::uint8_t product(std::uint8_t a, std::uint8_t b) {
  if (a == 0 || b == 0) return 0;
  return field.power[static_cast<std::size_t>(field.logarithm[a] + field.logarithm[b]) % 255];
}

/// The inverse in the field, xored with its four rotations and 0x63.
constexpr ByteTable substitution = [] {
  ByteTable made{};
  for (std::size_t value = 0; value < made.size(); ++value) {
    std::uint8_t inverse = value == 0 ? 0 : field.power[255u - field.logarithm[value]];
    std::uint8_t sum = 0x63;
    for (int turn = 0; turn < 5; ++turn) {
      sum = static_cast<std::uint8_t>(sum ^ inverse);
      inverse = static_cast<std::uint8_t>(shiftLeft(inverse, 1) | shiftRight(inverse, 7));
    }
    made[value] = sum;
  }
  return made;
}();

constexpr ByteTable inverseSubstitution = [] {
  ByteTable made{};
  for (std::size_t value = 0; value < made.size(); ++value)
    made[substitution[value]] = static_cast<std::uint8_t>(value);
  return made;
}();

/// What a byte of row 0 gives to its column: substituted, times each of the coefficients.
constexpr WordTable mixed(const ByteTable& substitutes, const Column& coefficients) {
  WordTable made{};
  for (std::size_t value = 0; value < made.size(); ++value) {
    Column rows{};
    for (std::size_t row = 0; row < rows.size(); ++row)
      rows[row] = product(substitutes[value], coefficients[row]);
    made[value] = packed(rows);
  }
  return made;
}

constexpr Column noMix{1, 0, 0, 0}, mix{2, 1, 1, 3}, inverseMix{14, 9, 13, 11};

constexpr WordTable inner = mixed(substitution, mix), last = mixed(substitution, noMix);
constexpr WordTable inverseInner = mixed(inverseSubstitution, inverseMix),
                    inverseLast = mixed(inverseSubstitution, noMix);

/// Powers of 2, one for each time that the key expansion passes the key's length; 30 for the shortest key and
/// the longest block.
constexpr std::array<std::uint8_t, 30> roundConstants = [] {
  std::array<std::uint8_t, 30> made{};
  std::uint8_t value = 1;
  for (std::uint8_t& constant : made) {
    constant = value;
    value = doubled(value);
  }
  return made;
}();

}  // namespace crypto::tables
