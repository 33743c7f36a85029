// Usage maps written, and the pages that hold them.
#include "jet/file/page/map_pages.h"

#include <algorithm>

#include "jet/file/page/data_page.h"
#include "jet/file/page/format.h"
#include "jet/file/page/put_bytes.h"

namespace jet::file {

namespace {

std::size_t normalRecord() {
  return MapHead + Jet4.inlineMapBytes;
}

}  // namespace

void setMapBits(const std::vector<std::uint32_t>& pages, std::uint32_t first, std::span<std::byte> bits) {
  for (auto page = std::ranges::lower_bound(pages, first); page != pages.end(); ++page) {
    const std::size_t bit = *page - first;
    if (bit / 8 >= bits.size()) return;
    bits[bit / 8] |= static_cast<std::byte>(1 << bit % 8);
  }
}

std::vector<std::byte>& KeptMapPages::page(std::uint32_t number) {
  const auto [entry, isNew] = pages_.try_emplace(number);
  if (isNew) {
    const Page source = source_.page(number);
    entry->second.assign(source.all().begin(), source.all().end());
  }
  return entry->second;
}

std::span<std::byte> KeptMapPages::record(RowPointer pointer) {
  const DataPage old(source_.format(), source_.page(pointer.page));
  const std::size_t at = static_cast<std::size_t>(old.record(pointer.row).data() - old.page().all().data());
  return std::span(page(pointer.page)).subspan(at, old.record(pointer.row).size());
}

void KeptMapPages::markDeleted(RowPointer pointer) {
  (void)record(pointer);  // checks that it exists
  std::vector<std::byte>& bytes = page(pointer.page);
  const std::size_t entry = Jet4.rowDirectoryAt + 2 * std::size_t{pointer.row};
  putU16(&bytes[entry], readU16(&bytes[entry]) | DataPage::Deleted | DataPage::Elsewhere);
}

std::vector<std::uint32_t> KeptMapPages::emptied() const {
  std::vector<std::uint32_t> numbers;
  for (const auto& [number, bytes] : pages_) {
    const std::size_t records = readU16(&bytes[Jet4.rowCountAt]);
    bool any = false;
    for (std::size_t row = 0; row < records && !any; ++row)
      any = !(readU16(&bytes[Jet4.rowDirectoryAt + 2 * row]) & DataPage::Deleted);
    if (!any) numbers.push_back(number);
  }
  return numbers;
}

void KeptMapPages::write(PageOutput& out) const {
  for (const auto& [number, bytes] : pages_) out.write(number, bytes);
}

MapPages::MapPages(PageOutput& out, TakePage take)
    : out_(out), take_(take), records_(out, std::move(take), 0) {}

void MapPages::reuse(KeptMapPages& kept, std::vector<RowPointer> records) {
  kept_ = &kept;
  reusable_ = std::move(records);
  std::ranges::reverse(reusable_);
}

RowPointer MapPages::add(std::vector<std::uint32_t> pages) {
  std::ranges::sort(pages);
  while (!reusable_.empty()) {
    const RowPointer pointer = reusable_.back();
    reusable_.pop_back();
    const std::span<std::byte> record = kept_->record(pointer);
    if (record.size() >= normalRecord()) {
      fill(std::move(pages), record);
      return pointer;
    }
    kept_->markDeleted(pointer);
  }
  const RecordPages::Place place = records_.reserve(normalRecord());
  fill(std::move(pages), place.bytes);
  return place.pointer;
}

void MapPages::fill(std::vector<std::uint32_t> pages, std::span<std::byte> record) {
  std::ranges::fill(record, std::byte{0});
  const std::span<std::byte> bits = record.subspan(MapHead);
  if (pages.empty()) return;
  const bool fromZero = pages.back() < 8 * bits.size();
  const std::uint32_t first = fromZero ? 0 : pages.front() / 8 * 8;
  if (pages.back() - first >= 8 * bits.size()) return fillReferences(pages, record);
  putU32(&record[1], first);
  setMapBits(pages, first, bits);
}

void MapPages::fillReferences(const std::vector<std::uint32_t>& pages, std::span<std::byte> record) {
  putU8(&record[0], 1);
  std::vector<std::byte> bitPage(Jet4.pageSize);
  for (auto page = pages.begin(); page != pages.end();) {
    const std::uint32_t entry = static_cast<std::uint32_t>(*page / Jet4.mapPageBits);
    const auto first = static_cast<std::uint32_t>(entry * Jet4.mapPageBits);
    std::ranges::fill(bitPage, std::byte{0});
    putU8(&bitPage[0], static_cast<std::size_t>(PageKind::MapBits));
    putU8(&bitPage[1], 1);
    setMapBits(pages, first, std::span(bitPage).subspan(BitsAt));
    const std::uint32_t number = take_();
    out_.write(number, bitPage);
    putU32(&record[1 + 4 * entry], number);
    page = std::lower_bound(page, pages.end(), first + Jet4.mapPageBits);
  }
}

void MapPages::finish() {
  for (const RowPointer pointer : reusable_) kept_->markDeleted(pointer);
  reusable_.clear();
  records_.finish();
}

}  // namespace jet::file
