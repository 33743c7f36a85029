#include "plain_rijndael.h"

#include <algorithm>

namespace plain {

namespace {

unsigned times(unsigned a, unsigned b) {
  unsigned product = 0;
  for (; b != 0; b /= 2) {
    if (b % 2 == 1) product ^= a;
    a = 2 * a < 256 ? 2 * a : (2 * a) ^ 0x11B;
  }
  return product;
}

unsigned inverse(unsigned value) {
  unsigned candidate = 0;
  while (value != 0 && times(value, candidate) != 1) ++candidate;
  return candidate;
}

unsigned bit(unsigned value, unsigned place) {
  return value >> (place % 8) & 1;
}

unsigned substitute(unsigned value) {
  const unsigned from = inverse(value);
  unsigned result = 0;
  for (unsigned i = 0; i < 8; ++i)
    result |= (bit(from, i) ^ bit(from, i + 4) ^ bit(from, i + 5) ^ bit(from, i + 6) ^ bit(from, i + 7) ^
               bit(0x63, i))
              << i;
  return result;
}

unsigned substituteBack(unsigned value) {
  unsigned result = 0;
  for (unsigned i = 0; i < 8; ++i)
    result |= (bit(value, i + 2) ^ bit(value, i + 5) ^ bit(value, i + 7) ^ bit(0x05, i)) << i;
  return inverse(result);
}

/// matrix[row][column].
using Matrix = std::vector<std::vector<unsigned>>;

Matrix filled(const Bytes& bytes) {
  Matrix matrix(4, std::vector<unsigned>(bytes.size() / 4));
  for (std::size_t i = 0; i < bytes.size(); ++i) matrix[i % 4][i / 4] = bytes[i];
  return matrix;
}

Bytes read(const Matrix& matrix) {
  Bytes bytes;
  for (std::size_t i = 0; i < 4 * matrix[0].size(); ++i)
    bytes.push_back(static_cast<std::uint8_t>(matrix[i % 4][i / 4]));
  return bytes;
}

Matrix expandedKey(const Bytes& key, std::size_t columns) {
  const std::size_t taken = key.size() / 4;
  Matrix words = filled(key);
  unsigned constant = 1;
  for (std::size_t i = taken; i < columns; ++i) {
    unsigned word[4];
    for (std::size_t row = 0; row < 4; ++row) {
      word[row] = words[i % taken == 0 ? (row + 1) % 4 : row][i - 1];
      if (i % taken == 0 || (taken > 6 && i % taken == 4)) word[row] = substitute(word[row]);
    }
    if (i % taken == 0) {
      word[0] ^= constant;
      constant = times(constant, 2);
    }
    for (std::size_t row = 0; row < 4; ++row) words[row].push_back(words[row][i - taken] ^ word[row]);
  }
  return words;
}

void addKey(Matrix& state, const Matrix& key, std::size_t round) {
  const std::size_t columns = state[0].size();
  for (std::size_t row = 0; row < 4; ++row)
    for (std::size_t column = 0; column < columns; ++column)
      state[row][column] ^= key[row][round * columns + column];
}

void substituteAll(Matrix& state, unsigned (*by)(unsigned)) {
  for (auto& row : state) std::transform(row.begin(), row.end(), row.begin(), by);
}

void shiftRows(Matrix& state, bool isBack) {
  const std::size_t columns = state[0].size();
  const std::size_t shifts[] = {0, 1, columns == 8 ? 3u : 2u, columns >= 7 ? 4u : 3u};
  for (std::size_t row = 0; row < 4; ++row) {
    const std::size_t left = isBack ? (columns - shifts[row]) % columns : shifts[row];
    std::rotate(state[row].begin(), state[row].begin() + static_cast<std::ptrdiff_t>(left), state[row].end());
  }
}

void mixColumns(Matrix& state, const unsigned (&factors)[4]) {
  const Matrix before = state;
  for (std::size_t column = 0; column < state[0].size(); ++column)
    for (std::size_t row = 0; row < 4; ++row) {
      state[row][column] = 0;
      for (std::size_t from = 0; from < 4; ++from)
        state[row][column] ^= times(factors[(4 + from - row) % 4], before[from][column]);
    }
}

}  // namespace

Bytes encrypted(const Bytes& block, const Bytes& key) {
  const std::size_t rounds = 6 + std::max(block.size(), key.size()) / 4;
  const Matrix words = expandedKey(key, block.size() / 4 * (rounds + 1));
  Matrix state = filled(block);
  addKey(state, words, 0);
  for (std::size_t round = 1; round <= rounds; ++round) {
    substituteAll(state, substitute);
    shiftRows(state, false);
    if (round < rounds) mixColumns(state, {2, 3, 1, 1});
    addKey(state, words, round);
  }
  return read(state);
}

Bytes decrypted(const Bytes& block, const Bytes& key) {
  const std::size_t rounds = 6 + std::max(block.size(), key.size()) / 4;
  const Matrix words = expandedKey(key, block.size() / 4 * (rounds + 1));
  Matrix state = filled(block);
  for (std::size_t round = rounds; round >= 1; --round) {
    addKey(state, words, round);
    if (round < rounds) mixColumns(state, {14, 11, 13, 9});
    shiftRows(state, true);
    substituteAll(state, substituteBack);
  }
  addKey(state, words, 0);
  return read(state);
}

}  // namespace plain
