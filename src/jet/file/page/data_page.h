#pragma once

#include <span>

#include "jet/file/page/page_file.h"

namespace jet::file {

/// First byte of a page.
enum class PageKind : std::uint8_t { Data = 1, Definition = 2, IndexNode = 3, IndexLeaf = 4, MapBits = 5 };

constexpr std::size_t OwnerAt = 4;                    // of data and index pages: definition page
constexpr std::uint32_t LongValueOwner = 0x4C41564C;  // "LVAL"

/// A page of records with its directory. Error 3343 where the page is no data page or a record lies outside
/// it.
class DataPage {
 public:
  // Marks of a directory entry.
  static constexpr std::uint16_t Deleted = 0x8000, Elsewhere = 0x4000, StartBits = 0x1FFF;

  DataPage() = default;
  DataPage(const Format& format, Page page);

  const Page& page() const { return page_; }
  std::uint32_t owner() const { return page_.u32(OwnerAt); }
  std::size_t records() const { return records_; }
  /// Deleted and Elsewhere bits of entry `row`; error 3343 behind the last one.
  std::uint16_t marks(std::size_t row) const { return entry(row) & (Deleted | Elsewhere); }
  std::span<const std::byte> record(std::size_t row) const;

 private:
  std::uint16_t entry(std::size_t row) const;

  Page page_;
  std::size_t directoryAt_ = 0;
  std::size_t records_ = 0;
};

}  // namespace jet::file
