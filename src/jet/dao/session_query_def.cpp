#include "jet/dao/session_query_def.h"

#include "jet/dao/session_database.h"

namespace jet::dao {

namespace {

constexpr char Source[] = "DAO.QueryDef";

}  // namespace

void SessionQueryDef::requireOpen() const {
  if (!open_ || session_->closed || session_->released())
    throw runtime::Error(3420, Source, "Oggetto non valido: la query è chiusa");
}

QueryObject SessionQueryDef::object() const {
  requireOpen();
  auto object = findQueryObject(session_->image(), *storedId_);
  if (!object) throw runtime::Error(3420, Source, "Oggetto non valido: la query è stata eliminata");
  return *std::move(object);
}

std::string SessionQueryDef::Name() const {
  return storedId_ ? object().name : std::string();
}

void SessionQueryDef::setName(const std::string& name) {
  requireOpen();
  if (!storedId_)
    throw runtime::Error(3219, Source, "Operazione non valida: una query temporanea non ha nome");
  session_->image().changeObject(*storedId_, name, object().flags);
}

int SessionQueryDef::Type() const {
  requireOpen();
  return static_cast<int>(storedId_ ? object().kind() : sql::takeApart(sql_).kind);
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
  parameters_.reset();
  answers_.clear();
}

const std::vector<sql::Parameter>& SessionQueryDef::parameters() {
  requireOpen();
  const std::string text = SQL();
  if (!parameters_ || parametersOf_ != text) {
    const auto statement = session_->runner().compile(text);
    const auto* rows = std::get_if<sql::RowStatement>(&statement);
    parameters_ = rows ? rows->parameters : std::vector<sql::Parameter>{};
    parametersOf_ = text;
    answers_.assign(parameters_->size(), std::nullopt);
  }
  return *parameters_;
}

void SessionQueryDef::setParameter(std::string_view name, const runtime::Variant& value) {
  const auto& known = parameters();
  for (std::size_t i = 0; i < known.size(); ++i)
    if (file::sameName(known[i].name, name)) {
      answers_[i] = value;
      return;
    }
  throw runtime::Error(3265, "DAO.Parameters", "Elemento inesistente nell'insieme: " + std::string(name));
}

void SessionQueryDef::setParameter(std::size_t index, const runtime::Variant& value) {
  if (index >= parameters().size())
    throw runtime::Error(3265, "DAO.Parameters",
                         "Elemento inesistente nell'insieme: " + std::to_string(index));
  answers_[index] = value;
}

/// Answers hold for the text whose parameters they were given to.
std::string SessionQueryDef::textToRun() {
  requireOpen();
  std::string text = SQL();
  if (text != parametersOf_) answers_.clear();
  return text;
}

RecordsetPtr SessionQueryDef::OpenRecordset(RecordsetType type) {
  const std::string text = textToRun();
  return openRows(session_, text, answers_, type, 0);
}

void SessionQueryDef::Execute(int) {
  const std::string text = textToRun();
  auto& runner = session_->runner();
  affected_ = runner.execute(runner.compile(text), answers_);
}

}  // namespace jet::dao
