// FROM of a query's text as rows of sources and joins.
#include "jet/sql/stored/from_rows.h"

#include <algorithm>

#include "jet/file/definition.h"
#include "jet/sql/parser/cursor.h"
#include "jet/sql/stored/row_values.h"

namespace jet::sql::stored {

std::optional<OtherDatabase> otherDatabase(const StatementText& text, Span clause) {
  const std::size_t in = text.find(clause, [&](std::size_t i) {
    return text.isWord(i, "IN") && text.at(i + 1).kind == Token::Kind::Text;
  });
  if (in == clause.end) return std::nullopt;
  OtherDatabase other{text.at(in + 1).text, "", in};
  if (in + 2 < clause.end && !text.at(in + 2).isSymbol("(")) other.type = text.at(in + 2).text;
  return other;
}

void FromRows::add(Span clause) {
  if (const auto other = otherDatabase(text_, clause)) {
    QueryRow& row = rows_.add(QueryRow::OtherDatabase);
    if (!other->path.empty()) row.name1 = other->path;
    if (!other->type.empty()) row.expression = other->type;
    clause.end = other->begin;
  }
  at_ = clause.begin;
  end_ = clause.end;
  while (at_ < end_) {
    source();
    ++at_;  // the comma
  }
}

FromRows::Names FromRows::source() {
  Names left = single();
  while (const std::int16_t kind = joinAt(at_)) {
    at_ += text_.isWord(at_ + 1, "OUTER") ? 3 : 2;
    const Names right = single();
    ++at_;  // ON
    const Span rest{at_, end_};
    at_ = text_.find(rest, [&](std::size_t i) {
      return text_.at(i).isSymbol(",") || text_.at(i).isSymbol(")") || joinAt(i) != 0;
    });
    addJoin(kind, left, right, {rest.begin, at_});
    left.insert(left.end(), right.begin(), right.end());
  }
  return left;
}

std::int16_t FromRows::joinAt(std::size_t index) const {
  if (!text_.isWord(index + 1, "JOIN") && !text_.isWord(index + 1, "OUTER")) return 0;
  if (text_.isWord(index, "INNER")) return InnerJoin;
  if (text_.isWord(index, "LEFT")) return LeftJoin;
  return text_.isWord(index, "RIGHT") ? RightJoin : std::int16_t{0};
}

FromRows::Names FromRows::single() {
  if (!text_.at(at_).isSymbol("(")) return table();
  if (text_.isWord(at_ + 1, "SELECT") || text_.isWord(at_ + 1, "TABLE")) return subquery();
  ++at_;
  Names names = source();
  ++at_;  // the closing parenthesis
  return names;
}

FromRows::Names FromRows::table() {
  // An older way to write a query in FROM: [SELECT ...]. AS name
  if (text_.at(at_).kind == Token::Kind::QuotedName && text_.at(at_ + 1).isSymbol(".")) {
    at_ += 2;
    return query(text_.at(at_ - 2).text);
  }
  QueryRow& row = rows_.add(QueryRow::Source);
  row.name1 = text_.at(at_++).text;
  const std::string name = alias();
  if (name.empty()) return {*row.name1};
  row.name2 = name;
  return {name};
}

FromRows::Names FromRows::subquery() {
  const Span parenthesised{at_, text_.closing(at_, end_) + 1};
  at_ = parenthesised.end;
  return query(text_.text(inside(parenthesised)));
}

FromRows::Names FromRows::query(std::string text) {
  QueryRow& row = rows_.add(QueryRow::Source, std::move(text));
  std::string name = alias();
  if (name.empty()) {
    name = UnnamedSubquery;
    if (unnamed_++ > 0) name += std::to_string(unnamed_);
  }
  row.name2 = name;
  return {name};
}

std::string FromRows::alias() {
  if (at_ >= end_) return {};
  if (text_.at(at_).isWord("AS")) ++at_;  // behind the dot of an older query as well
  const Token& token = text_.at(at_);
  const bool isName =
      token.kind == Token::Kind::QuotedName || (token.kind == Token::Kind::Word && !isReserved(token));
  if (!isName) return {};
  ++at_;
  return token.text;
}

/// The engine keeps each comparison of two tables as a row of its own, the last one first; a condition that
/// is no list of such comparisons is one row.
void FromRows::addJoin(std::int16_t kind, const Names& left, const Names& right, Span condition) {
  const auto addRow = [&](Span part) {
    const auto* leftName = named(part, left);
    const auto* rightName = named(part, right);
    QueryRow& row = rows_.add(QueryRow::Join, text_.text(part));
    row.name1 = leftName ? *leftName : left.back();
    row.name2 = rightName ? *rightName : right.front();
    row.flag = kind;
  };
  auto parts = conjuncts(condition);
  const bool comparisons =
      std::ranges::all_of(parts, [&](Span part) { return named(part, left) && named(part, right); });
  if (parts.size() < 2 || !comparisons) return addRow(condition);
  std::ranges::reverse(parts);
  for (Span part : parts) {
    if (text_.isParenthesised(part)) part = inside(part);
    addRow(part);
  }
}

/// The parts that AND joins; the AND of BETWEEN joins none.
std::vector<Span> FromRows::conjuncts(Span condition) const {
  static constexpr std::string_view weaker[] = {"OR", "XOR", "EQV", "IMP"};
  while (text_.isParenthesised(condition)) condition = inside(condition);
  for (const std::string_view word : weaker)
    if (text_.findWord(condition, word) != condition.end) return {condition};
  std::vector<Span> parts;
  unsigned between = 0;
  while (!condition.empty()) {
    const std::size_t end = text_.find(condition, [&](std::size_t i) {
      if (text_.isWord(i, "BETWEEN")) ++between;
      return text_.isWord(i, "AND") && (between == 0 || between-- == 0);
    });
    parts.push_back({condition.begin, end});
    condition.begin = end + 1;
  }
  return parts;
}

const std::string* FromRows::named(Span condition, const Names& names) const {
  for (std::size_t i = condition.begin; i + 1 < condition.end; ++i) {
    if (!text_.at(i + 1).isSymbol(".") && !text_.at(i + 1).isSymbol("!")) continue;
    for (const auto& name : names)
      if (file::sameName(name, text_.at(i).text)) return &name;
  }
  return nullptr;
}

}  // namespace jet::sql::stored
