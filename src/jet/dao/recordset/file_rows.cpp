#include "jet/dao/recordset/file_rows.h"

#include "jet/file/values.h"

namespace jet::dao {

FileRows::FileRows(image::Image& image, std::uint32_t page)
    : image_(image),
      table_(image.sharedDefinition(page)),
      order_(table_->displayOrder()),
      reader_(image.source(), *table_) {}

bool FileRows::next() {
  if (!reader_.next(row_)) return false;
  ++rowid_;
  return true;
}

runtime::Variant FileRows::value(std::size_t field) const {
  const auto& header = image_.source().header();
  const auto position = order_[field];
  return file::toVariant(*header.format, header.codePage, table_->columns[position], row_[position]);
}

}  // namespace jet::dao
