// Memo and OLE values written to the pages outside their rows.
#include "jet/file/write/long_value_writer.h"

#include <algorithm>

#include "jet/file/page/data_page.h"
#include "jet/file/page/put_bytes.h"

namespace jet::file {

namespace {

constexpr std::size_t LargestPart = 4076;  // of a value in one record
constexpr std::uint32_t Inline = 0x80000000, Single = 0x40000000, Chain = 0;

void fillHead(std::span<std::byte> head, std::size_t length, std::uint32_t kind, RowPointer pointer) {
  putU32(&head[0], static_cast<std::uint32_t>(length) | kind);
  putU8(&head[4], pointer.row);
  putU24(&head[5], pointer.page);
  putU32(&head[8], 0);
}

}  // namespace

LongValueWriter::LongValueWriter(PageOutput& out, TakePage take)
    : records_(out, std::move(take), LongValueOwner) {}

void LongValueWriter::fillInlineHead(std::size_t length, std::span<std::byte> head) {
  fillHead(head, length, Inline, {});
}

void LongValueWriter::store(std::span<const std::byte> value, std::span<std::byte> head) {
  if (value.size() <= LargestPart)
    fillHead(head, value.size(), Single, records_.add(value));
  else
    fillHead(head, value.size(), Chain, storeChain(value));
}

// Full pages first; what is left over shares a page with other values. It is placed first, because each
// record names the next one.
RowPointer LongValueWriter::storeChain(std::span<const std::byte> value) {
  const auto makeRecord = [this](RowPointer next, std::span<const std::byte> part) {
    scratch_.resize(4);
    putU8(&scratch_[0], next.row);
    putU24(&scratch_[1], next.page);
    appendBytes(scratch_, part);
    return std::span<const std::byte>(scratch_);
  };
  std::vector<std::uint32_t> pages((value.size() - 1) / LargestPart);
  for (std::uint32_t& page : pages) page = records_.takePage();
  RowPointer next = records_.add(makeRecord({}, value.subspan(pages.size() * LargestPart)));
  for (std::size_t i = pages.size(); i-- > 0;) {
    records_.writeAlone(pages[i], makeRecord(next, value.subspan(i * LargestPart, LargestPart)));
    next = {pages[i], 0};
  }
  return next;
}

}  // namespace jet::file
