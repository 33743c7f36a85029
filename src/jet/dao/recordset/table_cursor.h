#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "jet/image/image.h"
#include "jet/sql/type.h"
#include "runtime/variant.h"

namespace jet::dao {

/// Walks the rows of a table of the image in the order of an index, or as they lie; nothing is remembered but
/// the row where it stands, so that all changes of the table are seen.
class TableCursor {
 public:
  TableCursor(image::Image& image, std::uint32_t page);
  /// Orders by these columns; none: as the rows lie.
  void orderBy(std::vector<file::IndexColumn> columns);
  bool ordered() const { return !columns_.empty(); }

  // Each gives the rowid where it now stands; nothing, and no move, where there is no such row.
  std::optional<std::int64_t> first() { return edge(true); }
  std::optional<std::int64_t> last() { return edge(false); }
  std::optional<std::int64_t> next() { return neighbour(true); }
  std::optional<std::int64_t> previous() { return neighbour(false); }
  /// The first row, from the end for < and <=, whose leading columns stand to `keys` as `comparison` says, in
  /// the order of the index. Error 3421 for a key of the wrong type.
  std::optional<std::int64_t> seek(std::string_view comparison, std::span<const runtime::Variant> keys);
  void standOn(std::int64_t rowid);

 private:
  std::optional<std::int64_t> edge(bool forward);
  std::optional<std::int64_t> neighbour(bool forward);
  std::optional<std::int64_t> equal(std::size_t columns, bool forward);
  std::optional<std::int64_t> beyond(std::size_t columns, bool forward);
  std::optional<std::int64_t> run(const std::string& condition, std::size_t sortFrom, bool forward);
  /// c<n> = ?<n> of the first `columns`, with AND behind each.
  std::string equals(std::size_t columns) const;
  void readKey();
  void prepareTable();
  image::Statement& prepared(const std::string& sql);

  image::Image& image_;
  std::uint32_t page_;
  std::vector<file::IndexColumn> columns_;
  std::int64_t rowid_ = 0;
  image::Prepared<> ready_;              // the table
  std::vector<image::StoredValue> key_;  // of the row where it stands: values of columns_
  std::map<std::string, image::Statement> statements_;
};

}  // namespace jet::dao
