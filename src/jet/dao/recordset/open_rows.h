#pragma once

#include <memory>
#include <string>

#include "jet/dao/recordset.h"
#include "jet/dao/session/session.h"

namespace jet::dao {

/// Opens the rows of a SELECT in the way `type` asks for: a dynaset where it doesn't tell. `name` is what the
/// recordset calls itself. Error 3219 for another statement, or for a table that a query can't be.
RecordsetPtr openRows(const std::shared_ptr<Session>& session, const std::string& name,
                      const std::string& sql, const Answers& answers, RecordsetType type, int options);
/// Opens a table by its name: a table where `type` doesn't tell, a dynaset for a link. Error 3219 for a link
/// as a table.
RecordsetPtr openTable(const std::shared_ptr<Session>& session, const std::string& name, RecordsetType type,
                       int options);
/// A table, a stored query or a SELECT. Error 3078 for a name that nothing has.
RecordsetPtr openSource(const std::shared_ptr<Session>& session, const std::string& source,
                        RecordsetType type, int options);

/// The statement that `source` stands for: itself, or the text of the stored query of that name. What begins
/// with a word of the language is a statement.
std::string statementFor(Session& session, const std::string& source);

}  // namespace jet::dao
