#include "jet/dao/session/database_collections.h"

#include "jet/dao/query/session_query_def.h"

namespace jet::dao {

std::size_t DatabaseTables::count() const {
  return session_->image().tables().size();
}

TableDefPtr DatabaseTables::at(std::size_t position) const {
  return std::make_shared<TableDef>(session_, session_->image().tables()[position].page);
}

std::optional<std::size_t> DatabaseTables::find(std::string_view name) const {
  auto& image = session_->image();
  const auto* table = image.find(name);
  if (!table) return std::nullopt;
  return static_cast<std::size_t>(table - image.tables().data());
}

void DatabaseTables::append(const TableDefPtr& table) const {
  table->append();
}

void DatabaseTables::remove(std::size_t position) const {
  const std::string name = session_->image().tables()[position].name;
  session_->image().dropTable(name);
}

std::size_t DatabaseRelations::count() const {
  return session_->image().relations().size();
}

RelationPtr DatabaseRelations::at(std::size_t position) const {
  return Relation::stored(session_->image().relations()[position]);
}

std::vector<RelationPtr> DatabaseRelations::all() const {
  std::vector<RelationPtr> relations;
  for (auto& design : session_->image().relations()) relations.push_back(Relation::stored(std::move(design)));
  return relations;
}

std::optional<std::size_t> DatabaseRelations::find(std::string_view name) const {
  const auto relations = session_->image().relations();
  for (std::size_t i = 0; i < relations.size(); ++i)
    if (file::sameName(relations[i].name, name)) return i;
  return std::nullopt;
}

void DatabaseRelations::append(const RelationPtr& relation) const {
  relation->appendTo(*session_);
}

void DatabaseRelations::remove(std::size_t position) const {
  session_->image().dropRelation(session_->image().relations()[position].name);
}

std::size_t DatabaseQueries::count() const {
  return queryObjects(session_->image()).size();
}

QueryDefPtr DatabaseQueries::at(std::size_t position) const {
  return std::make_shared<SessionQueryDef>(session_, queryObjects(session_->image())[position].id);
}

std::vector<QueryDefPtr> DatabaseQueries::all() const {
  std::vector<QueryDefPtr> queries;
  for (const auto& object : queryObjects(session_->image()))
    queries.push_back(std::make_shared<SessionQueryDef>(session_, object.id));
  return queries;
}

std::optional<std::size_t> DatabaseQueries::find(std::string_view name) const {
  const auto queries = queryObjects(session_->image());
  for (std::size_t i = 0; i < queries.size(); ++i)
    if (file::sameName(queries[i].name, name)) return i;
  return std::nullopt;
}

void DatabaseQueries::remove(std::size_t position) const {
  auto& image = session_->image();
  dropQuery(image, queryObjects(image)[position]);
}

}  // namespace jet::dao
