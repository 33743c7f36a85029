#pragma once

#include <span>
#include <string>

#include "jet/sql/stored/stored_query.h"

namespace jet::sql::stored {

/// ` IN 'path' [type]`; empty where both are.
std::string otherDatabaseText(const std::optional<std::string>& path, const std::optional<std::string>& type);

/// The sources of a query, joined as its join rows tell; rows in their order. Error 3131 where join rows
/// contradict each other, 3360 for more rows than any query can have.
std::string fromText(std::span<const QueryRow> sources, std::span<const QueryRow> joins);

}  // namespace jet::sql::stored
