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

const std::vector<sql::Parameter>& SessionQueryDef::parameters() {
  requireOpen();
  if (!parameters_) {
    const auto statement = session_->runner().compile(sql_);
    const auto* rows = std::get_if<sql::RowStatement>(&statement);
    parameters_ = rows ? rows->parameters : std::vector<sql::Parameter>{};
    answers_.assign(parameters_->size(), std::nullopt);
  }
  return *parameters_;
}

void SessionQueryDef::setSQL(const std::string& sql) {
  requireOpen();
  sql_ = sql;
  parameters_.reset();
  answers_.clear();
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

RecordsetPtr SessionQueryDef::OpenRecordset(RecordsetType type) {
  requireOpen();
  return openRows(session_, sql_, answers_, type, 0);
}

void SessionQueryDef::Execute(int) {
  requireOpen();
  auto& runner = session_->runner();
  affected_ = runner.execute(runner.compile(sql_), answers_);
}

}  // namespace jet::dao
