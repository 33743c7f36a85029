// Definitions printed back as Jet SQL.
#include "jet/sql/tree/print.h"
#include "jet/sql/tree/statement.h"
#include "runtime/join.h"

namespace jet::sql::tree {

namespace {

std::string printNames(const std::vector<std::string>& names) {
  return names.empty() ? "" : " (" + runtime::join(names, ", ", quotedName) + ")";
}

std::string printReferences(const References& references) {
  return "REFERENCES " + quotedName(references.table) + printNames(references.columns) +
         (references.cascadeUpdate ? " ON UPDATE CASCADE" : "") +
         (references.cascadeDelete ? " ON DELETE CASCADE" : "");
}

std::string printConstraint(const Constraint& constraint) {
  const std::string name = constraint.name.empty() ? "" : "CONSTRAINT " + quotedName(constraint.name) + " ";
  switch (constraint.kind) {
    case Constraint::Kind::Primary:
      return name + "PRIMARY KEY" + printNames(constraint.columns);
    case Constraint::Kind::Unique:
      return name + "UNIQUE" + printNames(constraint.columns);
    case Constraint::Kind::Foreign:
      break;
  }
  const std::string key =
      constraint.columns.empty() ? "" : "FOREIGN KEY" + printNames(constraint.columns) + " ";
  return name + key + printReferences(constraint.references);
}

std::string printColumn(const ColumnDefinition& column) {
  std::string text = quotedName(column.name) + " " + print(column.type);
  if (column.defaultValue) text += " DEFAULT (" + print(*column.defaultValue) + ")";
  if (column.notNull) text += " NOT NULL";
  for (const Constraint& constraint : column.constraints) text += " " + printConstraint(constraint);
  return text;
}

std::string printAction(const AddColumn& add) {
  return "ADD COLUMN " + printColumn(add.column);
}
std::string printAction(const AlterColumn& alter) {
  return "ALTER COLUMN " + printColumn(alter.column);
}
std::string printAction(const SetDefault& set) {
  return "ALTER COLUMN " + quotedName(set.name) +
         (set.value ? " SET DEFAULT " + print(*set.value) : " DROP DEFAULT");
}
std::string printAction(const DropColumn& drop) {
  return "DROP COLUMN " + quotedName(drop.name);
}
std::string printAction(const AddConstraint& add) {
  return "ADD " + printConstraint(add.constraint);
}
std::string printAction(const DropConstraint& drop) {
  return "DROP CONSTRAINT " + quotedName(drop.name);
}

}  // namespace

std::string print(const TypeName& type) {
  std::string text = type.name;
  if (type.size) {
    text += "(" + std::to_string(*type.size) + (type.scale ? ", " + std::to_string(*type.scale) : "") + ")";
  }
  return text + (type.compressed ? " WITH COMPRESSION" : "");
}

std::string print(const CreateTable& create) {
  const std::string constraints = runtime::join(create.constraints, ", ", printConstraint);
  return "CREATE TABLE " + quotedName(create.table) + " (" +
         runtime::join(create.columns, ", ", printColumn) + (constraints.empty() ? "" : ", " + constraints) +
         ")";
}

std::string print(const AlterTable& alter) {
  return "ALTER TABLE " + quotedName(alter.table) + " " +
         std::visit([](const auto& action) { return printAction(action); }, alter.action);
}

std::string print(const CreateIndex& create) {
  static constexpr const char* options[] = {"", " WITH PRIMARY", " WITH DISALLOW NULL", " WITH IGNORE NULL"};
  const auto column = [](const IndexColumn& item) {
    return quotedName(item.name) + (item.descending ? " DESC" : "");
  };
  return std::string("CREATE ") + (create.unique ? "UNIQUE " : "") + "INDEX " + quotedName(create.name) +
         " ON " + quotedName(create.table) + " (" + runtime::join(create.columns, ", ", column) + ")" +
         options[static_cast<std::size_t>(create.option)];
}

std::string print(const DropTable& drop) {
  return "DROP TABLE " + quotedName(drop.table);
}
std::string print(const DropIndex& drop) {
  return "DROP INDEX " + quotedName(drop.name) + " ON " + quotedName(drop.table);
}

}  // namespace jet::sql::tree
