// Find, Filter and Sort: the records as a table that statements can name.
#include "jet/dao/recordset/record_search.h"

#include "jet/image/row_codec.h"
#include "jet/sql/syntax_error.h"

namespace jet::dao {

namespace {

constexpr char TableName[] = "~recordset";
constexpr char Place[] = "[~place]";

file::Column column(const std::string& name, file::ColumnType type, std::size_t number) {
  file::Column result;
  result.name = name;
  result.type = type;
  result.number = result.position = static_cast<std::uint16_t>(number);
  return result;
}

/// Pages that no file has.
std::uint32_t nextPage() {
  static std::uint32_t last = 0xFFFFFFFF;
  return --last;
}

}  // namespace

RecordSearch::RecordSearch(std::shared_ptr<Session> session, const std::vector<FieldInfo>& fields)
    : session_(std::move(session)) {
  table_.name = TableName;
  table_.page = nextPage();
  for (const auto& field : fields)
    table_.columns.push_back(column(field.name, sql::columnTypeOf(field.type), table_.columns.size()));
  table_.columns.push_back(column("~place", file::ColumnType::Long, table_.columns.size()));
}

RecordSearch::~RecordSearch() {
  last_ = {};
  if (session_->released()) return;
  session_->image().connection().dropIfPossible("DROP VIEW IF EXISTS temp." + image::tableName(table_.page) +
                                                "; DROP TABLE IF EXISTS " + scratch());
}

std::string RecordSearch::scratch() const {
  return "temp.k" + std::to_string(table_.page);
}

void RecordSearch::makeScratch(const std::string& columns) const {
  session_->image().connection().execute("CREATE TABLE " + scratch() + "(" + columns + ")");
}

void RecordSearch::show(const std::vector<std::string>& fields, const std::string& place,
                        const std::string& from) {
  std::string columns;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const auto type = table_.columns[i].type;
    const char* order = file::isText(type)                  ? " COLLATE JET"
                        : type == file::ColumnType::Numeric ? " COLLATE JETDECIMAL"
                                                            : "";
    columns += fields[i] + order + " AS " + image::columnName(table_.columns[i].number) + ", ";
  }
  session_->image().connection().execute("CREATE TEMP VIEW " + image::tableName(table_.page) + " AS SELECT " +
                                         columns + place + " AS " +
                                         image::columnName(table_.columns.back().number) + " FROM " + from);
}

const file::TableDefinition* RecordSearch::findTable(std::string_view name) const {
  return name == TableName ? &table_ : session_->runner().findTable(name);
}

std::optional<std::string> RecordSearch::findQuery(std::string_view name) const {
  return session_->runner().findQuery(name);
}

image::Statement RecordSearch::prepare(const std::string& sql, const Answers& answers) {
  try {
    auto plan = std::get<sql::RowStatement>(sql::compile(sql, *this));
    if (plan.parameters.size() > answers.size())
      throw errorOf(UnknownName, source::Recordset, plan.parameters.back().name);
    std::erase_if(plan.tables, [this](const auto& table) { return table.page == table_.page; });
    return session_->runner().prepare(plan, answers);
  } catch (const sql::SyntaxError& error) {
    throw errorOf(CriteriaSyntax, source::Recordset, error.description());
  }
}

std::optional<std::int64_t> RecordSearch::find(const std::string& criteria, std::int64_t from, bool forward,
                                               const std::function<bool(std::int64_t)>& accept) {
  const std::string sql = std::string("PARAMETERS [~from] LONG; SELECT ") + Place + " FROM [" + TableName +
                          "] WHERE " + Place + (forward ? " > " : " < ") + "[~from] AND (" + criteria +
                          ") ORDER BY " + Place + (forward ? "" : " DESC");
  if (sql != lastSql_ || !last_) {
    last_ = prepare(sql, {runtime::Variant(std::int32_t{0})});
    lastSql_ = sql;
  }
  last_.reset();
  last_.bind(1, from);
  std::optional<std::int64_t> found;
  while (!found && last_.step())
    if (accept(last_.integer(0))) found = last_.integer(0);
  last_.reset();
  return found;
}

std::vector<std::int64_t> RecordSearch::all(const std::string& condition, const std::string& order) {
  auto rows = prepare(std::string("SELECT ") + Place + " FROM [" + TableName + "]" +
                          (condition.empty() ? "" : " WHERE (" + condition + ")") + " ORDER BY " +
                          (order.empty() ? "" : order + ", ") + Place,
                      {});
  std::vector<std::int64_t> places;
  while (rows.step()) places.push_back(rows.integer(0));
  return places;
}

}  // namespace jet::dao
