#pragma once

#include "jet/dao/query/stored_queries.h"
#include "jet/dao/query_def.h"
#include "jet/dao/session/session.h"

namespace jet::dao {

/// A QueryDef over a session, temporary or stored; compiled when first used.
class SessionQueryDef : public QueryDef,
                        public ParameterOwner,
                        public std::enable_shared_from_this<SessionQueryDef> {
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
  ParameterCollection Parameters() override;
  using QueryDef::Parameters;
  RecordsetPtr OpenRecordset(RecordsetType type, int options) override;
  void Execute(int options) override;
  std::int64_t RecordsAffected() const override { return affected_; }
  void Close() override;

  std::string parameterName(std::size_t index) override { return parameter(index).name; }
  int parameterType(std::size_t index) override;
  runtime::Variant parameterValue(std::size_t index) override;
  void setParameterValue(std::size_t index, const runtime::Variant& value) override;
  std::size_t parameterCount() { return compiled().parameters().size(); }

 private:
  void requireOpen() const;
  /// Error 3420 if the query was deleted.
  QueryObject object() const;
  /// The query as it was compiled for the design that the image has now.
  struct Compiled {
    std::string text;
    sql::Statement statement;
    std::optional<RowChanges> changes;  // once it was executed
    const std::vector<sql::Parameter>& parameters() const;
  };
  Compiled& compiled();
  const sql::Parameter& parameter(std::size_t index);

  std::shared_ptr<Session> session_;
  std::string sql_;  // of a temporary query
  std::optional<std::uint32_t> storedId_;
  image::Prepared<Compiled> compiled_;
  Answers answers_;
  std::int64_t affected_ = 0;
  bool open_ = true;
};

}  // namespace jet::dao
