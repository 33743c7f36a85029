#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace jet::file {

/// What one UTF-16 code unit gives to a text's sort key in the General order.
struct Weight {
  enum class Kind : std::uint8_t {
    Ignored,   // nothing
    Plain,     // primary bytes
    Accented,  // primary and diacritic bytes
    Mark,      // a diacritic byte that is added to the one before
    Noted,     // its position and `other` stand behind the diacritics
    Kana,      // primary bytes, perhaps a diacritic, and `other` in the kana section
  };

  Kind kind = Kind::Ignored;
  std::uint8_t primaryLength = 0;
  std::uint8_t diacriticLength = 0;
  std::uint8_t other = 0;
  std::array<std::byte, 4> primary{};
  std::array<std::byte, 2> diacritic{};
};

/// Weights of all code units, surrogates included.
using WeightTable = std::array<Weight, 0x10000>;
const WeightTable& generalOrder();

}  // namespace jet::file
