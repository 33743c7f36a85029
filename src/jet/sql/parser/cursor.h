#pragma once

#include <string_view>
#include <vector>

#include "jet/sql/parser/token.h"
#include "jet/sql/syntax_error.h"
#include "jet/sql/tree/expression.h"

namespace jet::sql {

/// A place in the tokens of a statement. What is expected and not found is an error of the given number.
class Cursor {
 public:
  explicit Cursor(std::vector<Token> tokens) : tokens_(std::move(tokens)) {}

  const Token& peek(std::size_t ahead = 0) const;
  Token take();
  tree::Place place() const { return {peek().position, 1}; }

  bool atWord(std::string_view word) const { return peek().isWord(word); }
  bool atSymbol(std::string_view symbol) const { return peek().isSymbol(symbol); }
  bool acceptWord(std::string_view word);
  bool acceptSymbol(std::string_view symbol);
  void expectWord(std::string_view word, ErrorNumber error);
  void expectSymbol(std::string_view symbol, ErrorNumber error);
  /// A name in any writing; a bare reserved word counts, since only a name can stand here.
  std::string expectName(ErrorNumber error);
  /// A whole number.
  unsigned expectCount(ErrorNumber error);
  /// A name behind AS, or without AS one that is no reserved word; empty if there is none.
  std::string acceptAlias(bool requireAs, ErrorNumber error);

  /// Names the token at the cursor.
  [[noreturn]] void fail(ErrorNumber error) const;

 private:
  std::vector<Token> tokens_;
  std::size_t index_ = 0;
};

/// Words that end an expression or a table name, so that bare they are neither operand nor alias.
bool isReserved(const Token& token);

}  // namespace jet::sql
