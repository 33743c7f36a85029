// Usage maps read: the pages of a table or of the whole file.
#include "jet/file/page/usage_map.h"

#include "jet/file/page/data_page.h"

namespace jet::file {

namespace {

constexpr std::size_t InlineBitsAt = 5, MapPageBitsAt = 4;

/// Collects the pages of a map and holds those outside the file against it.
class Collector {
 public:
  Collector(const PageFile& file, const Page& mapPage, PagesOutside outside)
      : file_(file), mapPage_(mapPage), outside_(outside) {}

  void addBits(std::uint64_t first, std::span<const std::byte> bits) {
    for (std::size_t i = 0; i < bits.size(); ++i) {
      const auto byte = std::to_integer<unsigned>(bits[i]);
      for (unsigned bit = 0; byte >> bit != 0; ++bit)
        if ((byte >> bit & 1) != 0) add(first + 8 * i + bit);
    }
  }
  std::vector<std::uint32_t> take() { return std::move(pages_); }

 private:
  void add(std::uint64_t page) {
    if (page < file_.pageCount())
      pages_.push_back(static_cast<std::uint32_t>(page));
    else if (outside_ == PagesOutside::Damage)
      mapPage_.damaged("la mappa nomina la pagina " + std::to_string(page) + ", fuori dal file");
  }

  const PageFile& file_;
  const Page& mapPage_;
  PagesOutside outside_;
  std::vector<std::uint32_t> pages_;
};

void addReferences(const PageFile& file, std::span<const std::byte> references, Collector& pages) {
  const std::size_t covered = file.format().mapPageBits;
  for (std::size_t k = 0; 4 * k + 4 <= references.size(); ++k) {
    const std::uint32_t number = readU32(&references[4 * k]);
    if (number == 0) continue;
    const Page page = file.page(number);
    if (page.u8(0) != static_cast<std::uint8_t>(PageKind::MapBits)) page.damaged("non è una pagina di mappa");
    pages.addBits(k * covered, page.bytes(MapPageBitsAt, covered / 8));
  }
}

}  // namespace

std::vector<std::uint32_t> readUsageMap(const PageFile& file, RowPointer map, PagesOutside outside) {
  if (!map) return {};
  const DataPage mapPage(file.format(), file.page(map.page));
  if (mapPage.marks(map.row) != 0)
    mapPage.page().damaged("la mappa " + std::to_string(map.row) + " è cancellata");
  const std::span<const std::byte> record = mapPage.record(map.row);
  if (record.size() < InlineBitsAt) mapPage.page().damaged("mappa troppo corta");
  Collector pages(file, mapPage.page(), outside);
  switch (std::to_integer<int>(record[0])) {
    case 0:
      pages.addBits(readU32(&record[1]), record.subspan(InlineBitsAt));
      break;
    case 1:
      addReferences(file, record.subspan(1), pages);
      break;
    default:
      mapPage.page().damaged("mappa di tipo sconosciuto");
  }
  return pages.take();
}

}  // namespace jet::file
