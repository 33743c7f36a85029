// Data pages of one owner, filled with records.
#include "jet/file/write/record_pages.h"

#include <algorithm>

#include "jet/file/page/data_page.h"
#include "jet/file/page/format.h"
#include "jet/file/page/put_bytes.h"

namespace jet::file {

namespace {

constexpr std::size_t DirectoryEntry = 2;
constexpr std::size_t MostRows = 255;    // row numbers are one byte
constexpr std::size_t UsefulRoom = 100;  // less than this takes no ordinary row

void putDirectory(std::byte* page, std::uint32_t owner, std::size_t rows, std::size_t bottom) {
  page[0] = std::byte{static_cast<std::uint8_t>(PageKind::Data)};
  page[1] = std::byte{1};
  putU16(page + FreeBytesAt, bottom - Jet4.rowDirectoryAt - DirectoryEntry * rows);
  putU32(page + OwnerAt, owner);
  putU16(page + Jet4.rowCountAt, rows);
}

}  // namespace

RecordPages::RecordPages(PageOutput& out, TakePage take, std::uint32_t owner)
    : out_(out), take_(std::move(take)), owner_(owner) {}

std::size_t RecordPages::room() const {
  return number_ == 0 ? 0 : bottom_ - Jet4.rowDirectoryAt - DirectoryEntry * rows_;
}

bool RecordPages::fits(std::size_t length) const {
  return rows_ < MostRows && length + DirectoryEntry <= room();
}

void RecordPages::begin(std::uint32_t number) {
  page_.assign(Jet4.pageSize, std::byte{0});
  number_ = number;
  rows_ = 0;
  bottom_ = Jet4.pageSize;
}

RecordPages::Place RecordPages::reserve(std::size_t length) {
  if (!fits(length)) {
    finish();
    begin(takePage());
  }
  bottom_ -= length;
  putU16(&page_[Jet4.rowDirectoryAt + DirectoryEntry * rows_], bottom_);
  const RowPointer pointer{number_, static_cast<std::uint8_t>(rows_++)};
  return {pointer, std::span(page_).subspan(bottom_, length)};
}

RowPointer RecordPages::add(std::span<const std::byte> record) {
  const std::size_t roomInNewPage = Jet4.pageSize - Jet4.rowDirectoryAt - DirectoryEntry - record.size();
  if (!fits(record.size()) && rows_ < MostRows && room() > roomInNewPage) {
    const std::uint32_t page = takePage();
    writeAlone(page, record);
    return {page, 0};
  }
  const Place place = reserve(record.size());
  std::ranges::copy(record, place.bytes.begin());
  return place.pointer;
}

std::uint32_t RecordPages::takePage() {
  pages_.push_back(take_());
  return pages_.back();
}

void RecordPages::writeAlone(std::uint32_t page, std::span<const std::byte> record) {
  std::vector<std::byte> bytes(Jet4.pageSize);
  const std::size_t start = bytes.size() - record.size();
  std::ranges::copy(record, bytes.begin() + static_cast<std::ptrdiff_t>(start));
  putU16(&bytes[Jet4.rowDirectoryAt], start);
  putDirectory(bytes.data(), owner_, 1, start);
  out_.write(page, bytes);
}

void RecordPages::finish() {
  if (number_ == 0) return;
  putDirectory(page_.data(), owner_, rows_, bottom_);
  out_.write(number_, page_);
}

std::vector<std::uint32_t> RecordPages::pagesWithRoom() const {
  if (rows_ == MostRows || room() < UsefulRoom) return {};
  return {number_};
}

}  // namespace jet::file
