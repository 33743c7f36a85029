#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "jet/file/errors.h"
#include "jet/file/index/index_key.h"

namespace jet::file {

/// Gathers the entries (key and row pointer) of one index while its table's rows are written, then sorts
/// them. Costs the entries' bytes and 16 bytes for each.
class IndexEntries {
 public:
  static constexpr std::size_t PointerLength = 4;

  /// Entries of real index `index` of `table`, which must outlive this.
  IndexEntries(const TableDefinition& table, std::size_t index);

  /// Adds a row that lies at `pointer`. Error 3058 for a null that the index doesn't allow, 3047 for a key
  /// too long for an index page.
  void add(const Row& row, RowPointer pointer);
  /// Puts the entries in order. Error 3022 if a unique index has the same key twice.
  void sort();

  std::size_t size() const { return entries_.size(); }
  /// Entry `i` in order: key, page and row with the high byte first.
  std::span<const std::byte> operator[](std::size_t i) const { return bytes(entries_[i]); }
  /// Number of different keys, once sorted.
  std::uint32_t distinctKeys() const { return distinctKeys_; }

 private:
  struct Entry {
    std::uint64_t prefix;  // set by sort(): eight bytes as a number
    std::uint32_t at;      // in chunks_
    std::uint16_t length;
    bool nulls;
  };

  std::span<const std::byte> bytes(const Entry& entry) const;
  std::span<const std::byte> key(const Entry& entry) const;
  std::uint32_t store(std::span<const std::byte> bytes);
  void setPrefixes();
  bool before(const Entry& a, const Entry& b) const;
  [[noreturn]] void fail(ErrorNumber number, const std::string& what) const;

  const TableDefinition& table_;
  const RealIndex& index_;
  std::string name_;
  bool unique_, required_;
  IndexKeys keys_;
  std::vector<std::unique_ptr<std::byte[]>> chunks_;
  std::size_t used_ = 0;  // of the last chunk
  std::vector<Entry> entries_;
  std::vector<std::byte> scratch_;
  std::uint32_t distinctKeys_ = 0;
};

}  // namespace jet::file
