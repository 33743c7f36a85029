#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "jet/sql/parser/token.h"

namespace jet::sql::stored {

/// Tokens from `begin` up to, not including, `end`.
struct Span {
  std::size_t begin = 0, end = 0;
  bool empty() const { return begin >= end; }
};

/// What stands between a pair of parentheses.
inline Span inside(Span parenthesised) {
  return {parenthesised.begin + 1, parenthesised.end - 1};
}

/// A statement with its tokens: finds words outside of parentheses, and gives the text of a span as it was
/// written. An index behind the last token stands for the end of the statement.
class StatementText {
 public:
  /// Error 3075 for what are no tokens.
  explicit StatementText(std::string_view text);

  /// All tokens, a closing semicolon left out.
  Span whole() const { return whole_; }
  const Token& at(std::size_t index) const;
  /// True for the bare word `upper`; a name behind a dot is no word.
  bool isWord(std::size_t index, std::string_view upper) const;

  /// As written, without the blanks behind it.
  std::string text(Span span) const;
  /// The characters of its tokens, without brackets and blanks: a name with its dots.
  std::string names(Span span) const;

  /// The first token of `span`, outside of parentheses that open in it, that `wanted` accepts; else span.end.
  template <class Wanted>
  std::size_t find(Span span, Wanted wanted) const {
    int depth = 0;
    for (std::size_t i = span.begin; i < span.end; ++i) {
      if (depth == 0 && wanted(i)) return i;
      if (at(i).isSymbol("(")) ++depth;
      if (at(i).isSymbol(")")) --depth;
    }
    return span.end;
  }
  std::size_t findWord(Span span, std::string_view upper) const;
  std::size_t findSymbol(Span span, std::string_view symbol) const;
  /// The parenthesis that closes the one at `open`; `end` if there is none.
  std::size_t closing(std::size_t open, std::size_t end) const;
  /// Divides a list at its commas.
  std::vector<Span> list(Span span) const;
  /// True if one pair of parentheses encloses the whole span.
  bool isParenthesised(Span span) const;

 private:
  std::string_view text_;
  std::vector<Token> tokens_;
  std::vector<std::size_t> offsets_;  // of each token, in bytes
  Span whole_;
};

}  // namespace jet::sql::stored
