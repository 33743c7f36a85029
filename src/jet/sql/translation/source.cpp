#include <algorithm>

#include "jet/sql/translation/translator.h"

namespace jet::sql {

namespace {

using bound::JoinKind;

bool isJoin(const bound::Source& source) {
  return std::holds_alternative<bound::Join>(source.node);
}

/// `left JOIN (right)` is written `right JOIN left`: SQLite can't name the rowids of tables in parentheses.
bool isMirrored(const bound::Join& join) {
  return isJoin(*join.right) && !isJoin(*join.left);
}

JoinKind writtenKind(const bound::Join& join) {
  if (!isMirrored(join) || join.kind == JoinKind::Inner) return join.kind;
  return join.kind == JoinKind::Left ? JoinKind::Right : JoinKind::Left;
}

/// A RIGHT JOIN keeps to its own tables only if nothing stands before them.
bool hasRightJoin(const bound::Source& source) {
  const auto* join = std::get_if<bound::Join>(&source.node);
  return join &&
         (writtenKind(*join) == JoinKind::Right || hasRightJoin(*join->left) || hasRightJoin(*join->right));
}

}  // namespace

std::string rowid(unsigned source) {
  return "a" + std::to_string(source) + ".rowid";
}

Translator::From Translator::from(const std::vector<bound::Source>& sources) {
  std::vector<const bound::Source*> order;
  for (const bound::Source& item : sources) order.push_back(&item);
  std::stable_partition(order.begin(), order.end(),
                        [](const bound::Source* item) { return hasRightJoin(*item); });
  From result;
  bool named = true;
  for (const bound::Source* item : order) {
    From part = source(*item);
    const bool enclosed = !result.text.empty() && hasRightJoin(*item);
    result.text += (result.text.empty() ? "" : ", ") + (enclosed ? "(" + part.text + ")" : part.text);
    named &= !enclosed && !part.tables.empty();
    result.tables.insert(result.tables.end(), part.tables.begin(), part.tables.end());
  }
  if (!named) result.tables.clear();
  std::ranges::sort(result.tables);
  return result;
}

Translator::From Translator::source(const bound::Source& source) {
  if (const auto* table = std::get_if<bound::TableSource>(&source.node)) {
    return {"t" + std::to_string(table->page) + " AS a" + std::to_string(table->source), {table->source}};
  }
  if (const auto* inner = std::get_if<bound::QuerySource>(&source.node)) {
    return {"(" + query(*inner->query, Shape{true}) + ") AS a" + std::to_string(inner->source), {}};
  }
  static constexpr const char* words[] = {" INNER JOIN ", " LEFT JOIN ", " RIGHT JOIN "};
  const auto& join = std::get<bound::Join>(source.node);
  const bool mirrored = isMirrored(join);
  From left = this->source(mirrored ? *join.right : *join.left);
  From right = this->source(mirrored ? *join.left : *join.right);
  const bool enclosed = isJoin(mirrored ? *join.left : *join.right);
  const bool named = !left.tables.empty() && !right.tables.empty() && !enclosed;
  left.text += words[static_cast<std::size_t>(writtenKind(join))] +
               (enclosed ? "(" + right.text + ")" : right.text) + " ON " + condition(join.condition).text;
  left.tables.insert(left.tables.end(), right.tables.begin(), right.tables.end());
  if (!named) left.tables.clear();
  return left;
}

std::string Translator::where(const std::optional<bound::Expression>& tree) {
  return tree ? " WHERE " + condition(*tree).text : "";
}

}  // namespace jet::sql
