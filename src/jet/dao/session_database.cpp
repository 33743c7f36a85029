#include "jet/dao/session_database.h"

#include "jet/dao/positioned_recordset.h"
#include "jet/dao/query_defs.h"
#include "jet/dao/sequential_recordset.h"
#include "jet/dao/tables.h"

namespace jet::dao {

namespace {

constexpr char Source[] = "DAO.Database";

// Columns of MSysRelationships (t5), in the order of the query below.
constexpr char RelationRows[] =
    "SELECT c0, c6, c4, c1, c7, c5 FROM t5 ORDER BY min(rowid) OVER (PARTITION BY c0), c3";

std::string text(const image::Statement& row, int column) {
  const auto* data = reinterpret_cast<const char*>(sqlite3_column_text(row.handle(), column));
  return data ? std::string(data, static_cast<std::size_t>(sqlite3_column_bytes(row.handle(), column)))
              : std::string();
}

sql::RowStatement selection(sql::Statement statement) {
  auto* rows = std::get_if<sql::RowStatement>(&statement);
  if (!rows || rows->kind != sql::RowStatement::Kind::Select)
    throw runtime::Error(3219, Source, "Operazione non valida: l'istruzione non restituisce record");
  return std::move(*rows);
}

/// `SELECT * FROM [name]`, for a table opened by its name.
std::string wholeTable(const std::string& name) {
  return "SELECT * FROM [" + name + "]";
}

}  // namespace

RecordsetPtr openRows(const std::shared_ptr<Session>& session, const std::string& sql, const Answers& answers,
                      RecordsetType type, int options) {
  auto& runner = session->runner();
  if (type == dbOpenDynaset || type == dbOpenTable) {
    auto plan = selection(runner.compile(sql, true));
    if (hasKeyset(plan))
      return std::make_shared<KeysetRecordset>(session, std::move(plan), answers,
                                               (options & dbReadOnly) != 0);
  }
  auto plan = selection(runner.compile(sql));
  if (type == dbOpenForwardOnly) return std::make_shared<ForwardRecordset>(session, std::move(plan), answers);
  return std::make_shared<SnapshotRecordset>(session, std::move(plan), answers);
}

void SessionDatabase::requireOpen() const {
  if (session_->closed || session_->released())
    throw runtime::Error(3420, Source, "Oggetto non valido: il database è chiuso");
}

RecordsetPtr SessionDatabase::OpenRecordset(const std::string& source, RecordsetType type, int options) {
  requireOpen();
  const auto* table = session_->image().find(source);
  if (!table) {
    const std::string statement = statementFor(*session_, source);
    if (type == dbOpenTable) {
      if (statement == source) throw runtime::Error(3078, Source, "Tabella inesistente: " + source);
      throw runtime::Error(3219, Source, "Operazione non valida: " + source + " non è una tabella");
    }
    return openRows(session_, statement, {}, type, options);
  }
  // Nothing can change under a read-only database, so its rows need not be loaded to be read in order.
  if (session_->readOnly() && (type == dbOpenTable || type == dbOpenForwardOnly))
    return std::make_shared<FileRecordset>(session_, table->page);
  return openRows(session_, wholeTable(table->name), {}, type, options);
}

QueryDefPtr SessionDatabase::CreateQueryDef(const std::string& name, const std::string& sql) {
  requireOpen();
  return createQueryDef(session_, name, sql);
}

void SessionDatabase::Execute(const std::string& sql, int) {
  requireOpen();
  auto& runner = session_->runner();
  affected_ = runner.execute(runner.compile(statementFor(*session_, sql)), {});
}

std::vector<std::string> SessionDatabase::tableNames() const {
  requireOpen();
  std::vector<std::string> names;
  for (const auto& table : session_->image().tables()) names.push_back(table.name);
  return names;
}

TableDefPtr SessionDatabase::TableDefs(std::string_view name) {
  requireOpen();
  return tableDef(session_, name);
}

std::vector<Relation> SessionDatabase::Relations() const {
  requireOpen();
  auto& image = session_->image();
  image.prepareToRead(file::RelationshipsTable, {});
  std::vector<Relation> relations;
  auto rows = image.connection().prepare(RelationRows);
  while (rows.step()) {
    const std::string name = text(rows, 0);
    if (relations.empty() || relations.back().Name != name)
      relations.push_back({name, text(rows, 1), text(rows, 2), static_cast<int>(rows.integer(3)), {}});
    relations.back().Fields.push_back({text(rows, 4), text(rows, 5)});
  }
  return relations;
}

std::vector<std::string> SessionDatabase::queryNames() const {
  requireOpen();
  return queryDefNames(*session_);
}

QueryDefPtr SessionDatabase::QueryDefs(std::string_view name) {
  requireOpen();
  return queryDef(session_, name);
}

void SessionDatabase::deleteQueryDef(std::string_view name) {
  requireOpen();
  dao::deleteQueryDef(*session_, name);
}

void SessionDatabase::Close() {
  requireOpen();
  onClose_(*session_);
}

}  // namespace jet::dao
