#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "jet/file/read/table_reader.h"
#include "jet/image/image.h"
#include "runtime/variant.h"

namespace jet::dao {

/// The rows of a table straight from the pages, in the order in which they lie; fields in display order.
class FileRows {
 public:
  FileRows(image::Image& image, std::uint32_t page);
  /// Goes to the next row; false behind the last.
  bool next();
  /// Rows come to so far: the rowid that loading the table would give the current one.
  std::int64_t rowid() const { return rowid_; }
  runtime::Variant value(std::size_t field) const;

 private:
  image::Image& image_;
  std::shared_ptr<const file::TableDefinition> table_;
  std::vector<std::size_t> order_;  // positions in the definition, by field
  file::TableReader reader_;
  file::Row row_;
  std::int64_t rowid_ = 0;
};

}  // namespace jet::dao
