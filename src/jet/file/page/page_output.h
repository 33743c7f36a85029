#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "platform/disk.h"

namespace jet::file {

/// Gives the number of a page that the new file may fill.
using TakePage = std::function<std::uint32_t()>;

/// Writes the pages of a new file, in any order, gathered into few large writes. Errors 3026, 3043.
class PageOutput {
 public:
  explicit PageOutput(platform::File& file);
  ~PageOutput();
  PageOutput(const PageOutput&) = delete;
  PageOutput& operator=(const PageOutput&) = delete;

  /// Puts one page; it reaches the file by finish() at the latest.
  void write(std::uint32_t number, std::span<const std::byte> page);
  /// Writes a run of pages at once.
  void writeRun(std::uint32_t first, std::span<const std::byte> pages);
  /// Writes what is still held and gives the file its length; pages never written are zero.
  void finish(std::uint32_t pageCount);

 private:
  struct Block;
  Block& open(std::uint32_t number);
  void flush(Block& block);
  void put(std::uint64_t offset, std::span<const std::byte> bytes);

  platform::File& file_;
  std::vector<Block> blocks_;  // the one used last in front
};

}  // namespace jet::file
