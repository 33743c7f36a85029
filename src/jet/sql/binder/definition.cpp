#include "jet/sql/binder/binder.h"
#include "jet/sql/binder/type_name.h"
#include "jet/sql/syntax_error.h"

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
  if (column.type == ColumnType::Text || column.type == ColumnType::Binary) {
    require(size >= 1 && size <= (column.type == ColumnType::Text ? longestText : longestBinary) &&
            !tree.scale);
    column.size = static_cast<std::uint16_t>(size);
  } else if (column.type == ColumnType::Numeric && tree.size) {
    require(size >= 1 && size <= longestNumber && scale <= size);
    column.precision = static_cast<std::uint8_t>(size);
    column.scale = static_cast<std::uint8_t>(scale);
  }
}

CreateIndex constraintIndex(const std::string& table, const tree::Constraint& constraint,
                            const std::string& column) {
  CreateIndex index;
  index.table = table;
  index.name = constraint.name;
  if (index.name.empty()) index.name = constraint.primary ? "PrimaryKey" : "Index_" + column;
  index.primary = constraint.primary;
  index.unique = true;
  for (const std::string& name : constraint.columns) index.columns.push_back({name, true});
  return index;
}

}  // namespace

Statement bindDefinition(const tree::CreateTable& tree) {
  CreateTable create;
  create.table = tree.table;
  for (const tree::ColumnDefinition& definition : tree.columns) {
    const NamedType* type = findType(definition.type.name);
    if (!type)
      throw SyntaxError(ColumnDefinitionSyntax, definition.type.name, definition.type.place.position);
    NewColumn column;
    column.name = definition.name;
    column.type = type->type;
    column.autoNumber = type->autoNumber;
    column.notNull = definition.notNull;
    setSize(definition.type, column);
    create.columns.push_back(std::move(column));
    for (const tree::Constraint& constraint : definition.constraints) {
      create.indexes.push_back(constraintIndex(tree.table, constraint, definition.name));
      create.indexes.back().columns.push_back({definition.name, true});
    }
  }
  for (const tree::Constraint& constraint : tree.constraints) {
    create.indexes.push_back(constraintIndex(tree.table, constraint, constraint.columns.front()));
  }
  return create;
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
