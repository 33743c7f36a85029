#include "jet/dao/query/session_query_def.h"

#include "jet/dao/recordset/open_rows.h"
#include "jet/dao/values.h"
#include "jet/file/errors.h"

namespace jet::dao {

namespace {

/// QueryDef.Parameters
class QueryParameters : public CollectionSource<Parameter> {
 public:
  explicit QueryParameters(std::shared_ptr<SessionQueryDef> query) : query_(std::move(query)) {}
  const char* title() const override { return "DAO.Parameters"; }
  std::size_t count() const override { return query_->parameterCount(); }
  Parameter at(std::size_t position) const override { return Parameter(query_, position); }
  std::optional<std::size_t> find(std::string_view name) const override {
    for (std::size_t i = 0; i < count(); ++i)
      if (file::sameName(query_->parameterName(i), name)) return i;
    return std::nullopt;
  }

 private:
  std::shared_ptr<SessionQueryDef> query_;
};

}  // namespace

void SessionQueryDef::requireOpen() const {
  if (!open_ || session_->closed || session_->released())
    throw errorOf(ObjectInvalid, source::QueryDef, "la query è chiusa");
}

QueryObject SessionQueryDef::object() const {
  requireOpen();
  auto object = findQueryObject(session_->image(), *storedId_);
  if (!object) throw errorOf(ObjectInvalid, source::QueryDef, "la query è stata eliminata");
  return *std::move(object);
}

std::string SessionQueryDef::Name() const {
  return storedId_ ? object().name : std::string();
}

void SessionQueryDef::setName(const std::string& name) {
  requireOpen();
  if (!storedId_) throw errorOf(InvalidOperation, source::QueryDef, "una query temporanea non ha nome");
  session_->image().changeObject(*storedId_, name, object().flags);
}

int SessionQueryDef::Type() const {
  requireOpen();
  return static_cast<int>(storedId_ ? object().kind() : sql::decodeQuery(sql_).kind);
}

runtime::Variant SessionQueryDef::DateCreated() const {
  return storedId_ ? runtime::Variant(object().created) : runtime::Variant(runtime::Null{});
}

runtime::Variant SessionQueryDef::LastUpdated() const {
  return storedId_ ? runtime::Variant(object().updated) : runtime::Variant(runtime::Null{});
}

std::string SessionQueryDef::SQL() const {
  return storedId_ ? queryText(session_->image(), object()) : sql_;
}

void SessionQueryDef::setSQL(const std::string& sql) {
  requireOpen();
  if (storedId_)
    rewriteQuery(session_->image(), object(), sql);
  else
    sql_ = sql;
  compiled_.reset();
  answers_.clear();
}

const std::vector<sql::Parameter>& SessionQueryDef::Compiled::parameters() const {
  static const std::vector<sql::Parameter> none;
  if (const auto* into = std::get_if<sql::SelectInto>(&statement)) return into->rows.parameters;
  const auto* rows = std::get_if<sql::RowStatement>(&statement);
  return rows ? rows->parameters : none;
}

SessionQueryDef::Compiled& SessionQueryDef::compiled() {
  requireOpen();
  if (auto* known = compiled_.get(session_->image().generation())) return *known;
  auto text = SQL();
  // Answers hold for the text whose parameters they were given to.
  if (!compiled_.last() || compiled_.last()->text != text) answers_.clear();
  compiled_.reset();
  auto statement = session_->runner().compile(text);
  auto& compiled = compiled_.set(session_->image().generation(), {std::move(text), std::move(statement), {}});
  answers_.resize(compiled.parameters().size());
  return compiled;
}

const sql::Parameter& SessionQueryDef::parameter(std::size_t index) {
  const auto& known = compiled().parameters();
  if (index >= known.size()) throw errorOf(ObjectInvalid, source::Parameter, "la query ha un altro testo");
  return known[index];
}

int SessionQueryDef::parameterType(std::size_t index) {
  const auto type = parameter(index).type;
  return type == sql::Type::Variant ? static_cast<int>(dbText) : dataType(type);
}

runtime::Variant SessionQueryDef::parameterValue(std::size_t index) {
  parameter(index);
  return answers_[index].value_or(runtime::Variant());
}

void SessionQueryDef::setParameterValue(std::size_t index, const runtime::Variant& value) {
  parameter(index);
  answers_[index] = value;
}

ParameterCollection SessionQueryDef::Parameters() {
  requireOpen();
  return ParameterCollection(std::make_shared<QueryParameters>(shared_from_this()));
}

RecordsetPtr SessionQueryDef::OpenRecordset(RecordsetType type, int options) {
  const auto& query = compiled();
  return openRows(session_, storedId_ ? Name() : query.text, query.text, answers_, type, options);
}

void SessionQueryDef::Execute(int options) {
  auto& query = compiled();
  const bool failOnError = options & dbFailOnError;
  auto& runner = session_->runner();
  auto* rows = std::get_if<sql::RowStatement>(&query.statement);
  if (!rows || rows->columnsFromRows) {
    affected_ = runner.execute(runner.compile(query.text, {false, answers_}), answers_, failOnError);
    return;
  }
  if (!query.changes) {
    query.changes.emplace(session_->image(), StatementRunner::change(*rows));
    // Making the tables ready is no change of the design.
    compiled_.renew(session_->image().generation());
  }
  affected_ = query.changes->run(answers_, failOnError);
}

void SessionQueryDef::Close() {
  compiled_.reset();
  open_ = false;
}

}  // namespace jet::dao
