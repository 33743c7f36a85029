#pragma once

#include <functional>

#include "jet/dao/database.h"
#include "jet/dao/session/session.h"

namespace jet::dao {

/// The Database over a session. `onClose` is the workspace's part of closing: save now, or keep for the
/// commit.
class SessionDatabase : public Database {
 public:
  SessionDatabase(std::shared_ptr<Session> session, std::function<void(Session&)> onClose)
      : session_(std::move(session)), onClose_(std::move(onClose)) {}

  const std::string& Name() const override { return session_->path(); }
  RecordsetPtr OpenRecordset(const std::string& source, RecordsetType type, int options) override;
  void Execute(const std::string& sql, int options) override;
  std::int64_t RecordsAffected() const override { return affected_; }

  TableDefCollection TableDefs() override;
  RelationCollection Relations() override;
  QueryDefCollection QueryDefs() override;
  TableDefPtr CreateTableDef(const std::string& name) override;
  RelationPtr CreateRelation(const std::string& name, const std::string& table,
                             const std::string& foreignTable, int attributes) override;
  QueryDefPtr CreateQueryDef(const std::string& name, const std::string& sql) override;
  Property CreateProperty(const std::string& name, int type, const runtime::Variant& value) override;
  void Close() override;

 private:
  void requireOpen() const;

  std::shared_ptr<Session> session_;
  std::function<void(Session&)> onClose_;
  std::int64_t affected_ = 0;
};

}  // namespace jet::dao
