// A statement by its tokens, each with its place in the text.
#include "jet/sql/stored/statement_text.h"

#include <algorithm>

#include "runtime/letters.h"
#include "runtime/text.h"

namespace jet::sql::stored {

StatementText::StatementText(std::string_view text) : text_(text), tokens_(tokenize(text)) {
  // Tokens are placed in characters.
  std::size_t byte = 0, character = 0;
  for (const Token& token : tokens_) {
    for (; character < token.position; ++character) do
        ++byte;
      while (byte < text.size() && runtime::continuesCharacter(text[byte]));
    offsets_.push_back(byte);
  }
  whole_.end = tokens_.size() - 1;
  if (!whole_.empty() && at(whole_.end - 1).isSymbol(";")) --whole_.end;
}

const Token& StatementText::at(std::size_t index) const {
  return tokens_[std::min(index, tokens_.size() - 1)];
}

bool StatementText::isWord(std::size_t index, std::string_view upper) const {
  if (!at(index).isWord(upper)) return false;
  return index == 0 || (!at(index - 1).isSymbol(".") && !at(index - 1).isSymbol("!"));
}

std::string StatementText::text(Span span) const {
  if (span.empty()) return {};
  const std::size_t from = offsets_[span.begin], to = offsets_[std::min(span.end, offsets_.size() - 1)];
  const std::string_view written = text_.substr(from, to - from);
  return std::string(written.substr(0, written.find_last_not_of(runtime::Blanks) + 1));
}

std::string StatementText::names(Span span) const {
  std::string result;
  for (std::size_t i = span.begin; i < span.end; ++i) result += at(i).text;
  return result;
}

std::size_t StatementText::findWord(Span span, std::string_view upper) const {
  return find(span, [&](std::size_t i) { return isWord(i, upper); });
}

std::size_t StatementText::findSymbol(Span span, std::string_view symbol) const {
  return find(span, [&](std::size_t i) { return at(i).isSymbol(symbol); });
}

std::size_t StatementText::closing(std::size_t open, std::size_t end) const {
  return findSymbol({open + 1, end}, ")");
}

std::vector<Span> StatementText::list(Span span) const {
  std::vector<Span> items;
  while (!span.empty()) {
    const std::size_t comma = findSymbol(span, ",");
    items.push_back({span.begin, comma});
    span.begin = comma + 1;
  }
  return items;
}

bool StatementText::isParenthesised(Span span) const {
  return !span.empty() && at(span.begin).isSymbol("(") && closing(span.begin, span.end) + 1 == span.end;
}

}  // namespace jet::sql::stored
