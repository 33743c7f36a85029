// Rijndael's rounds and key schedule for all its sizes (FIPS-197 for blocks of 4 columns).
#include "crypto/rijndael.h"

#include <algorithm>
#include <array>

#include "crypto/rijndael_tables.h"
#include "runtime/error.h"

namespace crypto {

namespace {

constexpr std::size_t fewestColumns = 4, mostColumns = 8, rows = 4;

using State = std::array<std::uint32_t, mostColumns>;
/// How many columns further each row's byte is taken from.
using Offsets = std::array<std::size_t, rows>;

/// By the number of columns, from 4 on.
constexpr Offsets offsetsFor[] = {{0, 1, 2, 3}, {0, 1, 2, 3}, {0, 1, 2, 3}, {0, 1, 2, 4}, {0, 1, 3, 4}};

Offsets backwards(const Offsets& offsets, std::size_t columns) {
  Offsets back{};
  for (std::size_t row = 0; row < rows; ++row) back[row] = (columns - offsets[row]) % columns;
  return back;
}

std::uint8_t byteOfRow(std::uint32_t column, std::size_t row) {
  return static_cast<std::uint8_t>(shiftRight(column, static_cast<int>(8 * row)));
}

std::uint32_t loadColumn(std::span<const std::byte> bytes, std::size_t column) {
  tables::Column loaded{};
  for (std::size_t row = 0; row < rows; ++row)
    loaded[row] = std::to_integer<std::uint8_t>(bytes[rows * column + row]);
  return tables::packed(loaded);
}

void storeColumn(std::uint32_t value, std::span<std::byte> bytes, std::size_t column) {
  for (std::size_t row = 0; row < rows; ++row) bytes[rows * column + row] = std::byte{byteOfRow(value, row)};
}

/// A column whose bytes, one of each row, went through the table, which is made for row 0.
std::uint32_t through(const tables::WordTable& table, const tables::Column& bytes) {
  std::uint32_t column = 0;
  for (std::size_t row = 0; row < rows; ++row)
    column ^= rotateLeft(table[bytes[row]], static_cast<int>(8 * row));
  return column;
}

tables::Column bytesOf(std::uint32_t column) {
  return {byteOfRow(column, 0), byteOfRow(column, 1), byteOfRow(column, 2), byteOfRow(column, 3)};
}

std::uint32_t substituted(std::uint32_t column) {
  return through(tables::last, bytesOf(column));
}

std::uint32_t unmixed(std::uint32_t column) {
  return through(tables::inverseInner, bytesOf(substituted(column)));
}

std::vector<std::uint32_t> expanded(std::span<const std::byte> key, std::size_t keyColumns,
                                    std::size_t length) {
  std::vector<std::uint32_t> words(length);
  for (std::size_t i = 0; i < length; ++i) {
    if (i < keyColumns) {
      words[i] = loadColumn(key, i);
      continue;
    }
    std::uint32_t word = words[i - 1];
    if (i % keyColumns == 0)
      word = substituted(rotateLeft(word, 24)) ^ tables::roundConstants[i / keyColumns - 1];
    else if (keyColumns > 6 && i % keyColumns == 4)
      word = substituted(word);
    words[i] = words[i - keyColumns] ^ word;
  }
  return words;
}

/// The rounds' keys from last to first, the mix undone in all but the outermost two, so that deciphering can
/// go through its tables in the order of enciphering.
std::vector<std::uint32_t> reversed(const std::vector<std::uint32_t>& keys, std::size_t columns) {
  std::vector<std::uint32_t> back(keys.size());
  for (std::size_t i = 0; i < keys.size(); ++i) {
    const std::size_t from = keys.size() - columns - i + 2 * (i % columns);
    const bool isInner = i >= columns && i < keys.size() - columns;
    back[i] = isInner ? unmixed(keys[from]) : keys[from];
  }
  return back;
}

std::size_t checkedColumns(int columns) {
  if (columns < static_cast<int>(fewestColumns) || columns > static_cast<int>(mostColumns))
    throw languageError(runtime::InvalidCall);
  return static_cast<std::size_t>(columns);
}

void checkLength(std::span<const std::byte> bytes, std::size_t columns) {
  if (bytes.size() < rows * columns)
    throw runtime::Error(runtime::SubscriptOutOfRange, "EncUtils", "Blocco o chiave troppo corti");
}

}  // namespace

struct Rijndael::Direction {
  const tables::WordTable& inner;
  const tables::WordTable& last;
  Offsets offsets;
  const std::vector<std::uint32_t>& keys;
};

Rijndael::Rijndael(int columns, int keyColumns, std::span<const std::byte> key)
    : columns_(checkedColumns(columns)) {
  const std::size_t taken = checkedColumns(keyColumns);
  checkLength(key, taken);
  const std::size_t rounds = 6 + std::max(columns_, taken);
  encryptionKeys_ = expanded(key, taken, columns_ * (rounds + 1));
  decryptionKeys_ = reversed(encryptionKeys_, columns_);
}

void Rijndael::encrypt(std::span<std::byte> block) const {
  run(block, {tables::inner, tables::last, offsetsFor[columns_ - fewestColumns], encryptionKeys_});
}

void Rijndael::decrypt(std::span<std::byte> block) const {
  run(block, {tables::inverseInner, tables::inverseLast,
              backwards(offsetsFor[columns_ - fewestColumns], columns_), decryptionKeys_});
}

void Rijndael::run(std::span<std::byte> block, const Direction& direction) const {
  checkLength(block, columns_);
  State state{};
  auto key = direction.keys.begin();
  for (std::size_t column = 0; column < columns_; ++column)
    state[column] = loadColumn(block, column) ^ *key++;
  while (key != direction.keys.end()) {
    const bool isLast = direction.keys.end() - key == static_cast<std::ptrdiff_t>(columns_);
    const State before = state;
    for (std::size_t column = 0; column < columns_; ++column) {
      tables::Column taken{};
      for (std::size_t row = 0; row < rows; ++row)
        taken[row] = byteOfRow(before[(column + direction.offsets[row]) % columns_], row);
      state[column] = through(isLast ? direction.last : direction.inner, taken) ^ *key++;
    }
  }
  for (std::size_t column = 0; column < columns_; ++column) storeColumn(state[column], block, column);
}

}  // namespace crypto
