#pragma once

#include <string>

#include "jet/dao/database.h"

namespace common {

/// True if the table has the field; any error is false. A `db` that is nothing becomes, also for the caller,
/// the database that the suite has open.
bool EsisteCampo(const std::string& tabella, const std::string& campo, jet::dao::DatabasePtr& db);

}  // namespace common
