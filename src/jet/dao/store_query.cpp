#include "jet/dao/session_query_def.h"
#include "jet/sql/stored_query.h"

namespace jet::dao {

namespace {

// Columns of MSysQueries (t4): c0 ObjectId, c1 Attribute, c2 Order, c3 Name1, c4 Name2, c5 Expression, c6
// Flag.
constexpr char InsertRow[] =
    "INSERT INTO t4 (c0, c1, c2, c3, c4, c5, c6) VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7)";

void bindOptional(image::Statement& statement, int parameter, const std::optional<std::string>& value) {
  if (value)
    statement.bind(parameter, std::string_view(*value));
  else
    statement.bindNull(parameter);
}

void insertRow(image::Statement& insert, std::uint32_t id, const sql::QueryRow& row) {
  const unsigned char order[] = {
      static_cast<unsigned char>(row.order >> 24), static_cast<unsigned char>(row.order >> 16),
      static_cast<unsigned char>(row.order >> 8), static_cast<unsigned char>(row.order)};
  insert.bind(1, std::int64_t{static_cast<std::int32_t>(id)});
  insert.bind(2, std::int64_t{row.attribute});
  sqlite3_bind_blob(insert.handle(), 3, order, sizeof order, SQLITE_TRANSIENT);
  bindOptional(insert, 4, row.name1);
  bindOptional(insert, 5, row.name2);
  bindOptional(insert, 6, row.expression);
  if (row.flag)
    insert.bind(7, std::int64_t{*row.flag});
  else
    insert.bindNull(7);
  insert.run();
}

}  // namespace

void storeQuery(Session& session, const std::string& name, const std::string& sql) {
  const auto query = sql::takeApart(sql);
  auto& image = session.image();
  image::Transaction whole(image);
  const auto id = image.createObject(name, file::ObjectType::Query, static_cast<std::uint32_t>(query.kind));
  image.changeSystemTable(file::QueriesTable);
  auto insert = image.connection().prepare(InsertRow);
  for (const auto& row : query.rows) insertRow(insert, id, row);
  whole.keep();
}

}  // namespace jet::dao
