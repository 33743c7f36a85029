// Stored queries: objects of the catalogue, and their rows in MSysQueries.
#include "jet/dao/query/stored_queries.h"

#include <algorithm>

namespace jet::dao {

namespace {

// Columns of MSysQueries (t4): c0 ObjectId, c1 Attribute, c2 Order, c3 Name1, c4 Name2, c5 Expression, c6
// Flag, c7 LvExtra, which the older format doesn't have.
constexpr char RowsOf[] = "SELECT c1, c2, c3, c4, c5, c6 FROM t4 WHERE c0 = ?1";
constexpr char RowsWithSizes[] = "SELECT c1, c2, c3, c4, c5, c6, c7 FROM t4 WHERE c0 = ?1";
constexpr char InsertRow[] =
    "INSERT INTO t4 (c0, c1, c2, c3, c4, c5, c6, c7) VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8)";
// Rows of a meaning that is not known stay.
constexpr char DeleteKnownRows[] = "DELETE FROM t4 WHERE c0 = ?1 AND (c1 <= 11 OR c1 = 255)";
constexpr char DeleteRows[] = "DELETE FROM t4 WHERE c0 = ?1";

constexpr std::uint16_t ObjectIdColumn = 0, SizeColumn = 7;

using image::signedId;

std::optional<std::string> text(const image::Statement& row, int column) {
  return row.null(column) ? std::nullopt : std::optional(row.text(column));
}

std::optional<QueryObject> queryObject(std::optional<image::DatedObject> object) {
  return object ? std::optional(QueryObject{std::move(*object)}) : std::nullopt;
}

/// Big endian.
std::uint32_t orderOf(const image::Statement& row, int column) {
  std::uint32_t order = 0;
  for (const std::byte byte : row.bytes(column)) order = order << 8 | std::to_integer<unsigned>(byte);
  return order;
}

void bindOptional(image::Statement& statement, int parameter, const std::optional<std::string>& value) {
  if (value)
    statement.bind(parameter, std::string_view(*value));
  else
    statement.bindNull(parameter);
}

template <class Number>
void bindOptional(image::Statement& statement, int parameter, const std::optional<Number>& value) {
  if (value)
    statement.bind(parameter, std::int64_t{*value});
  else
    statement.bindNull(parameter);
}

void insertRow(image::Statement& insert, std::uint32_t id, const sql::QueryRow& row) {
  const unsigned char order[] = {
      static_cast<unsigned char>(row.order >> 24), static_cast<unsigned char>(row.order >> 16),
      static_cast<unsigned char>(row.order >> 8), static_cast<unsigned char>(row.order)};
  insert.bind(1, signedId(id));
  insert.bind(2, std::int64_t{row.attribute});
  insert.bind(3, std::as_bytes(std::span(order)));
  bindOptional(insert, 4, row.name1);
  bindOptional(insert, 5, row.name2);
  bindOptional(insert, 6, row.expression);
  bindOptional(insert, 7, row.flag);
  bindOptional(insert, 8, row.size);
  insert.run();
}

void insertRows(image::Image& image, std::uint32_t id, const std::vector<sql::QueryRow>& rows) {
  auto insert = image.connection().prepare(InsertRow);
  for (const auto& row : rows) insertRow(insert, id, row);
}

void removeRows(image::Image& image, const char* sql, std::uint32_t id) {
  image.changeSystemTable(file::QueriesTable);
  auto remove = image.connection().prepare(sql);
  remove.bind(1, signedId(id));
  remove.run();
}

/// The rows of the pass-through query with another text.
sql::StoredQuery passThrough(sql::StoredQuery query, const std::string& newText) {
  for (auto& row : query.rows)
    if (row.attribute == sql::QueryRow::Kind) row.expression = newText + '\0';  // as the engine ends it
  std::erase_if(query.rows, [](const sql::QueryRow& row) {
    return row.attribute > sql::QueryRow::OrderBy && row.attribute != sql::QueryRow::End;
  });
  return query;
}

}  // namespace

std::vector<QueryObject> queryObjects(image::Image& image) {
  image.prepareToRead(file::CatalogueTable, {});
  std::vector<QueryObject> objects;
  for (auto& object : image::readObjects(image.connection(), file::ObjectType::Query))
    objects.push_back({std::move(object)});
  return objects;
}

std::optional<QueryObject> findQueryObject(image::Image& image, std::string_view name) {
  image.prepareToRead(file::CatalogueTable, {image::ObjectParentColumn});
  return queryObject(
      image::readObject(image.connection(), file::ObjectType::Query, file::TablesContainer, name));
}

std::optional<QueryObject> findQueryObject(image::Image& image, std::uint32_t id) {
  image.prepareToRead(file::CatalogueTable, {});
  return queryObject(image::readObject(image.connection(), file::ObjectType::Query, id));
}

sql::StoredQuery readQuery(image::Image& image, const QueryObject& object) {
  image.prepareToRead(file::QueriesTable, {ObjectIdColumn});
  const auto& columns = image.definition(file::QueriesTable).columns;
  const bool sizes = std::ranges::any_of(columns, [](const auto& c) { return c.number == SizeColumn; });
  auto rows = image.connection().prepare(sizes ? RowsWithSizes : RowsOf);
  rows.bind(1, signedId(object.id));
  sql::StoredQuery query{object.kind(), {}};
  while (rows.step()) {
    sql::QueryRow row;
    row.attribute = static_cast<sql::QueryRow::Attribute>(rows.integer(0));
    row.order = orderOf(rows, 1);
    row.name1 = text(rows, 2);
    row.name2 = text(rows, 3);
    row.expression = text(rows, 4);
    if (!rows.null(5)) row.flag = static_cast<std::int16_t>(rows.integer(5));
    if (sizes && !rows.null(6)) row.size = static_cast<std::int32_t>(rows.integer(6));
    query.rows.push_back(std::move(row));
  }
  return query;
}

std::string queryText(image::Image& image, const QueryObject& object) {
  return sql::queryText(readQuery(image, object));
}

std::uint32_t createQuery(image::Image& image, const std::string& name, const std::string& newText) {
  const auto query = sql::decodeQuery(newText);
  image::Transaction whole(image);
  const auto id = image.createObject(name, file::ObjectType::Query, static_cast<std::uint32_t>(query.kind));
  image.changeSystemTable(file::QueriesTable);
  insertRows(image, id, query.rows);
  whole.keep();
  return id;
}

void rewriteQuery(image::Image& image, const QueryObject& object, const std::string& newText) {
  const auto query = object.kind() == sql::QueryKind::PassThrough
                         ? passThrough(readQuery(image, object), newText)
                         : sql::decodeQuery(newText);
  image::Transaction whole(image);
  const auto kind = static_cast<std::uint32_t>(query.kind);
  image.changeObject(object.id, object.name, (object.flags & ~sql::QueryKindBits) | kind);
  removeRows(image, DeleteKnownRows, object.id);
  insertRows(image, object.id, query.rows);
  whole.keep();
}

void dropQuery(image::Image& image, const QueryObject& object) {
  image::Transaction whole(image);
  image.dropObject(object.id);
  removeRows(image, DeleteRows, object.id);
  whole.keep();
}

}  // namespace jet::dao
