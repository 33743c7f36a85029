#include "jet/dao/recordset/open_rows.h"

#include <algorithm>

#include "jet/dao/query/stored_queries.h"
#include "jet/dao/recordset/keyset_recordset.h"
#include "jet/dao/recordset/sequential_recordset.h"
#include "jet/dao/recordset/snapshot_recordset.h"
#include "jet/dao/recordset/table_recordset.h"
#include "jet/file/errors.h"
#include "jet/sql/parser/token.h"
#include "jet/sql/tree/print.h"

namespace jet::dao {

namespace {

[[noreturn]] void notATable(const std::string& name) {
  throw errorOf(InvalidOperation, source::Database, name + " non è una tabella");
}

bool isStatement(std::string_view text) {
  static constexpr std::string_view words[] = {"SELECT", "TRANSFORM", "INSERT",     "UPDATE",
                                               "DELETE", "CREATE",    "PARAMETERS", "ALTER",
                                               "DROP",   "EXECUTE",   "EXEC"};
  constexpr std::string_view blanks = " \t\r\n";
  text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
  const std::size_t end = text.find_first_of(blanks);
  if (end == std::string_view::npos) return false;
  return std::ranges::any_of(words, [&](auto word) { return sql::sameWord(text.substr(0, end), word); });
}

}  // namespace

RecordsetPtr openRows(const std::shared_ptr<Session>& session, const std::string& name,
                      const std::string& sql, const Answers& answers, RecordsetType type, int options) {
  auto& runner = session->runner();
  if (type == dbOpenTable) notATable(name);
  if (type == RecordsetType{}) type = dbOpenDynaset;
  if (type == dbOpenDynaset) {
    auto plan = runner.selection(sql, {true, answers});
    if (plan.rowKeys > 0)
      return std::make_shared<KeysetRecordset>(session, RecordsetBase::Origin{name, type}, std::move(plan),
                                               answers, (options & dbReadOnly) != 0);
  }
  auto plan = runner.selection(sql, {false, answers});
  RecordsetBase::Origin origin{name, type};
  if (type == dbOpenForwardOnly)
    return std::make_shared<ForwardRecordset>(session, std::move(origin), std::move(plan), answers);
  return std::make_shared<SnapshotRecordset>(session, std::move(origin), std::move(plan), answers);
}

RecordsetPtr openTable(const std::shared_ptr<Session>& session, const std::string& name, RecordsetType type,
                       int options) {
  const auto* table = session->image().find(name);
  if (!table) throw runtime::Error(UnknownTable, source::Database, "Tabella inesistente: " + name);
  if (type == dbOpenTable && table->link) notATable(name);
  RecordsetBase::Origin origin{table->name, type == RecordsetType{} ? dbOpenTable : type};
  if (origin.type == dbOpenTable && !table->link)
    return std::make_shared<TableRecordset>(session, std::move(origin), table->page,
                                            (options & dbReadOnly) != 0);
  // Nothing can change under a read-only database, so its rows need not be loaded to be read in order.
  if (session->readOnly() && type == dbOpenForwardOnly && !table->link)
    return std::make_shared<FileRecordset>(session, std::move(origin), table->page);
  return openRows(session, table->name, "SELECT * FROM " + sql::tree::quotedName(table->name), {}, type,
                  table->link ? options | dbReadOnly : options);
}

RecordsetPtr openSource(const std::shared_ptr<Session>& session, const std::string& source,
                        RecordsetType type, int options) {
  if (session->image().find(source)) return openTable(session, source, type, options);
  const std::string statement = statementFor(*session, source);
  if (type == dbOpenTable && statement == source)
    throw runtime::Error(UnknownTable, source::Database, "Tabella inesistente: " + source);
  return openRows(session, source, statement, {}, type, options);
}

std::string statementFor(Session& session, const std::string& source) {
  if (isStatement(source)) return source;
  const auto object = findQueryObject(session.image(), source);
  return object ? queryText(session.image(), *object) : source;
}

}  // namespace jet::dao
