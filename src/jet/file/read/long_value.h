#pragma once

#include <span>
#include <vector>

#include "jet/file/definition.h"
#include "jet/file/page/data_page.h"

namespace jet::file {

/// Head in front of (or in place of) the content of a Memo or OLE field.
struct LongValueHead {
  enum class Kind { Chain = 0, Single = 1, Inline = 2 };
  static constexpr std::size_t Size = 12;

  std::uint32_t length = 0;
  Kind kind = Kind::Inline;
  RowPointer pointer;

  /// Error 3343 if the field holds no head.
  explicit LongValueHead(std::span<const std::byte> field);
};

/// Fetches the content of long values. What fetch() gives stays valid until release().
class LongValues {
 public:
  LongValues(const PageFile& file, std::size_t columns) : file_(file), chains_(columns) {}

  /// Content behind the raw `field` of the column at `position`. Error 3343 if it is damaged.
  std::span<const std::byte> fetch(std::span<const std::byte> field, std::size_t position);
  void release() { held_.clear(); }

 private:
  std::span<const std::byte> fetchChain(const LongValueHead& head, std::vector<std::byte>& out);
  DataPage page(RowPointer pointer) const;

  const PageFile& file_;
  std::vector<Page> held_;                      // pages that contents lie on
  std::vector<std::vector<std::byte>> chains_;  // joined contents, a buffer for each column
};

}  // namespace jet::file
