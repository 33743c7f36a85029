// Pages of a new file, gathered into few large writes.
#include "jet/file/page/page_output.h"

#include <algorithm>
#include <bitset>

#include "jet/file/errors.h"
#include "jet/file/page/format.h"

namespace jet::file {

namespace {

constexpr std::size_t BlockPages = 256;
// Enough for a table's rows, its long value columns and its maps to fill their blocks side by side.
constexpr std::size_t OpenBlocks = 12;

}  // namespace

struct PageOutput::Block {
  std::uint32_t number = 0;
  std::bitset<BlockPages> filled;
  std::vector<std::byte> bytes;
};

PageOutput::PageOutput(platform::File& file) : file_(file) {}

PageOutput::~PageOutput() = default;

void PageOutput::put(std::uint64_t offset, std::span<const std::byte> bytes) {
  try {
    file_.writeAt(offset, bytes);
  } catch (const platform::DiskError& error) {
    throw fromDisk(error);
  }
}

void PageOutput::flush(Block& block) {
  const std::uint64_t start = static_cast<std::uint64_t>(block.number) * BlockPages;
  for (std::size_t first = 0; first < BlockPages;) {
    std::size_t last = first;
    while (last < BlockPages && block.filled[last]) ++last;
    if (last > first)
      put((start + first) * Jet4.pageSize,
          std::span(block.bytes).subspan(first * Jet4.pageSize, (last - first) * Jet4.pageSize));
    first = std::max(last, first + 1);
  }
  block.filled.reset();
}

PageOutput::Block& PageOutput::open(std::uint32_t number) {
  const auto found = std::ranges::find(blocks_, number, &Block::number);
  if (found != blocks_.end()) {
    std::rotate(blocks_.begin(), found, found + 1);
    return blocks_.front();
  }
  if (blocks_.size() < OpenBlocks)
    blocks_.push_back({number, {}, std::vector<std::byte>(BlockPages * Jet4.pageSize)});
  else
    flush(blocks_.back());
  std::rotate(blocks_.begin(), blocks_.end() - 1, blocks_.end());
  blocks_.front().number = number;
  return blocks_.front();
}

void PageOutput::write(std::uint32_t number, std::span<const std::byte> page) {
  Block& block = open(static_cast<std::uint32_t>(number / BlockPages));
  const std::size_t index = number % BlockPages;
  std::ranges::copy(page, block.bytes.begin() + static_cast<std::ptrdiff_t>(index * Jet4.pageSize));
  block.filled.set(index);
  if (block.filled.all()) flush(block);
}

void PageOutput::writeRun(std::uint32_t first, std::span<const std::byte> pages) {
  put(static_cast<std::uint64_t>(first) * Jet4.pageSize, pages);
}

void PageOutput::finish(std::uint32_t pageCount) {
  // In the file's order, which is the cheapest for the disk.
  std::ranges::sort(blocks_, {}, &Block::number);
  for (Block& block : blocks_) flush(block);
  try {
    file_.resize(static_cast<std::uint64_t>(pageCount) * Jet4.pageSize);
  } catch (const platform::DiskError& error) {
    throw fromDisk(error);
  }
}

}  // namespace jet::file
