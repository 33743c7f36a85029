#pragma once

#include "jet/sql/binder/context.h"
#include "jet/sql/binder/conversion.h"
#include "jet/sql/binder/scope.h"

namespace jet::sql {

/// Binds one SELECT, UPDATE, DELETE or INSERT: names against the schema and the names around it, types by the
/// rules of conversion.h. The functions of a noun stand in the file of its name, as in Parser.
class Binder {
 public:
  /// `outer` is the scope around a sub-query, or nullptr.
  Binder(Context& context, const Scope* outer) : context_(context), scope_(outer) {}

  bound::Update update(const tree::Update& update);
  bound::Delete deletion(const tree::Delete& deletion);
  bound::Insert insert(const tree::Insert& insert);

  // default_value.cpp
  /// What a new row gets in the columns that are not among `assigned`. `position`: of the table's name in the
  /// statement. Error 3387 for an expression that names something.
  std::vector<bound::Assignment> defaults(const file::TableDefinition& table,
                                          const std::vector<bound::Assignment>& assigned,
                                          std::size_t position);
  std::optional<bound::Expression> defaultValue(const file::TableDefinition& table,
                                                const file::Column& column, std::size_t position);

  // rule.cpp
  /// A condition about one row of `table`, which is source number 0. Error 3387 for what is no column of it
  /// nor a value.
  bound::Expression rule(const tree::Expression& rule, const file::TableDefinition& table);

  // select.cpp
  bound::Select select(const tree::Select& select);
  /// The keys of the query whose only part this binder has bound as `select`.
  std::vector<bound::OrderKey> orderBy(const std::vector<tree::OrderItem>& items,
                                       const bound::Select& select);

 private:
  // select.cpp
  void items(const tree::Select& select, bound::Select& result);
  void star(const tree::Star& star, std::size_t position, bound::Select& result);
  void item(const tree::SelectItem& item, bound::Select& result);
  void nameItems(const tree::Select& select, bound::Select& result);
  void groupBy(const tree::Select& select, bound::Select& result);
  std::vector<unsigned> distinctRows() const;
  bound::OrderKey orderKey(const tree::OrderItem& item, const bound::Select& select);

  // source.cpp
  std::vector<bound::Source> from(const std::vector<tree::Source>& sources);
  bound::Source declare(const tree::Source& source);
  bound::Source declareTable(const tree::TableSource& table, std::size_t position);
  std::vector<bound::Source> changedFrom(const std::vector<tree::Source>& sources);
  std::optional<bound::Expression> changedRows(const std::optional<tree::Expression>& where);
  bound::Source declareAs(const std::string& name, const file::TableDefinition& table);
  bound::Source declareSelection(const tree::Select& selection, const std::string& name);
  bound::Source declareQuery(bound::Query query, const std::string& name);
  void bindConditions(const tree::Source& source, bound::Source& result);
  bound::Source storedQuery(const std::string& text, const tree::TableSource& table, std::size_t position);

  // name.cpp
  bound::Expression parameter(const std::string& name, std::size_t position);

  // expression.cpp
  bound::Expression expression(const tree::Expression& expression);
  /// As a condition: any number may stand for a Boolean.
  bound::Expression condition(const tree::Expression& expression);
  std::optional<bound::Expression> clause(const std::optional<tree::Expression>& condition);
  bound::Expression converted(const tree::Expression& expression, Type type);

  using Place = tree::Place;
  bound::Expression bind(const tree::Literal& node, const Place& place);
  bound::Expression bind(const tree::Name& node, const Place& place);
  bound::Expression bind(const tree::Negation& node, const Place& place);
  bound::Expression bind(const tree::Arithmetic& node, const Place& place);
  bound::Expression bind(const tree::Concatenation& node, const Place& place);
  bound::Expression bind(const tree::Comparison& node, const Place& place);
  bound::Expression bind(const tree::Logic& node, const Place& place);
  bound::Expression bind(const tree::Not& node, const Place& place);
  bound::Expression bind(const tree::Like& node, const Place& place);
  bound::Expression bind(const tree::Between& node, const Place& place);
  bound::Expression bind(const tree::InList& node, const Place& place);
  bound::Expression bind(const tree::InQuery& node, const Place& place);
  bound::Expression bind(const tree::QuantifiedComparison& node, const Place& place);
  bound::Expression bind(const tree::IsNull& node, const Place& place);
  bound::Expression bind(const tree::Call& node, const Place& place);
  bound::Expression bind(const tree::Exists& node, const Place& place);
  bound::Expression bind(const tree::Subquery& node, const Place& place);

  // subquery.cpp
  bound::InQuery valueAndQuery(const tree::Expression& value, const tree::Query& query, const Place& place);
  // call.cpp
  std::optional<bound::Expression> specialCall(const tree::Call& call, const Place& place);
  bound::Expression nullReplacement(const std::vector<tree::Expression>& arguments);
  bound::Expression choiceChain(const std::vector<tree::Expression>& arguments);
  bound::Expression chosenValue(const std::vector<tree::Expression>& arguments);
  std::optional<bound::Expression> aggregate(const tree::Call& call, const Place& place);
  // domain.cpp
  std::optional<bound::Expression> domain(const tree::Call& call, const Place& place);
  void expectCriteria(const bound::Select& select, const std::string& pieces);
  // comparison.cpp
  Type comparedTypeOf(Type a, Type b, const Place& place) const;
  void noteCompared(const bound::Expression& expression);
  // name.cpp
  std::optional<bound::Expression> column(const tree::Name& name, const Place& place);
  std::optional<bound::Expression> alias(const tree::Name& name);

  /// A column read outside aggregates; an error if the rows turn out to be grouped and it is no part of a
  /// key.
  struct UngroupedColumn {
    std::string name;
    std::size_t position;
    unsigned source;
  };
  struct Alias {
    std::string name;
    const tree::Expression* value;
    bool open = false;  // being bound, so that it does not find itself
  };

  Context& context_;
  Scope scope_;
  std::vector<bound::Expression> groupKeys_;
  std::vector<UngroupedColumn> ungrouped_;
  std::vector<Alias> aliases_;
  bool aggregatesAllowed_ = false;
  bool aggregateSeen_ = false;
  bool inCondition_ = false;
  /// The one source of FROM is changed: a query that only selects rows stands for its table.
  bool throughQuery_ = false;
  std::optional<bound::Expression> selected_;  // the condition of that query
};

/// Binds a query with all its parts; `outer` is the scope around a sub-query, or nullptr.
bound::Query bindQuery(Context& context, const Scope* outer, const tree::Query& query);

/// The statement of a body that defines, alters or drops.
Statement bindDefinition(const tree::CreateTable& create);
Statement bindDefinition(const tree::AlterTable& alter);
Statement bindDefinition(const tree::CreateIndex& create);
Statement bindDefinition(const tree::DropTable& drop);
Statement bindDefinition(const tree::DropIndex& drop);

}  // namespace jet::sql
