// Page 1, the map of all free pages of a new file.
#include "jet/file/page/global_map.h"

#include <algorithm>

#include "jet/file/page/data_page.h"
#include "jet/file/page/format.h"
#include "jet/file/page/put_bytes.h"
#include "jet/file/write/record_pages.h"

namespace jet::file {

namespace {

constexpr std::uint32_t GlobalMapPage = 1;
constexpr std::size_t References = 17;  // enough for the largest file
constexpr std::size_t DirectoryEntry = 2;

/// Sets the bit of every page from `first` on that is not in use.
void setFreeBits(const PageSpace& space, std::uint32_t first, std::span<std::byte> bits) {
  for (std::size_t i = 0; i < 8 * bits.size(); ++i)
    if (!space.used(static_cast<std::uint32_t>(first + i))) bits[i / 8] |= static_cast<std::byte>(1 << i % 8);
}

/// Length of the inline map, whose bits grow by four bytes.
std::size_t inlineLength(const PageSpace& space) {
  return MapHead + std::max<std::size_t>(Jet4.inlineMapBytes, (space.pageCount() + 31) / 32 * 4);
}

// Every page that a file can have is covered: what a missing reference would mean is not certain.
void writeReferences(PageSpace& space, RecordPages& records, PageOutput& out) {
  std::vector<std::uint32_t> pages;
  for (std::size_t i = 0; i < References; ++i) pages.push_back(space.take());
  const std::span<std::byte> record = records.reserve(1 + 4 * References).bytes;
  putU8(&record[0], 1);
  for (std::size_t i = 0; i < References; ++i) {
    putU32(&record[1 + 4 * i], pages[i]);
    std::vector<std::byte> page(Jet4.pageSize);
    putU8(&page[0], static_cast<std::size_t>(PageKind::MapBits));
    putU8(&page[1], 1);
    setFreeBits(space, static_cast<std::uint32_t>(i * Jet4.mapPageBits), std::span(page).subspan(BitsAt));
    out.write(pages[i], page);
  }
}

}  // namespace

void writeGlobalMap(PageSpace& space, std::span<const std::byte> second, PageOutput& out) {
  RecordPages records(
      out, [] { return GlobalMapPage; }, GlobalMapPage);
  if (inlineLength(space) + DirectoryEntry + second.size() <= RecordPages::LargestRecord)
    setFreeBits(space, 0, records.reserve(inlineLength(space)).bytes.subspan(MapHead));
  else
    writeReferences(space, records, out);
  std::ranges::copy(second, records.reserve(second.size()).bytes.begin());
  records.finish();
}

}  // namespace jet::file
