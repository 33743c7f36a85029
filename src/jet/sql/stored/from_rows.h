#pragma once

#include <string>
#include <vector>

#include "jet/sql/stored/rows.h"
#include "jet/sql/stored/statement_text.h"

namespace jet::sql::stored {

/// A database beside the open one: the text and the type behind IN.
struct OtherDatabase {
  std::string path, type;
  std::size_t begin = 0;  // index of IN
};
/// `IN 'path' [type]` in a clause; nothing where there is none.
std::optional<OtherDatabase> otherDatabase(const StatementText& text, Span clause);

/// Decodes the sources of FROM: a row for each table or sub-query in order of appearance, a row for each
/// condition between two of them, inner joins before the outer ones.
class FromRows {
 public:
  FromRows(const StatementText& text, Rows& rows) : text_(text), rows_(rows) {}

  void add(Span clause);

 private:
  using Names = std::vector<std::string>;  // of the sources of a join, as the statement calls them

  Names source();
  Names single();
  Names table();
  Names subquery();
  /// The text of a query was read; its alias follows.
  Names query(std::string text);
  std::string alias();
  std::int16_t joinAt(std::size_t index) const;
  void addJoin(std::int16_t kind, const Names& left, const Names& right, Span condition);
  std::vector<Span> conjuncts(Span condition) const;
  const std::string* named(Span condition, const Names& names) const;

  const StatementText& text_;
  Rows& rows_;
  std::size_t at_ = 0, end_ = 0;
  unsigned unnamed_ = 0;
};

}  // namespace jet::sql::stored
