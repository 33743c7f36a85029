#pragma once

#include <functional>

#include "jet/dao/database.h"
#include "jet/dao/session.h"

namespace jet::dao {

/// The Database over a session. `onClose` is the workspace's part of closing: save now, or keep for the
/// commit.
class SessionDatabase : public Database {
 public:
  SessionDatabase(std::shared_ptr<Session> session, std::function<void(Session&)> onClose)
      : session_(std::move(session)), onClose_(std::move(onClose)) {}

  const std::string& Name() const override { return session_->path(); }
  RecordsetPtr OpenRecordset(const std::string& source, RecordsetType type, int options) override;
  QueryDefPtr CreateQueryDef(const std::string& name, const std::string& sql) override;
  void Execute(const std::string& sql, int options) override;
  std::int64_t RecordsAffected() const override { return affected_; }
  std::vector<std::string> tableNames() const override;
  TableDefPtr TableDefs(std::string_view name) override;
  std::vector<Relation> Relations() const override;
  std::vector<std::string> queryNames() const override;
  QueryDefPtr QueryDefs(std::string_view name) override;
  void deleteQueryDef(std::string_view name) override;
  void Close() override;

 private:
  void requireOpen() const;

  std::shared_ptr<Session> session_;
  std::function<void(Session&)> onClose_;
  std::int64_t affected_ = 0;
};

/// Opens the rows of a compiled SELECT in the way `type` asks for. Error 3065 for another statement.
RecordsetPtr openRows(const std::shared_ptr<Session>& session, const std::string& sql, const Answers& answers,
                      RecordsetType type, int options);

}  // namespace jet::dao
