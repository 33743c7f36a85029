#pragma once

#include "jet/dao/query_def.h"
#include "jet/dao/session.h"
#include "jet/dao/stored_queries.h"

namespace jet::dao {

/// A QueryDef over a session, temporary or stored; compiled when first used.
class SessionQueryDef : public QueryDef {
 public:
  SessionQueryDef(std::shared_ptr<Session> session, std::string sql)
      : session_(std::move(session)), sql_(std::move(sql)) {}
  SessionQueryDef(std::shared_ptr<Session> session, std::uint32_t storedId)
      : session_(std::move(session)), storedId_(storedId) {}

  std::string Name() const override;
  void setName(const std::string& name) override;
  int Type() const override;
  runtime::Variant DateCreated() const override;
  runtime::Variant LastUpdated() const override;
  std::string SQL() const override;
  void setSQL(const std::string& sql) override;
  void setParameter(std::string_view name, const runtime::Variant& value) override;
  void setParameter(std::size_t index, const runtime::Variant& value) override;
  RecordsetPtr OpenRecordset(RecordsetType type) override;
  void Execute(int options) override;
  std::int64_t RecordsAffected() const override { return affected_; }
  void Close() override { open_ = false; }

 private:
  void requireOpen() const;
  /// Error 3420 if the query was deleted.
  QueryObject object() const;
  const std::vector<sql::Parameter>& parameters();
  std::string textToRun();

  std::shared_ptr<Session> session_;
  std::string sql_;  // of a temporary query
  std::optional<std::uint32_t> storedId_;
  std::optional<std::vector<sql::Parameter>> parameters_;
  std::string parametersOf_;  // the text that has them
  Answers answers_;
  std::int64_t affected_ = 0;
  bool open_ = true;
};

}  // namespace jet::dao
