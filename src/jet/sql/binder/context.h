#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "jet/sql/binder/bound_statement.h"
#include "jet/sql/compile.h"
#include "jet/sql/syntax_error.h"
#include "jet/sql/tree/statement.h"

namespace jet::sql {

/// What the binding of one statement gathers, its sub-queries included.
class Context {
 public:
  /// SQLite SQL of a query that is to be run while the statement is still being bound.
  using Translate = std::string (*)(const bound::Query& query);

  Context(const Schema& schema, Translate translate, Answers answers = {})
      : schema_(schema), translate_(translate), answers_(std::move(answers)) {}
  /// For an expression that stands by itself: nothing of this statement is known in it.
  Context apart() const { return {schema_, translate_}; }

  const Schema& schema() const { return schema_; }

  void declare(const tree::ParameterDeclaration& declaration);
  /// The parameter of this name; a new one of type Variant where none has it.
  bound::Expression parameter(const std::string& name);
  /// Those that are to be answered.
  std::vector<Parameter> parameters() const { return arguments_ ? std::vector<Parameter>() : parameters_; }

  /// From now on the parameters have the values that EXECUTE gives them, by their position.
  void setArguments(const std::vector<tree::Expression>& arguments) { arguments_ = &arguments; }
  /// Error 3061 unless there were as many values as parameters.
  void checkArguments(std::size_t position) const;
  /// The value of a parameter, or nullptr.
  const tree::Expression* argument(std::size_t parameter) const;

  /// A number for a source that reads `table`, or a query where that is nullptr.
  unsigned addSource(const file::TableDefinition* table, const std::string& alias);
  /// Notes that `expression` is compared, grouped or sorted by, if it is a table's column.
  void noteCompared(const bound::Expression& expression);
  void noteChanged(unsigned source, TouchedTable::Change change);
  void noteAssigned(unsigned source, std::uint16_t column);
  const std::vector<TouchedTable>& tables() const { return tables_; }
  void noteAnyTable() { mayReadAnyTable_ = true; }
  bool mayReadAnyTable() const { return mayReadAnyTable_; }

  /// Works on the text of a stored query, within those that are open. An error in it is told where the
  /// statement names the query. Error 3360 where they never end.
  template <class Work>
  auto withinQuery(const std::string& name, std::size_t position, Work work) {
    openStoredQuery(position);
    try {
      auto result = work();
      --openQueries_;
      return result;
    } catch (const SyntaxError& error) {
      if (error.number() == TooComplex) throw;
      throw SyntaxError(error.number(), name + ": " + error.description(), position);
    }
  }

  /// The rows, now, of the one column of `list`, which is bound where it will stand: its parameters are the
  /// statement's. Nothing while they are not answered. Error 3070 for one that is not declared.
  std::optional<std::vector<runtime::Variant>> values(const tree::Query& list);
  bool columnsFromRows() const { return columnsFromRows_; }

  /// Entry of tables() that a source reads; nothing for a query.
  std::optional<std::size_t> tableOf(unsigned source) const { return tableOfSource_[source]; }

  /// Counts a bound node. Error 3360 where a statement grows beyond all measure, as aliases can make it.
  void countNode(std::size_t position);

 private:
  using Values = std::optional<std::vector<runtime::Variant>>;
  void openStoredQuery(std::size_t position);
  Values readValues(const tree::Query& list) const;

  const Schema& schema_;
  Translate translate_;
  Answers answers_;
  // By the text of the list; for all contexts of the statement, since crosstabs may stand on crosstabs.
  std::shared_ptr<std::map<std::string, Values>> values_ = std::make_shared<std::map<std::string, Values>>();
  std::vector<Parameter> parameters_;
  const std::vector<tree::Expression>* arguments_ = nullptr;
  std::vector<TouchedTable> tables_;
  std::vector<std::optional<std::size_t>> tableOfSource_;
  std::size_t nodes_ = 0;
  unsigned openQueries_ = 0;
  bool mayReadAnyTable_ = false, columnsFromRows_ = false;
};

}  // namespace jet::sql
