#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "jet/file/definition.h"
#include "jet/file/page/page_output.h"

namespace jet::file {

/// Fills data pages of one owner with records, in order.
class RecordPages {
 public:
  /// Longest record that a page can hold.
  static constexpr std::size_t LargestRecord = 4080;

  /// `owner`: what the pages name as theirs (a definition page, LongValueOwner, 0 for usage maps).
  RecordPages(PageOutput& out, TakePage take, std::uint32_t owner);

  struct Place {
    RowPointer pointer;
    std::span<std::byte> bytes;  // zero, to be filled before the next call
  };
  /// Makes a record of this length (1 to LargestRecord) on the page being filled, or on the next.
  Place reserve(std::size_t length);
  /// Like reserve, for records whose order doesn't matter: a page that has more room left is not given up for
  /// one that the new record nearly fills.
  RowPointer add(std::span<const std::byte> record);
  /// A page for one record alone, to be given to writeAlone.
  std::uint32_t takePage();
  void writeAlone(std::uint32_t page, std::span<const std::byte> record);
  /// Writes the page being filled.
  void finish();

  /// All pages taken so far.
  const std::vector<std::uint32_t>& pages() const { return pages_; }
  /// Pages that have room for more: at most the last one filled.
  std::vector<std::uint32_t> pagesWithRoom() const;

 private:
  void begin(std::uint32_t number);
  bool fits(std::size_t length) const;
  std::size_t room() const;

  PageOutput& out_;
  TakePage take_;
  std::uint32_t owner_;
  std::vector<std::uint32_t> pages_;
  std::vector<std::byte> page_;
  std::uint32_t number_ = 0;  // of the page being filled; 0 none
  std::size_t rows_ = 0;
  std::size_t bottom_ = 0;  // start of the lowest record
};

}  // namespace jet::file
