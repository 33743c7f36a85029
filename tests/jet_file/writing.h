#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "jet/file/write/database_writer.h"

/// Tables and rows made for tests, and what independent readers say of the files written.
namespace writing {

using Bytes = std::vector<std::byte>;
using Value = std::optional<Bytes>;  // nothing: null
using Values = std::vector<Value>;

Bytes bytes(std::initializer_list<int> values);
Bytes hex(std::string_view digits);
std::string toHex(std::span<const std::byte> bytes);
/// Little endian.
template <typename Number>
Bytes raw(Number number) {
  const auto* at = reinterpret_cast<const std::byte*>(&number);
  return {at, at + sizeof number};
}
Bytes text(std::string_view utf8, bool compress = true);

/// Rows made one after the other; `count` of them.
class MadeRows : public jet::file::RowSource {
 public:
  MadeRows(std::size_t count, std::function<Values(std::size_t)> make)
      : count_(count), make_(std::move(make)) {}
  bool next(jet::file::Row& row) override;

 private:
  std::size_t count_;
  std::function<Values(std::size_t)> make_;
  std::size_t next_ = 0;
  Values current_;
};
std::unique_ptr<jet::file::RowSource> made(std::vector<Values> rows);
std::unique_ptr<jet::file::RowSource> made(std::size_t count, std::function<Values(std::size_t)> make);

struct ColumnPlan {
  std::string name;
  jet::file::ColumnType type;
  std::uint16_t length = 0;
  bool variable = false;  // a type of fixed size that is kept in the variable part, and the other way round
};
struct IndexPlan {
  std::string name;
  std::vector<jet::file::IndexColumn> columns;
  std::uint8_t flags = 0;
  bool primary = false;
};
jet::file::TableDefinition table(const std::string& name, const std::vector<ColumnPlan>& columns,
                                 const std::vector<IndexPlan>& indexes);
void addIndex(jet::file::TableDefinition& table, const IndexPlan& index);

/// Writes an empty database; its path.
std::string emptyDatabase(const std::string& name);
/// Writes what `source` becomes with `changes`; the path of the new file.
std::string changed(const std::string& source, jet::file::Changes changes, const std::string& name);
std::string compacted(const std::string& source, const std::string& name);
/// Adds a table to a file: its rows, its catalogue row and its permissions.
std::string withTable(const std::string& source, jet::file::TableDefinition table,
                      std::unique_ptr<jet::file::RowSource> rows, const std::string& name);

jet::file::TableDefinition definitionOf(const jet::file::PageFile& file, const std::string& table);
/// All rows of all tables as text, table by table.
std::vector<std::string> contentOf(const std::string& path);
/// What the independent checker objects to in these files; empty if nothing, or where it isn't there.
enum class Check { Strict, Damage };
std::string objections(const std::vector<std::string>& paths, Check check = Check::Strict);

}  // namespace writing
