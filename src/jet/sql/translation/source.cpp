// FROM in SQLite's SQL.
#include "jet/sql/translation/translator.h"

namespace jet::sql {

namespace {

using bound::JoinKind;

bool isJoin(const bound::Source& source) {
  return std::holds_alternative<bound::Join>(source.node);
}

}  // namespace

/// SQLite can't name the rowid of a table that stands in the parentheses of a join; there it is the column k.
std::string Translator::rowid(unsigned source) const {
  const bool enclosed = source < enclosed_.size() && enclosed_[source];
  return "a" + std::to_string(source) + (enclosed ? ".k" : ".rowid");
}

Translator::From Translator::from(const std::vector<bound::Source>& sources) {
  From result;
  bool named = true;
  for (const bound::Source& item : sources) {
    From part = source(item, false);
    result.text += (result.text.empty() ? "" : ", ") + part.text;
    named &= !part.tables.empty();
    result.tables.insert(result.tables.end(), part.tables.begin(), part.tables.end());
  }
  if (!named) result.tables.clear();
  return result;
}

/// A RIGHT JOIN is written as the LEFT JOIN that it is from the other side.
Translator::From Translator::source(const bound::Source& source, bool enclosed) {
  if (const auto* table = std::get_if<bound::TableSource>(&source.node)) {
    const std::string name = "t" + std::to_string(table->page),
                      alias = " AS a" + std::to_string(table->source);
    if (!enclosed) return {name + alias, {table->source}};
    if (enclosed_.size() <= table->source) enclosed_.resize(table->source + 1);
    enclosed_[table->source] = true;
    return {"(SELECT rowid AS k, * FROM " + name + ")" + alias, {table->source}};
  }
  if (const auto* inner = std::get_if<bound::QuerySource>(&source.node)) {
    return {"(" + query(*inner->query, Shape{true}) + ") AS a" + std::to_string(inner->source), {}};
  }
  const auto& join = std::get<bound::Join>(source.node);
  const bool mirrored = join.kind == JoinKind::Right;
  const bound::Source &first = mirrored ? *join.right : *join.left,
                      &second = mirrored ? *join.left : *join.right;
  From left = this->source(first, enclosed);
  From right = this->source(second, enclosed || isJoin(second));
  left.text += (join.kind == JoinKind::Inner ? " INNER JOIN " : " LEFT JOIN ") +
               (isJoin(second) ? "(" + right.text + ")" : right.text) + " ON " +
               condition(join.condition).text;
  const bool named = !left.tables.empty() && !right.tables.empty();
  left.tables.insert(mirrored ? left.tables.begin() : left.tables.end(), right.tables.begin(),
                     right.tables.end());
  if (!named) left.tables.clear();
  return left;
}

std::string Translator::where(const std::optional<bound::Expression>& tree) {
  return tree ? " WHERE " + condition(*tree).text : "";
}

}  // namespace jet::sql
