// Statements and queries printed back as Jet SQL.
#include "jet/sql/tree/print.h"
#include "jet/sql/tree/statement.h"
#include "runtime/join.h"
#include "runtime/text.h"

namespace jet::sql::tree {

namespace {

std::string printExpression(const Expression& expression) {
  return print(expression);
}

std::string printAlias(const std::string& alias) {
  return alias.empty() ? "" : " AS " + quotedName(alias);
}

std::string printSource(const Source& source);

std::string printNode(const TableSource& table) {
  return quotedName(table.name) + printAlias(table.alias);
}
std::string printNode(const QuerySource& source) {
  return "(" + print(*source.query) + ")" + printAlias(source.alias);
}

std::string printNode(const Join& join) {
  static constexpr const char* words[] = {" INNER JOIN ", " LEFT JOIN ", " RIGHT JOIN "};
  const auto side = [](const Source& source) {
    const bool nested = std::holds_alternative<Join>(source.node);
    return nested ? "(" + printSource(source) + ")" : printSource(source);
  };
  return side(*join.left) + words[static_cast<std::size_t>(join.kind)] + side(*join.right) + " ON (" +
         print(join.condition) + ")";
}

std::string printSource(const Source& source) {
  return std::visit([](const auto& node) { return printNode(node); }, source.node);
}

std::string printFrom(const std::vector<Source>& from) {
  return runtime::join(from, ", ", printSource);
}

std::string printClause(const char* word, const std::optional<Expression>& condition) {
  return condition ? std::string(word) + print(*condition) : "";
}

std::string printStar(const Star& star) {
  return star.table.empty() ? "*" : quotedName(star.table) + ".*";
}

std::string printItem(const SelectItem& item) {
  if (const Star* star = std::get_if<Star>(&item.value)) return printStar(*star);
  return print(std::get<Expression>(item.value)) + printAlias(item.alias);
}

/// `into`: what stands between the list and FROM.
std::string printSelect(const Select& select, const std::string& into) {
  std::string text = "SELECT ";
  if (select.distinct) text += "DISTINCT ";
  if (select.distinctRow) text += "DISTINCTROW ";
  if (select.top)
    text += "TOP " + std::to_string(select.top->count) + (select.top->percent ? " PERCENT " : " ");
  text += runtime::join(select.items, ", ", printItem) + into;
  if (!select.from.empty()) text += " FROM " + printFrom(select.from);
  if (!select.in.empty()) text += " IN " + runtime::quoted(select.in);
  text += printClause(" WHERE ", select.where);
  if (!select.groupBy.empty()) {
    text += " GROUP BY " + runtime::join(select.groupBy, ", ", printExpression);
  }
  return text + printClause(" HAVING ", select.having);
}

std::string printQuery(const Query& query, const std::string& into) {
  std::string text;
  for (std::size_t i = 0; i < query.parts.size(); ++i) {
    if (i > 0) text += query.all[i - 1] ? " UNION ALL " : " UNION ";
    text += printSelect(query.parts[i], i == 0 ? into : "");
  }
  const auto order = [](const OrderItem& item) {
    return print(item.value) + (item.descending ? " DESC" : "");
  };
  return text + (query.orderBy.empty() ? "" : " ORDER BY " + runtime::join(query.orderBy, ", ", order));
}

std::string printBody(const Query& query) {
  return print(query);
}

std::string printBody(const Update& update) {
  const auto assignment = [](const Assignment& item) {
    const std::string table = item.column.table.empty() ? "" : quotedName(item.column.table) + ".";
    return table + quotedName(item.column.column) + " = " + print(item.value);
  };
  return "UPDATE " + printFrom(update.from) + " SET " + runtime::join(update.assignments, ", ", assignment) +
         printClause(" WHERE ", update.where);
}

std::string printBody(const Delete& statement) {
  return "DELETE " + (statement.target ? printStar(*statement.target) + " " : "") + "FROM " +
         printFrom(statement.from) + printClause(" WHERE ", statement.where);
}

std::string printBody(const Insert& insert) {
  const auto name = [](const PlacedName& column) { return quotedName(column.text); };
  const std::string columns =
      insert.columns.empty() ? "" : " (" + runtime::join(insert.columns, ", ", name) + ")";
  const std::string in = insert.in.empty() ? "" : " IN " + runtime::quoted(insert.in);
  const std::string head = "INSERT INTO " + quotedName(insert.table.text) + columns + in + " ";
  if (const Query* query = std::get_if<Query>(&insert.rows)) return head + print(*query);
  return head + "VALUES (" +
         runtime::join(std::get<std::vector<Expression>>(insert.rows), ", ", printExpression) + ")";
}

std::string printBody(const SelectInto& statement) {
  const std::string in = statement.in.empty() ? "" : " IN " + runtime::quoted(statement.in);
  return printQuery(statement.query, " INTO " + quotedName(statement.table.text) + in);
}

std::string printBody(const Transform& transform) {
  return "TRANSFORM " + print(transform.value) + " " + print(transform.query) + " PIVOT " +
         print(transform.pivot) +
         (transform.columns.empty()
              ? ""
              : " IN (" + runtime::join(transform.columns, ", ", printExpression) + ")");
}

std::string printBody(const Execute& execute) {
  return "EXECUTE " + quotedName(execute.query.text) +
         (execute.arguments.empty() ? "" : " " + runtime::join(execute.arguments, ", ", printExpression));
}

template <class Definition>
std::string printBody(const Definition& definition) {
  return print(definition);
}

}  // namespace

std::string print(const Query& query) {
  return printQuery(query, "");
}

std::string print(const Statement& statement) {
  const auto parameter = [](const ParameterDeclaration& declaration) {
    return quotedName(declaration.name) + " " + print(declaration.type);
  };
  const std::string head = statement.parameters.empty()
                               ? ""
                               : "PARAMETERS " + runtime::join(statement.parameters, ", ", parameter) + "; ";
  return head + std::visit([](const auto& body) { return printBody(body); }, statement.body) +
         (statement.ownerAccess ? " WITH OWNERACCESS OPTION;" : ";");
}

}  // namespace jet::sql::tree
