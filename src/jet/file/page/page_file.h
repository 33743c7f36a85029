#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "jet/file/page/bytes.h"
#include "jet/file/page/header.h"
#include "platform/disk.h"

namespace jet::file {

/// A page's bytes with checked access; a read outside throws error 3343 that names the page. Copies share the
/// bytes and keep them alive.
class Page {
 public:
  Page() = default;
  Page(std::shared_ptr<const std::vector<std::byte>> owner, std::span<const std::byte> bytes,
       std::uint32_t number)
      : owner_(std::move(owner)), bytes_(bytes), number_(number) {}

  std::uint32_t number() const { return number_; }
  std::size_t size() const { return bytes_.size(); }
  std::uint8_t u8(std::size_t offset) const { return std::to_integer<std::uint8_t>(*at(offset, 1)); }
  std::uint16_t u16(std::size_t offset) const { return readU16(at(offset, 2)); }
  std::uint32_t u24(std::size_t offset) const { return readU24(at(offset, 3)); }
  std::uint32_t u32(std::size_t offset) const { return readU32(at(offset, 4)); }
  std::span<const std::byte> bytes(std::size_t offset, std::size_t length) const {
    return {at(offset, length), length};
  }
  std::span<const std::byte> all() const { return bytes_; }
  /// Error 3343: "pagina N: what".
  [[noreturn]] void damaged(const std::string& what) const;

 private:
  const std::byte* at(std::size_t offset, std::size_t length) const {
    if (length > bytes_.size() || offset > bytes_.size() - length) outside(offset);
    return bytes_.data() + offset;
  }
  [[noreturn]] void outside(std::size_t offset) const;

  std::shared_ptr<const std::vector<std::byte>> owner_;
  std::span<const std::byte> bytes_;
  std::uint32_t number_ = 0;
};

enum class Sharing { Shared, Exclusive };

/// The pages of an open database: locks the file, checks the header, reads pages through a bounded cache.
/// Errors: 3024 no such file, 3044 no such path, 3051 no access or a folder, 3356 open elsewhere (names the
/// holder where known), 3343 not a database or damaged, 3031 protected by a password, 3041 Jet 3 for writing,
/// 3043 I/O.
class PageFile {
 public:
  PageFile(const std::string& path, Sharing sharing, bool readOnly);
  /// Takes over an open, locked file (one just written).
  PageFile(platform::File file, Sharing sharing, bool readOnly);
  ~PageFile();

  const Header& header() const { return header_; }
  const Format& format() const { return *header_.format; }
  std::uint32_t pageCount() const { return pageCount_; }
  /// Page `number`, or error 3343 outside the file.
  Page page(std::uint32_t number) const;
  /// Bytes of as many pages as `out` holds from `first` straight from the file, past the cache; for copying.
  void read(std::uint32_t first, std::span<std::byte> out) const;

  const std::string& path() const { return path_; }
  platform::File& file() { return file_; }
  /// Error 3197 if the file was changed or replaced since it was opened: what was read is a mixture then.
  void requireUnchanged() const;
  /// The same before another file takes its place; 3051 if it has further names (hard links), under which the
  /// old content would live on.
  void requireReplaceable() const;
  bool readOnly() const { return readOnly_; }
  Sharing sharing() const { return sharing_; }

 private:
  void checkHeader();

  std::string path_;
  platform::File file_;
  platform::FileState state_;  // when it was opened
  Sharing sharing_;
  bool readOnly_;
  Header header_;
  std::uint32_t pageCount_ = 0;
  struct Cache;
  std::unique_ptr<Cache> cache_;
};

}  // namespace jet::file
