#pragma once

#include <optional>
#include <string>
#include <vector>

#include "jet/sql/binder/bound_statement.h"
#include "jet/sql/compile.h"
#include "jet/sql/tree/statement.h"

namespace jet::sql {

/// What the binding of one statement gathers, its sub-queries included.
class Context {
 public:
  explicit Context(const Schema& schema) : schema_(schema) {}

  const Schema& schema() const { return schema_; }

  void declare(const tree::ParameterDeclaration& declaration);
  /// The parameter of this name; a new one of type Variant where none has it.
  bound::Expression parameter(const std::string& name);
  const std::vector<Parameter>& parameters() const { return parameters_; }

  /// A number for a source that reads `table`, or a query where that is nullptr.
  unsigned addSource(const file::TableDefinition* table, const std::string& alias);
  /// Notes that `expression` is compared, grouped or sorted by, if it is a table's column.
  void noteCompared(const bound::Expression& expression);
  void noteChanged(unsigned source, TouchedTable::Change change);
  void noteAssigned(unsigned source, std::uint16_t column);
  const std::vector<TouchedTable>& tables() const { return tables_; }
  void noteAnyTable() { mayReadAnyTable_ = true; }
  bool mayReadAnyTable() const { return mayReadAnyTable_; }

  /// Opens one more stored query within those that are open. Error 3360 where they never end.
  void openStoredQuery(std::size_t position);
  void closeStoredQuery() { --openQueries_; }

  /// Entry of tables() that a source reads; nothing for a query.
  std::optional<std::size_t> tableOf(unsigned source) const { return tableOfSource_[source]; }

  /// Counts a bound node. Error 3360 where a statement grows beyond all measure, as aliases can make it.
  void countNode(std::size_t position);

 private:
  const Schema& schema_;
  std::vector<Parameter> parameters_;
  std::vector<TouchedTable> tables_;
  std::vector<std::optional<std::size_t>> tableOfSource_;
  std::size_t nodes_ = 0;
  unsigned openQueries_ = 0;
  bool mayReadAnyTable_ = false;
};

}  // namespace jet::sql
