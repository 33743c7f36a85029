#pragma once

#include <cstdint>
#include <map>
#include <vector>

#include "jet/file/page/page_file.h"
#include "jet/file/write/record_pages.h"

namespace jet::file {

/// Pages with usage maps that the new file keeps from the old one, with records that change.
class KeptMapPages {
 public:
  explicit KeptMapPages(const PageFile& source) : source_(source) {}
  /// The record, to be overwritten. Error 3343 if there is no such record.
  std::span<std::byte> record(RowPointer pointer);
  void markDeleted(RowPointer pointer);
  /// Pages that hold no record any more.
  std::vector<std::uint32_t> emptied() const;
  void write(PageOutput& out) const;

 private:
  std::vector<std::byte>& page(std::uint32_t number);

  const PageFile& source_;
  std::map<std::uint32_t, std::vector<std::byte>> pages_;
};

/// Writes the usage maps of one table.
class MapPages {
 public:
  MapPages(PageOutput& out, TakePage take);
  /// Takes over records of `kept` for the maps; those left over at finish() are marked deleted.
  void reuse(KeptMapPages& kept, std::vector<RowPointer> records);

  /// Writes the map that is this set of pages.
  RowPointer add(std::vector<std::uint32_t> pages);
  void finish();

 private:
  void fill(std::vector<std::uint32_t> pages, std::span<std::byte> record);
  void fillReferences(const std::vector<std::uint32_t>& pages, std::span<std::byte> record);

  PageOutput& out_;
  TakePage take_;
  RecordPages records_;
  KeptMapPages* kept_ = nullptr;
  std::vector<RowPointer> reusable_;  // the next one last
};

/// Sets the bit of each page of `pages` from `first` on that lies within `bits`.
void setMapBits(const std::vector<std::uint32_t>& pages, std::uint32_t first, std::span<std::byte> bits);

}  // namespace jet::file
