// A cursor over a table of the image that remembers no more than where it stands.
#include "jet/dao/recordset/table_cursor.h"

#include "jet/dao/values.h"
#include "jet/file/errors.h"
#include "jet/image/row_codec.h"

namespace jet::dao {

TableCursor::TableCursor(image::Image& image, std::uint32_t page) : image_(image), page_(page) {}

void TableCursor::orderBy(std::vector<file::IndexColumn> columns) {
  columns_ = std::move(columns);
  key_.clear();
  key_.resize(columns_.size());
  statements_.clear();
  ready_.reset();
}

void TableCursor::prepareTable() {
  if (ready_.get(image_.generation())) return;
  if (columns_.empty())
    image_.prepareToRead(page_, {});
  else
    image_.prepareToRead(page_, {columns_.front().column});
  ready_.set(image_.generation());
}

image::Statement& TableCursor::prepared(const std::string& sql) {
  auto& statement = statements_[sql];
  if (!statement) statement = image_.connection().prepare(sql);
  statement.reset();
  return statement;
}

std::string TableCursor::equals(std::size_t columns) const {
  std::string text;
  for (std::size_t i = 0; i < columns; ++i)
    text += image::columnName(columns_[i].column) + " IS ?" + std::to_string(i + 1) + " AND ";
  return text;
}

/// The first row of those that fit, in the order from column `sortFrom` on.
std::optional<std::int64_t> TableCursor::run(const std::string& condition, std::size_t sortFrom,
                                             bool forward) {
  std::string sql = "SELECT rowid FROM " + image::tableName(page_) + " WHERE " + condition + " ORDER BY ";
  for (std::size_t i = sortFrom; i < columns_.size(); ++i)
    sql += image::columnName(columns_[i].column) + (columns_[i].ascending == forward ? ", " : " DESC, ");
  auto& statement = prepared(sql + (forward ? "rowid LIMIT 1" : "rowid DESC LIMIT 1"));
  for (std::size_t i = 0; i < key_.size(); ++i)
    image::copyValue(key_[i], statement.parameter(static_cast<int>(i + 1)));
  const int place = static_cast<int>(columns_.size() + 1);
  if (statement.parameters() >= place) statement.bind(place, rowid_);
  std::optional<std::int64_t> found;
  if (statement.step()) found = statement.integer(0);
  statement.reset();
  if (found) standOn(*found);
  return found;
}

std::optional<std::int64_t> TableCursor::edge(bool forward) {
  prepareTable();
  return run("1", 0, forward);
}

std::optional<std::int64_t> TableCursor::equal(std::size_t columns, bool forward) {
  return run(equals(columns) + "1", columns, forward);
}

/// Rows whose first `columns` - 1 columns are those of the key, and whose next one lies behind it (before it
/// where not `forward`); Null comes before everything.
std::optional<std::int64_t> TableCursor::beyond(std::size_t columns, bool forward) {
  const std::size_t at = columns - 1;
  const std::string name = image::columnName(columns_[at].column);
  const std::string same = equals(at);
  const bool up = columns_[at].ascending == forward;
  if (key_[at].isNull()) return up ? run(same + name + " IS NOT NULL", at, forward) : std::nullopt;
  const std::string parameter = " ?" + std::to_string(columns);
  if (const auto found = run(same + name + (up ? " >" : " <") + parameter, at, forward)) return found;
  return up ? std::nullopt : run(same + name + " IS NULL", columns, forward);
}

std::optional<std::int64_t> TableCursor::neighbour(bool forward) {
  prepareTable();
  readKey();
  const std::string rowid =
      std::string("rowid ") + (forward ? ">" : "<") + " ?" + std::to_string(columns_.size() + 1);
  if (const auto found = run(equals(columns_.size()) + rowid, columns_.size(), forward)) return found;
  for (std::size_t columns = columns_.size(); columns > 0; --columns)
    if (const auto found = beyond(columns, forward)) return found;
  return std::nullopt;
}

std::optional<std::int64_t> TableCursor::seek(std::string_view comparison,
                                              std::span<const runtime::Variant> keys) {
  const bool orEqual = comparison.ends_with('=');
  const char sign = comparison.empty() ? ' ' : comparison.front();
  if ((sign != '=' && sign != '<' && sign != '>') || comparison.size() > (sign == '=' ? 1u : 2u) ||
      (comparison.size() == 2 && !orEqual) || keys.empty() || keys.size() > columns_.size())
    throw runtime::Error(InvalidArgument, source::Recordset,
                         "Argomento non valido per Seek: " + std::string(comparison));
  prepareTable();
  const auto& table = image_.definition(page_);
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    key_[i].null();
    if (i >= keys.size()) continue;
    const auto& column = table.columns[*table.findNumber(columns_[i].column)];
    key_[i] = storedValue(keys[i], sql::typeOf(column.type));
  }
  const bool forward = sign != '<';
  if (orEqual) {
    const auto found = equal(keys.size(), forward);
    if (found || sign == '=') return found;
  }
  for (std::size_t columns = keys.size(); columns > 0; --columns)
    if (const auto found = beyond(columns, forward)) return found;
  return std::nullopt;
}

void TableCursor::standOn(std::int64_t rowid) {
  rowid_ = rowid;
  readKey();
}

/// A row that is gone keeps the key that it had.
void TableCursor::readKey() {
  if (columns_.empty()) return;
  std::string names;
  for (const auto& column : columns_) names += (names.empty() ? "" : ", ") + image::columnName(column.column);
  auto& statement = prepared("SELECT " + names + " FROM " + image::tableName(page_) + " WHERE rowid = ?1");
  statement.bind(1, rowid_);
  if (statement.step())
    for (std::size_t i = 0; i < key_.size(); ++i)
      image::copyValue(statement.column(static_cast<int>(i)), key_[i]);
  statement.reset();
}

}  // namespace jet::dao
