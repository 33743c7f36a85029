// Memo and OLE values fetched from the pages where they lie.
#include "jet/file/read/long_value.h"

#include "jet/file/errors.h"

namespace jet::file {

namespace {

constexpr std::size_t LinkSize = 4;  // row and page of the next record, in front of each record of a chain

RowPointer readPointer(const std::byte* at) {
  return {readU24(at + 1), std::to_integer<std::uint8_t>(at[0])};
}

}  // namespace

LongValueHead::LongValueHead(std::span<const std::byte> field) {
  if (field.size() < Size) throw damagedFile("valore lungo senza testa");
  const std::uint32_t word = readU32(field.data());
  length = word & 0x3FFFFFFF;
  if (word >> 30 > static_cast<std::uint32_t>(Kind::Inline))
    throw damagedFile("valore lungo di tipo sconosciuto");
  kind = static_cast<Kind>(word >> 30);
  pointer = readPointer(&field[4]);
}

std::span<const std::byte> LongValues::fetch(std::span<const std::byte> field, std::size_t position) {
  const LongValueHead head(field);
  if (head.kind == LongValueHead::Kind::Chain) return fetchChain(head, chains_[position]);
  std::span<const std::byte> content = field.subspan(LongValueHead::Size);
  if (head.kind == LongValueHead::Kind::Single) {
    const DataPage holder = page(head.pointer);
    held_.push_back(holder.page());
    content = holder.record(head.pointer.row);
  }
  if (content.size() != head.length) throw damagedFile("valore lungo di lunghezza errata");
  return content;
}

std::span<const std::byte> LongValues::fetchChain(const LongValueHead& head, std::vector<std::byte>& out) {
  // A chain that runs in a circle ends here too: each record adds something.
  const std::uint64_t fileSize = static_cast<std::uint64_t>(file_.pageCount()) * file_.format().pageSize;
  if (head.length > fileSize) throw damagedFile("valore lungo più lungo del file");
  out.clear();
  for (RowPointer next = head.pointer; next;) {
    const DataPage holder = page(next);
    const auto part = holder.record(next.row);
    if (part.size() <= LinkSize || part.size() - LinkSize > head.length - out.size())
      throw damagedFile("catena di un valore lungo errata");
    next = readPointer(part.data());
    out.insert(out.end(), part.begin() + LinkSize, part.end());
  }
  if (out.size() != head.length) throw damagedFile("valore lungo incompleto");
  return out;
}

/// The page that a record of a long value lies on.
DataPage LongValues::page(RowPointer pointer) const {
  DataPage holder(file_.format(), file_.page(pointer.page));
  if (holder.owner() != LongValueOwner) holder.page().damaged("non è una pagina di valori lunghi");
  if (holder.marks(pointer.row) != 0) holder.page().damaged("il valore lungo è cancellato");
  return holder;
}

}  // namespace jet::file
