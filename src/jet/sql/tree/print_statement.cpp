#include "jet/sql/tree/print.h"
#include "jet/sql/tree/statement.h"

namespace jet::sql::tree {

namespace {

template <class Items, class Print>
std::string printAll(const Items& items, Print printItem) {
  std::string list;
  for (const auto& item : items) list += (list.empty() ? "" : ", ") + printItem(item);
  return list;
}

std::string printNames(const std::vector<std::string>& names) {
  return printAll(names, quotedName);
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
  return printAll(from, printSource);
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

std::string printSelect(const Select& select) {
  std::string text = "SELECT ";
  if (select.distinct) text += "DISTINCT ";
  if (select.distinctRow) text += "DISTINCTROW ";
  if (select.top)
    text += "TOP " + std::to_string(select.top->count) + (select.top->percent ? " PERCENT " : " ");
  text += printAll(select.items, printItem);
  if (!select.from.empty()) text += " FROM " + printFrom(select.from);
  text += printClause(" WHERE ", select.where);
  if (!select.groupBy.empty()) {
    text += " GROUP BY " + printAll(select.groupBy, [](const Expression& key) { return print(key); });
  }
  return text + printClause(" HAVING ", select.having);
}

std::string printType(const TypeName& type) {
  if (!type.size) return type.name;
  const std::string scale = type.scale ? ", " + std::to_string(*type.scale) : "";
  return type.name + "(" + std::to_string(*type.size) + scale + ")";
}

std::string printConstraint(const Constraint& constraint) {
  return (constraint.name.empty() ? "" : "CONSTRAINT " + quotedName(constraint.name) + " ") +
         (constraint.primary ? "PRIMARY KEY" : "UNIQUE") +
         (constraint.columns.empty() ? "" : " (" + printNames(constraint.columns) + ")");
}

std::string printColumn(const ColumnDefinition& column) {
  std::string text =
      quotedName(column.name) + " " + printType(column.type) + (column.notNull ? " NOT NULL" : "");
  for (const Constraint& constraint : column.constraints) text += " " + printConstraint(constraint);
  return text;
}

std::string printBody(const Query& query) {
  return print(query);
}

std::string printBody(const Update& update) {
  const auto assignment = [](const Assignment& item) {
    const std::string table = item.column.table.empty() ? "" : quotedName(item.column.table) + ".";
    return table + quotedName(item.column.column) + " = " + print(item.value);
  };
  return "UPDATE " + printFrom(update.from) + " SET " + printAll(update.assignments, assignment) +
         printClause(" WHERE ", update.where);
}

std::string printBody(const Delete& statement) {
  return "DELETE " + (statement.target ? printStar(*statement.target) + " " : "") + "FROM " +
         printFrom(statement.from) + printClause(" WHERE ", statement.where);
}

std::string printBody(const Insert& insert) {
  const auto name = [](const PlacedName& column) { return quotedName(column.text); };
  const std::string columns = insert.columns.empty() ? "" : " (" + printAll(insert.columns, name) + ")";
  const std::string head = "INSERT INTO " + quotedName(insert.table.text) + columns + " ";
  if (const Query* query = std::get_if<Query>(&insert.rows)) return head + print(*query);
  const auto value = [](const Expression& expression) { return print(expression); };
  return head + "VALUES (" + printAll(std::get<std::vector<Expression>>(insert.rows), value) + ")";
}

std::string printBody(const CreateTable& create) {
  const std::string constraints = printAll(create.constraints, printConstraint);
  return "CREATE TABLE " + quotedName(create.table) + " (" + printAll(create.columns, printColumn) +
         (constraints.empty() ? "" : ", " + constraints) + ")";
}

std::string printBody(const CreateIndex& create) {
  static constexpr const char* options[] = {"", " WITH PRIMARY", " WITH DISALLOW NULL", " WITH IGNORE NULL"};
  const auto column = [](const IndexColumn& item) {
    return quotedName(item.name) + (item.descending ? " DESC" : "");
  };
  return std::string("CREATE ") + (create.unique ? "UNIQUE " : "") + "INDEX " + quotedName(create.name) +
         " ON " + quotedName(create.table) + " (" + printAll(create.columns, column) + ")" +
         options[static_cast<std::size_t>(create.option)];
}

std::string printBody(const DropTable& drop) {
  return "DROP TABLE " + quotedName(drop.table);
}
std::string printBody(const DropIndex& drop) {
  return "DROP INDEX " + quotedName(drop.name) + " ON " + quotedName(drop.table);
}

}  // namespace

std::string print(const Query& query) {
  std::string text;
  for (std::size_t i = 0; i < query.parts.size(); ++i) {
    if (i > 0) text += query.all[i - 1] ? " UNION ALL " : " UNION ";
    text += printSelect(query.parts[i]);
  }
  const auto order = [](const OrderItem& item) {
    return print(item.value) + (item.descending ? " DESC" : "");
  };
  return text + (query.orderBy.empty() ? "" : " ORDER BY " + printAll(query.orderBy, order));
}

std::string print(const Statement& statement) {
  const auto parameter = [](const ParameterDeclaration& declaration) {
    return quotedName(declaration.name) + " " + printType(declaration.type);
  };
  const std::string head =
      statement.parameters.empty() ? "" : "PARAMETERS " + printAll(statement.parameters, parameter) + "; ";
  return head + std::visit([](const auto& body) { return printBody(body); }, statement.body) + ";";
}

}  // namespace jet::sql::tree
