// Tokens taken one after the other, and what is wrong with the next.
#include "jet/sql/parser/cursor.h"

#include <algorithm>
#include <charconv>

namespace jet::sql {

bool isReserved(const Token& token) {
  static constexpr std::string_view words[] = {
      "SELECT", "FROM", "WHERE", "GROUP", "ORDER", "HAVING", "BY",    "AND",     "OR",
      "XOR",    "EQV",  "IMP",   "NOT",   "MOD",   "IN",     "LIKE",  "BETWEEN", "IS",
      "ON",     "AS",   "INNER", "LEFT",  "RIGHT", "JOIN",   "UNION", "INTO"};
  return token.kind == Token::Kind::Word &&
         std::ranges::any_of(words, [&](std::string_view word) { return token.isWord(word); });
}

const Token& Cursor::peek(std::size_t ahead) const {
  return tokens_[std::min(index_ + ahead, tokens_.size() - 1)];
}

Token Cursor::take() {
  Token token = peek();
  if (index_ + 1 < tokens_.size()) ++index_;
  return token;
}

bool Cursor::acceptWord(std::string_view word) {
  if (!atWord(word)) return false;
  take();
  return true;
}

bool Cursor::acceptSymbol(std::string_view symbol) {
  if (!atSymbol(symbol)) return false;
  take();
  return true;
}

void Cursor::expectWord(std::string_view word, ErrorNumber error) {
  if (!acceptWord(word)) fail(error);
}

void Cursor::expectSymbol(std::string_view symbol, ErrorNumber error) {
  if (!acceptSymbol(symbol)) fail(error);
}

std::string Cursor::expectName(ErrorNumber error) {
  if (!peek().isName()) fail(error);
  return take().text;
}

unsigned Cursor::expectCount(ErrorNumber error) {
  const Token& token = peek();
  unsigned count = 0;
  const char* end = token.text.data() + token.text.size();
  const auto [stop, failure] = std::from_chars(token.text.data(), end, count);
  if (token.kind != Token::Kind::Number || failure != std::errc{} || stop != end) fail(error);
  take();
  return count;
}

std::string Cursor::acceptAlias(bool requireAs, ErrorNumber error) {
  static constexpr std::string_view closing[] = {"SET", "VALUES", "WITH", "PIVOT"};
  if (acceptWord("AS")) return expectName(error);
  if (requireAs || isReserved(peek())) return "";
  if (std::ranges::any_of(closing, [&](std::string_view word) { return atWord(word); })) return "";
  return peek().isName() ? take().text : "";
}

void Cursor::fail(ErrorNumber error) const {
  const Token& token = peek();
  const std::string detail =
      token.kind == Token::Kind::End ? "l'istruzione finisce troppo presto" : "vicino a '" + token.text + "'";
  throw SyntaxError(error, detail, token.position);
}

}  // namespace jet::sql
