#include "jet/dao/query_defs.h"

#include <algorithm>

#include "jet/dao/session_query_def.h"
#include "jet/dao/stored_queries.h"
#include "jet/sql/parser/token.h"

namespace jet::dao {

namespace {

QueryObject requiredQuery(Session& session, std::string_view name) {
  auto object = findQueryObject(session.image(), name);
  if (!object)
    throw runtime::Error(3265, "DAO.QueryDefs", "Elemento inesistente nell'insieme: " + std::string(name));
  return *std::move(object);
}

bool isStatement(std::string_view text) {
  static constexpr std::string_view words[] = {"SELECT", "TRANSFORM",  "INSERT", "UPDATE", "DELETE",
                                               "CREATE", "PARAMETERS", "ALTER",  "DROP"};
  constexpr std::string_view blanks = " \t\r\n";
  text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
  const std::size_t end = text.find_first_of(blanks);
  if (end == std::string_view::npos) return false;
  return std::ranges::any_of(words, [&](auto word) { return sql::sameWord(text.substr(0, end), word); });
}

}  // namespace

QueryDefPtr queryDef(const std::shared_ptr<Session>& session, std::string_view name) {
  return std::make_shared<SessionQueryDef>(session, requiredQuery(*session, name).id);
}

QueryDefPtr createQueryDef(const std::shared_ptr<Session>& session, const std::string& name,
                           const std::string& sql) {
  if (name.empty()) return std::make_shared<SessionQueryDef>(session, sql);
  return std::make_shared<SessionQueryDef>(session, createQuery(session->image(), name, sql));
}

void deleteQueryDef(Session& session, std::string_view name) {
  dropQuery(session.image(), requiredQuery(session, name));
}

std::vector<std::string> queryDefNames(Session& session) {
  std::vector<std::string> names;
  for (auto& object : queryObjects(session.image())) names.push_back(std::move(object.name));
  return names;
}

std::string statementFor(Session& session, const std::string& source) {
  if (isStatement(source)) return source;
  const auto object = findQueryObject(session.image(), source);
  return object ? queryText(session.image(), *object) : source;
}

}  // namespace jet::dao
