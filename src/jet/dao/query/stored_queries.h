#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "jet/image/catalogue_rows.h"
#include "jet/image/image.h"
#include "jet/sql/stored/stored_query.h"

/// The stored queries of an image: rows of the catalogue and of MSysQueries.
namespace jet::dao {

struct QueryObject : image::DatedObject {
  sql::QueryKind kind() const { return static_cast<sql::QueryKind>(flags & sql::QueryKindBits); }
};

/// All of them in catalogue order, hidden ones included.
std::vector<QueryObject> queryObjects(image::Image& image);
std::optional<QueryObject> findQueryObject(image::Image& image, std::string_view name);
std::optional<QueryObject> findQueryObject(image::Image& image, std::uint32_t id);

/// Its rows, and its text. Error 3131 or 3360 for rows that make no text.
sql::StoredQuery readQuery(image::Image& image, const QueryObject& object);
std::string queryText(image::Image& image, const QueryObject& object);

/// Keeps `text` under `name` and gives the object's id. Error 3012 if the name is taken, 3125 for a bad one,
/// 3075 and kin for syntax.
std::uint32_t createQuery(image::Image& image, const std::string& name, const std::string& text);
/// Gives the object another text; its id, properties and permissions stay. A pass-through query takes any
/// text. Errors as createQuery; the old text stays.
void rewriteQuery(image::Image& image, const QueryObject& object, const std::string& text);
void dropQuery(image::Image& image, const QueryObject& object);

}  // namespace jet::dao
