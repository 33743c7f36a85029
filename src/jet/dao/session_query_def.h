#pragma once

#include "jet/dao/query_def.h"
#include "jet/dao/session.h"

namespace jet::dao {

/// A QueryDef over a session; compiled when first used.
class SessionQueryDef : public QueryDef {
 public:
  SessionQueryDef(std::shared_ptr<Session> session, std::string sql)
      : session_(std::move(session)), sql_(std::move(sql)) {}

  std::string SQL() const override { return sql_; }
  void setSQL(const std::string& sql) override;
  void setParameter(std::string_view name, const runtime::Variant& value) override;
  void setParameter(std::size_t index, const runtime::Variant& value) override;
  RecordsetPtr OpenRecordset(RecordsetType type) override;
  void Execute(int options) override;
  std::int64_t RecordsAffected() const override { return affected_; }
  void Close() override { open_ = false; }

 private:
  void requireOpen() const;
  const std::vector<sql::Parameter>& parameters();

  std::shared_ptr<Session> session_;
  std::string sql_;
  std::optional<std::vector<sql::Parameter>> parameters_;
  Answers answers_;
  std::int64_t affected_ = 0;
  bool open_ = true;
};

/// Keeps `sql` in the database under `name`. Error 3012 if the name is taken, 3075 and kin for syntax.
void storeQuery(Session& session, const std::string& name, const std::string& sql);

}  // namespace jet::dao
