#pragma once

#include <cstdint>
#include <vector>

/// The cipher once more, straight from its definition: the state a matrix of bytes, every value worked out
/// when it is needed.
namespace plain {

using Bytes = std::vector<std::uint8_t>;

/// A block of 16 to 32 bytes under a key of 16 to 32, both multiples of 4.
Bytes encrypted(const Bytes& block, const Bytes& key);
Bytes decrypted(const Bytes& block, const Bytes& key);

}  // namespace plain
