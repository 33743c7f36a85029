#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "jet/file/definition.h"
#include "jet/file/page/format.h"

namespace jet::file {

/// Splits the bytes of a row into the values of its columns. One object serves all rows of a table.
class Record {
 public:
  Record(const Format& format, const TableDefinition& table);

  /// Takes a record. What is wrong with it, or nullptr; the bytes must outlive the use of the values.
  const char* set(std::span<const std::byte> bytes);

  /// Presence bit of a column number; false for numbers that the row doesn't know.
  bool present(std::size_t number) const {
    return number < columns_ && (std::to_integer<unsigned>(presence_[number / 8]) >> (number % 8) & 1) != 0;
  }
  /// Value of a column that is present, no Boolean. False if it lies outside the record.
  bool value(const Column& column, std::span<const std::byte>& out) const;

 private:
  bool hasVariablePart() const { return columns_ > firstVariable_; }
  bool readOffsets(std::size_t presenceAt);
  bool readOffsetsWithJumps(std::size_t presenceAt);
  bool checkOffsets(std::size_t tableAt) const;

  const Format& format_;
  const std::size_t maxColumns_, variableColumns_;
  std::size_t firstVariable_;  // rows that know no more columns than this have no variable part

  std::span<const std::byte> bytes_;
  std::span<const std::byte> presence_;
  std::size_t columns_ = 0;
  std::size_t fixedEnd_ = 0;            // where the fixed part can reach at most
  std::vector<std::uint16_t> offsets_;  // start of each variable value and the end of the last
};

}  // namespace jet::file
