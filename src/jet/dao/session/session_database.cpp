#include "jet/dao/session/session_database.h"

#include "jet/dao/query/session_query_def.h"
#include "jet/dao/recordset/open_rows.h"
#include "jet/dao/session/database_collections.h"
#include "jet/file/errors.h"

namespace jet::dao {

void SessionDatabase::requireOpen() const {
  if (session_->closed || session_->released())
    throw errorOf(ObjectInvalid, source::Database, "il database è chiuso");
}

RecordsetPtr SessionDatabase::OpenRecordset(const std::string& source, RecordsetType type, int options) {
  requireOpen();
  return openSource(session_, source, type, options);
}

void SessionDatabase::Execute(const std::string& sql, int options) {
  requireOpen();
  auto& runner = session_->runner();
  affected_ =
      runner.execute(runner.compile(statementFor(*session_, sql)), {}, (options & dbFailOnError) != 0);
}

TableDefCollection SessionDatabase::TableDefs() {
  requireOpen();
  return TableDefCollection(std::make_shared<DatabaseTables>(session_));
}

RelationCollection SessionDatabase::Relations() {
  requireOpen();
  return RelationCollection(std::make_shared<DatabaseRelations>(session_));
}

QueryDefCollection SessionDatabase::QueryDefs() {
  requireOpen();
  return QueryDefCollection(std::make_shared<DatabaseQueries>(session_));
}

TableDefPtr SessionDatabase::CreateTableDef(const std::string& name) {
  requireOpen();
  return std::make_shared<TableDef>(session_, name);
}

RelationPtr SessionDatabase::CreateRelation(const std::string& name, const std::string& table,
                                            const std::string& foreignTable, int attributes) {
  requireOpen();
  return std::make_shared<Relation>(
      image::RelationDesign{name, table, foreignTable, static_cast<std::uint32_t>(attributes), {}});
}

QueryDefPtr SessionDatabase::CreateQueryDef(const std::string& name, const std::string& sql) {
  requireOpen();
  if (name.empty()) return std::make_shared<SessionQueryDef>(session_, sql);
  return std::make_shared<SessionQueryDef>(session_, createQuery(session_->image(), name, sql));
}

Property SessionDatabase::CreateProperty(const std::string& name, int type, const runtime::Variant& value) {
  requireOpen();
  return Property(name, type, value);
}

void SessionDatabase::Close() {
  requireOpen();
  onClose_(*session_);
}

}  // namespace jet::dao
