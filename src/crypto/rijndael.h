#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace crypto {

/// The block cipher with an expanded key, for blocks and keys of 4 to 8 columns of four bytes.
class Rijndael {
 public:
  /// Takes the first 4 * keyColumns bytes of the key. Error 5 unless both numbers are 4 to 8, error 9 for a
  /// shorter key.
  Rijndael(int columns, int keyColumns, std::span<const std::byte> key);

  /// The first 4 * columns bytes, in place; error 9 for fewer.
  void encrypt(std::span<std::byte> block) const;
  void decrypt(std::span<std::byte> block) const;

 private:
  struct Direction;
  void run(std::span<std::byte> block, const Direction& direction) const;

  std::size_t columns_;
  /// A word for each column of each round, in the order in which the rounds take them.
  std::vector<std::uint32_t> encryptionKeys_, decryptionKeys_;
};

}  // namespace crypto
