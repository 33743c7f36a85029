// Index entries gathered while rows are written, sorted, and checked for duplicates.
#include "jet/file/index/index_entries.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "jet/file/errors.h"
#include "jet/file/page/format.h"

namespace jet::file {

namespace {

constexpr std::size_t ChunkBits = 20, ChunkSize = std::size_t{1} << ChunkBits;
// A node page holds an entry with the number of its child behind it.

/// Name by which messages call a real index: its first logical index that is no relation's, else any.
const LogicalIndex* logicalIndex(const TableDefinition& table, std::size_t real) {
  const LogicalIndex* found = nullptr;
  for (const LogicalIndex& logical : table.logicalIndexes)
    if (logical.real == real && (found == nullptr || found->kind == LogicalIndex::Kind::Relation))
      found = &logical;
  return found;
}

bool isPrimary(const TableDefinition& table, std::size_t real) {
  return std::ranges::any_of(table.logicalIndexes, [real](const LogicalIndex& logical) {
    return logical.real == real && logical.kind == LogicalIndex::Kind::Primary;
  });
}

std::uint64_t prefixOf(std::span<const std::byte> bytes) {
  std::uint64_t prefix = 0;
  for (std::size_t i = 0; i < sizeof prefix; ++i)
    prefix = prefix << 8 | (i < bytes.size() ? std::to_integer<std::uint64_t>(bytes[i]) : 0);
  return prefix;
}

}  // namespace

IndexEntries::IndexEntries(const TableDefinition& table, std::size_t index)
    : table_(table), index_(table.realIndexes[index]), keys_(Jet4, table, table.realIndexes[index]) {
  if (const LogicalIndex* logical = logicalIndex(table, index)) name_ = logical->name;
  const bool primary = isPrimary(table, index);
  unique_ = primary || (index_.flags & RealIndex::Unique) != 0;
  required_ = primary || (index_.flags & RealIndex::Required) != 0;
}

void IndexEntries::fail(ErrorNumber number, const std::string& what) const {
  throw jetError(number, what + " (indice \"" + name_ + "\" della tabella \"" + table_.name + "\")");
}

void IndexEntries::add(const Row& row, RowPointer pointer) {
  scratch_.clear();
  const std::size_t nulls = keys_.append(row, scratch_);
  if (nulls == keys_.columnCount() && (index_.flags & RealIndex::IgnoreNulls) != 0) return;
  if (nulls != 0 && required_) fail(NullInIndex, "La chiave dell'indice non può contenere un valore Null");
  for (const std::uint32_t byte :
       {pointer.page >> 16, pointer.page >> 8, pointer.page, std::uint32_t{pointer.row}})
    scratch_.push_back(static_cast<std::byte>(byte & 0xFF));
  if (scratch_.size() + ChildLength > Jet4.pageSize - Jet4.indexEntriesAt)
    fail(RecordTooLarge, "La chiave dell'indice è troppo lunga");
  entries_.push_back({0, store(scratch_), static_cast<std::uint16_t>(scratch_.size()), nulls != 0});
}

std::uint32_t IndexEntries::store(std::span<const std::byte> bytes) {
  if (chunks_.empty() || used_ + bytes.size() > ChunkSize) {
    chunks_.push_back(std::make_unique_for_overwrite<std::byte[]>(ChunkSize));
    used_ = 0;
  }
  const std::size_t at = (chunks_.size() - 1) << ChunkBits | used_;
  std::ranges::copy(bytes, chunks_.back().get() + used_);
  used_ += bytes.size();
  return static_cast<std::uint32_t>(at);
}

std::span<const std::byte> IndexEntries::bytes(const Entry& entry) const {
  return {chunks_[entry.at >> ChunkBits].get() + (entry.at & (ChunkSize - 1)), entry.length};
}

std::span<const std::byte> IndexEntries::key(const Entry& entry) const {
  return bytes(entry).first(entry.length - PointerLength);
}

bool IndexEntries::before(const Entry& a, const Entry& b) const {
  if (a.prefix != b.prefix) return a.prefix < b.prefix;
  const std::span<const std::byte> left = bytes(a), right = bytes(b);
  const int order = std::memcmp(left.data(), right.data(), std::min(left.size(), right.size()));
  return order != 0 ? order < 0 : left.size() < right.size();
}

/// Most comparisons end with the prefixes, which begin behind what all entries have in common.
void IndexEntries::setPrefixes() {
  const std::span<const std::byte> first = bytes(entries_.front());
  std::size_t common = first.size();
  for (const Entry& entry : entries_)
    common = static_cast<std::size_t>(std::ranges::mismatch(first.first(common), bytes(entry)).in1 -
                                      first.begin());
  for (Entry& entry : entries_) entry.prefix = prefixOf(bytes(entry).subspan(common));
}

void IndexEntries::sort() {
  if (!entries_.empty()) setPrefixes();
  const auto inOrder = [this](const Entry& a, const Entry& b) { return before(a, b); };
  if (!std::ranges::is_sorted(entries_, inOrder)) std::ranges::sort(entries_, inOrder);
  distinctKeys_ = entries_.empty() ? 0 : 1;
  for (std::size_t i = 1; i < entries_.size(); ++i) {
    if (!std::ranges::equal(key(entries_[i - 1]), key(entries_[i])))
      ++distinctKeys_;
    else if (unique_ && !entries_[i].nulls)
      fail(DuplicateKey, "Valori duplicati nell'indice, nella chiave primaria o nella relazione");
  }
}

}  // namespace jet::file
