#pragma once

#include "jet/dao/session.h"
#include "jet/dao/table_def.h"

namespace jet::dao {

/// The TableDef over a table of the session. Error 3265 if there is none.
TableDefPtr tableDef(std::shared_ptr<Session> session, std::string_view name);

}  // namespace jet::dao
