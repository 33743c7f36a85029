#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "jet/sql/binder/bound_statement.h"
#include "jet/sql/compile.h"

namespace jet::sql {

/// How strongly the outermost operator of a piece of SQLite SQL binds, the weakest first.
enum class Strength { Or, And, Not, Equality, Relation, Sum, Product, Join, Collation, Sign, Whole };

/// A piece of SQLite SQL. It reads the same in parentheses; SQLite's parser has little room for nesting, so
/// that they are written only where they must be.
struct Sql {
  std::string text;
  Strength strength = Strength::Whole;
};

/// The text, in parentheses if it binds more weakly than `least`.
std::string within(Sql sql, Strength least);

/// SQLite SQL of a bound tree. Source n is called a<n>. The functions of a noun stand in the file of its
/// name, as in Parser and Binder.
class Translator {
 public:
  /// `withRowKeys`: the rowids of the tables of FROM behind the columns, where rows stand for rows of tables.
  std::string query(const bound::Query& query, bool withRowKeys);
  /// How many rowids query() has put behind the columns.
  std::size_t rowKeys() const { return rowKeys_; }

  /// A statement that changes rows, in one step (empty where that can't be) and in two.
  struct Change {
    std::string sql;
    RowStatement::Steps steps;
  };
  Change update(const bound::Update& update);
  Change deletion(const bound::Delete& deletion);
  Change insert(const bound::Insert& insert);
  /// A condition about the row NEW of a trigger.
  std::string rule(const bound::Expression& rule);

 private:
  /// FROM, and its tables; none where a query stands among them.
  struct From {
    std::string text;
    std::vector<unsigned> tables;
  };
  struct Shape {
    bool named = false;    // columns are called x1, x2, ...
    bool ordered = false;  // rows come in the engine's order even where none is asked for
    bool withRowKeys = false;
  };

  // expression.cpp
  Sql value(const bound::Expression& expression);
  Sql condition(const bound::Expression& expression);
  /// The value with the order of its type: what stands on the left of a comparison, in GROUP BY and ORDER BY.
  Sql ordered(const bound::Expression& expression);
  /// The value; error 6 where it is no Long.
  Sql asLong(const bound::Expression& expression);
  std::string list(const std::vector<bound::Expression>& expressions);

  Sql translate(const bound::Literal& node, Type type);
  Sql translate(const bound::Column& node, Type type);
  Sql translate(const bound::Parameter& node, Type type);
  Sql translate(const bound::Conversion& node, Type type);
  Sql translate(const bound::Store& node, Type type);
  Sql translate(const bound::Negation& node, Type type);
  Sql translate(const bound::Arithmetic& node, Type type);
  Sql translate(const bound::Concatenation& node, Type type);
  Sql translate(const bound::Comparison& node, Type type);
  Sql translate(const bound::Logic& node, Type type);
  Sql translate(const bound::Not& node, Type type);
  Sql translate(const bound::Like& node, Type type);
  Sql translate(const bound::Between& node, Type type);
  Sql translate(const bound::InList& node, Type type);
  Sql translate(const bound::InQuery& node, Type type);
  Sql translate(const bound::AnyOf& node, Type type);
  Sql translate(const bound::IsNull& node, Type type);
  Sql translate(const bound::Call& node, Type type);
  Sql translate(const bound::Choice& node, Type type);
  Sql translate(const bound::NullReplacement& node, Type type);
  Sql translate(const bound::Aggregate& node, Type type);
  Sql translate(const bound::Exists& node, Type type);
  Sql translate(const bound::Subquery& node, Type type);

  Sql unchecked(const bound::Expression& expression);
  Sql unchecked(const bound::Arithmetic& node, Type type);

  // query.cpp, select.cpp
  std::string query(const bound::Query& query, Shape shape);
  std::string single(const bound::Query& query, Shape shape);
  std::string ranked(const bound::Query& query, Shape shape);
  std::string select(const bound::Select& select, const From& from, Shape shape,
                     const std::string& moreColumns);
  std::string orderBy(const bound::Query& query, const From& from, bool ordered);
  std::string orderKey(const bound::OrderKey& key, const std::vector<bound::Item>& items);

  // source.cpp
  From from(const std::vector<bound::Source>& sources);
  From source(const bound::Source& source, bool enclosed);
  /// The rowid of a table of FROM.
  std::string rowid(unsigned source) const;
  std::string where(const std::optional<bound::Expression>& condition);

  // update.cpp, insert.cpp
  std::string assignments(const bound::Target& target);
  void applyUpdate(const bound::Target& target, std::size_t key, Change& change);
  /// INSERT ... SELECT without FROM.
  std::string insertInto(std::uint32_t page, const std::vector<bound::Assignment>& assignments,
                         const std::vector<bound::Assignment>& defaults);

  /// While an expression is translated for a row that is applied on its own: a column of the row that it
  /// changes is read from its table, as it is by then; every other column, and a sub-query, was spooled.
  struct Spool {
    std::optional<unsigned> target;
    std::uint32_t page = 0;
    std::vector<std::string> columns;  // in SQL; v1, v2, ... of temp.jet_rows
    bool readsTarget = false;
  };
  // spool.cpp
  std::string spooled(const bound::Column& column);
  /// A sub-query, which is evaluated when the rows are spooled.
  Sql spooled(const std::function<Sql()>& subquery);
  static std::string spooledAs(Spool& spool, std::string text);
  /// The keys of targets as k1, k2, ... and what else was spooled, for the list of a SELECT.
  std::string spooledList(const std::vector<unsigned>& targets, const Spool& spool) const;

  std::size_t rowKeys_ = 0;
  /// Tables of FROM that stand in parentheses, by source number.
  std::vector<bool> enclosed_;
  Spool* spool_ = nullptr;
  bool newRow_ = false;  // columns are read from NEW
  /// Rowid that tells the order of the rows of the SELECT being translated, or "0".
  std::string firstKey_ = "0";
};

/// True for a column of the image and for a literal, whose values are within their type. What is computed
/// from Longs can lie beyond.
bool isStored(const bound::Expression& expression);

/// The column under the name that it has in the image, c<number>, or in the query, x<number>.
std::string columnName(const bound::Column& column);

/// `-` before a condition: -1 or 0, as the image keeps a Boolean.
Sql booleanValue(Sql condition);

/// SQL with the order in which values of `type` are compared.
Sql withCollation(Sql sql, Type type);

}  // namespace jet::sql
