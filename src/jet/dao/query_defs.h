#pragma once

#include "jet/dao/query_def.h"
#include "jet/dao/session.h"

namespace jet::dao {

/// The QueryDef over a stored query of the session. Error 3265 if there is none.
QueryDefPtr queryDef(const std::shared_ptr<Session>& session, std::string_view name);
/// A stored query, or a temporary one where `name` is empty. Errors as createQuery.
QueryDefPtr createQueryDef(const std::shared_ptr<Session>& session, const std::string& name,
                           const std::string& sql);
/// Error 3265 if there is none.
void deleteQueryDef(Session& session, std::string_view name);
/// Names of all stored queries in catalogue order, hidden ones included.
std::vector<std::string> queryDefNames(Session& session);

/// The statement that `source` stands for: itself, or the text of the stored query of that name. What begins
/// with a word of the language is a statement.
std::string statementFor(Session& session, const std::string& source);

}  // namespace jet::dao
