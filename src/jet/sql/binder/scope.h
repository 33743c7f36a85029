#pragma once

#include <optional>
#include <string>
#include <vector>

#include "jet/sql/binder/bound_statement.h"

namespace jet::sql {

/// A column as a name can find it.
struct VisibleColumn {
  std::string name;
  bound::Expression value;
  std::string sourceTable, sourceColumn;  // of the file; empty for an expression of a query
};

/// A table or query of FROM. The columns of a table are made when they are asked for: most are not.
struct VisibleSource {
  unsigned source = 0;
  std::string name;                              // its alias, or its own name
  const file::TableDefinition* table = nullptr;  // nullptr for a query
  std::vector<VisibleColumn> queryColumns;

  std::optional<VisibleColumn> find(const std::string& columnName) const;
  /// In the order of `*`.
  std::vector<VisibleColumn> columns() const;

 private:
  VisibleColumn columnOf(const file::Column& column) const;
};

/// The names that one SELECT, UPDATE or DELETE sees, and through `outer` those around it.
class Scope {
 public:
  explicit Scope(const Scope* outer) : outer_(outer) {}

  const Scope* outer() const { return outer_; }
  void add(VisibleSource source) { sources_.push_back(std::move(source)); }
  const std::vector<VisibleSource>& sources() const { return sources_; }
  const VisibleSource* find(const std::string& sourceName) const;

  struct Found {
    const VisibleSource* source = nullptr;
    VisibleColumn column;
  };
  /// The column in this scope alone. Error 3079 where several sources have one of the name.
  std::optional<Found> find(const tree::Name& name, std::size_t position) const;

 private:
  const Scope* outer_;
  std::vector<VisibleSource> sources_;
};

}  // namespace jet::sql
