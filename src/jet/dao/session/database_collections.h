#pragma once

#include <memory>

#include "jet/dao/query_def.h"
#include "jet/dao/relation.h"
#include "jet/dao/session/session.h"
#include "jet/dao/table_def.h"
#include "jet/file/errors.h"

/// The collections of a Database.
namespace jet::dao {

class DatabaseTables : public CollectionSource<TableDefPtr> {
 public:
  explicit DatabaseTables(std::shared_ptr<Session> session) : session_(std::move(session)) {}
  const char* title() const override { return source::TableDefs; }
  std::size_t count() const override;
  TableDefPtr at(std::size_t position) const override;
  std::optional<std::size_t> find(std::string_view name) const override;
  void append(const TableDefPtr& table) const override;
  void remove(std::size_t position) const override;

 private:
  std::shared_ptr<Session> session_;
};

class DatabaseRelations : public CollectionSource<RelationPtr> {
 public:
  explicit DatabaseRelations(std::shared_ptr<Session> session) : session_(std::move(session)) {}
  const char* title() const override { return source::Relations; }
  std::size_t count() const override;
  RelationPtr at(std::size_t position) const override;
  std::vector<RelationPtr> all() const override;
  std::optional<std::size_t> find(std::string_view name) const override;
  void append(const RelationPtr& relation) const override;
  void remove(std::size_t position) const override;

 private:
  std::shared_ptr<Session> session_;
};

/// Append is not for queries: CreateQueryDef stores those that have a name.
class DatabaseQueries : public CollectionSource<QueryDefPtr> {
 public:
  explicit DatabaseQueries(std::shared_ptr<Session> session) : session_(std::move(session)) {}
  const char* title() const override { return "DAO.QueryDefs"; }
  std::size_t count() const override;
  QueryDefPtr at(std::size_t position) const override;
  std::vector<QueryDefPtr> all() const override;
  std::optional<std::size_t> find(std::string_view name) const override;
  void remove(std::size_t position) const override;

 private:
  std::shared_ptr<Session> session_;
};

}  // namespace jet::dao
