// A page of records and its directory.
#include "jet/file/page/data_page.h"

namespace jet::file {

DataPage::DataPage(const Format& format, Page page)
    : page_(std::move(page)), directoryAt_(format.rowDirectoryAt) {
  if (page_.u8(0) != static_cast<std::uint8_t>(PageKind::Data)) page_.damaged("non è una pagina di dati");
  records_ = page_.u16(format.rowCountAt);
  if (records_ > (page_.size() - directoryAt_) / 2) page_.damaged("troppi record nell'elenco");
}

std::uint16_t DataPage::entry(std::size_t row) const {
  if (row >= records_) page_.damaged("il record " + std::to_string(row) + " non esiste");
  return page_.u16(directoryAt_ + 2 * row);
}

std::span<const std::byte> DataPage::record(std::size_t row) const {
  const std::size_t start = entry(row) & StartBits;
  const std::size_t end = row == 0 ? page_.size() : entry(row - 1) & StartBits;
  if (start < directoryAt_ + 2 * records_ || start > end || end > page_.size())
    page_.damaged("il record " + std::to_string(row) + " è fuori posto");
  return page_.bytes(start, end - start);
}

}  // namespace jet::file
