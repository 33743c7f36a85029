// CREATE, ALTER and DROP as the plain structs that compile.h offers.
#include "jet/sql/binder/binder.h"
#include "jet/sql/binder/type_name.h"
#include "jet/sql/syntax_error.h"
#include "jet/sql/tree/print.h"

namespace jet::sql {

namespace {

using file::ColumnType;

/// Sizes that a type may be told, and the one it has untold.
void setSize(const tree::TypeName& tree, NewColumn& column) {
  constexpr unsigned longestText = 255, longestBinary = 510, longestNumber = 28;
  const unsigned size = tree.size.value_or(longestText), scale = tree.scale.value_or(0);
  const auto require = [&](bool holds) {
    if (!holds) throw SyntaxError(ColumnDefinitionSyntax, column.name, tree.place.position);
  };
  if (column.autoNumber) {
    // The engine counts by one.
    require(!tree.scale || scale == 1);
    column.seed = static_cast<std::int32_t>(tree.size.value_or(1));
  } else if (column.type == ColumnType::Text || column.type == ColumnType::Binary) {
    require(size >= 1 && size <= (column.type == ColumnType::Text ? longestText : longestBinary) &&
            !tree.scale);
    column.size = static_cast<std::uint16_t>(size);
  } else if (column.type == ColumnType::Numeric && tree.size) {
    require(size >= 1 && size <= longestNumber && scale <= size);
    column.precision = static_cast<std::uint8_t>(size);
    column.scale = static_cast<std::uint8_t>(scale);
  }
}

NewColumn newColumn(const tree::ColumnDefinition& definition) {
  const NamedType* type = findType(definition.type.name);
  const std::size_t position = definition.type.place.position;
  if (!type) throw SyntaxError(ColumnDefinitionSyntax, definition.type.name, position);
  NewColumn column;
  column.name = definition.name;
  column.type = type->type;
  column.autoNumber = type->autoNumber;
  column.notNull = definition.notNull;
  if (definition.defaultValue) column.defaultValue = tree::print(*definition.defaultValue);
  setSize(definition.type, column);
  return column;
}

/// `column`: where the constraint is of one.
std::vector<std::string> keyColumns(const tree::Constraint& constraint, const std::string& column) {
  return column.empty() ? constraint.columns : std::vector{column};
}

CreateIndex newIndex(const std::string& table, const tree::Constraint& constraint,
                     const std::string& column) {
  CreateIndex index;
  index.table = table;
  index.name = constraint.name;
  index.primary = constraint.kind == tree::Constraint::Kind::Primary;
  index.unique = true;
  for (const std::string& name : keyColumns(constraint, column)) index.columns.push_back({name, true});
  if (index.name.empty()) index.name = index.primary ? "PrimaryKey" : "Index_" + index.columns.front().column;
  return index;
}

CreateRelation newRelation(const std::string& table, const tree::Constraint& constraint,
                           const std::string& column) {
  const tree::References& references = constraint.references;
  CreateRelation relation;
  relation.table = table;
  relation.parent = references.table;
  relation.name = constraint.name.empty() ? references.table + table : constraint.name;
  relation.columns = keyColumns(constraint, column);
  relation.parentColumns = references.columns;
  relation.cascadeUpdate = references.cascadeUpdate;
  relation.cascadeDelete = references.cascadeDelete;
  return relation;
}

/// What constraints make besides columns: CreateTable and AddColumn hold it alike.
template <class Definition>
void addConstraints(Definition& definition, const std::vector<tree::Constraint>& constraints,
                    const std::string& column) {
  for (const tree::Constraint& constraint : constraints) {
    if (constraint.kind == tree::Constraint::Kind::Foreign) {
      definition.relations.push_back(newRelation(definition.table, constraint, column));
    } else {
      definition.indexes.push_back(newIndex(definition.table, constraint, column));
    }
  }
}

Statement alteration(const std::string& table, const tree::AddColumn& tree) {
  AddColumn add{table, newColumn(tree.column), {}, {}};
  addConstraints(add, tree.column.constraints, tree.column.name);
  return add;
}

Statement alteration(const std::string& table, const tree::AlterColumn& tree) {
  if (!tree.column.constraints.empty()) {
    throw SyntaxError(AlterTableSyntax, tree.column.name, tree.column.type.place.position);
  }
  return AlterColumn{table, newColumn(tree.column)};
}

Statement alteration(const std::string& table, const tree::SetDefault& tree) {
  return SetDefault{table, tree.name, tree.value ? tree::print(*tree.value) : ""};
}

Statement alteration(const std::string& table, const tree::DropColumn& tree) {
  return DropColumn{table, tree.name};
}

Statement alteration(const std::string& table, const tree::AddConstraint& tree) {
  if (tree.constraint.kind == tree::Constraint::Kind::Foreign) return newRelation(table, tree.constraint, "");
  return newIndex(table, tree.constraint, "");
}

Statement alteration(const std::string& table, const tree::DropConstraint& tree) {
  return DropConstraint{table, tree.name};
}

}  // namespace

Statement bindDefinition(const tree::CreateTable& tree) {
  CreateTable create;
  create.table = tree.table;
  for (const tree::ColumnDefinition& definition : tree.columns) {
    create.columns.push_back(newColumn(definition));
    addConstraints(create, definition.constraints, definition.name);
  }
  addConstraints(create, tree.constraints, "");
  return create;
}

Statement bindDefinition(const tree::AlterTable& tree) {
  return std::visit([&](const auto& action) { return alteration(tree.table, action); }, tree.action);
}

Statement bindDefinition(const tree::CreateIndex& tree) {
  using Option = tree::CreateIndex::Option;
  CreateIndex create;
  create.table = tree.table;
  create.name = tree.name;
  create.primary = tree.option == Option::Primary;
  create.unique = tree.unique || create.primary;
  create.disallowNull = tree.option == Option::DisallowNull || create.primary;
  create.ignoreNull = tree.option == Option::IgnoreNull;
  for (const tree::IndexColumn& column : tree.columns)
    create.columns.push_back({column.name, !column.descending});
  return create;
}

Statement bindDefinition(const tree::DropTable& tree) {
  return DropTable{tree.table};
}
Statement bindDefinition(const tree::DropIndex& tree) {
  return DropIndex{tree.table, tree.name};
}

}  // namespace jet::sql
