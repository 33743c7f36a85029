// Sub-queries in SQLite's SQL.
#include "jet/sql/translation/translator.h"

namespace jet::sql {

namespace {

/// True if the query can't give a second row.
bool givesOneRow(const bound::Query& query) {
  const bound::Select& part = query.parts.front();
  if (query.parts.size() > 1) return false;
  const bool first = part.top && part.top->count == 1 && !part.top->percent && query.orderBy.empty();
  return first || part.from.empty() || (part.grouped && part.groupBy.empty());
}

}  // namespace

Sql Translator::translate(const bound::InQuery& node, Type) {
  return spooled([&]() -> Sql {
    return {within(ordered(*node.value), Strength::Sum) + (node.negated ? " NOT IN (" : " IN (") +
                query(*node.query, Shape{}) + ")",
            Strength::Equality};
  });
}

/// True if it holds for one row, Null if it is Null for one.
Sql Translator::translate(const bound::AnyOf& node, Type) {
  const char *whenTrue = node.negated ? "0" : "1", *whenFalse = node.negated ? "1" : "0";
  return spooled([&]() -> Sql {
    return {std::string("(SELECT CASE WHEN max(c) THEN ") + whenTrue +
            " WHEN count(*) > count(c) THEN NULL ELSE " + whenFalse + " END FROM (SELECT " +
            within(ordered(*node.value), Strength::Sum) + " " + symbol(node.op) + " x1 AS c FROM (" +
            query(*node.query, Shape{true}) + ")))"};
  });
}

Sql Translator::translate(const bound::Exists& node, Type) {
  return spooled([&]() -> Sql { return {"EXISTS (" + query(*node.query, Shape{}) + ")"}; });
}

Sql Translator::translate(const bound::Subquery& node, Type) {
  return spooled([&]() -> Sql {
    if (givesOneRow(*node.query)) return {"(" + query(*node.query, Shape{}) + ")"};
    return {"(SELECT jet_single(count(*), max(x1)) FROM (" + query(*node.query, Shape{true}) + "))"};
  });
}

}  // namespace jet::sql
