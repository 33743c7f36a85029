// An error as a line of text, with the place in the statement.
#include "apps/jetsql/errors.h"

#include <algorithm>
#include <ostream>
#include <string_view>

#include "jet/sql/syntax_error.h"
#include "runtime/letters.h"

namespace jetsql {
namespace {

/// Of a long line what stands around the character at `position`, in characters from 0.
std::string nearPlace(std::string_view statement, std::size_t& position) {
  constexpr std::size_t before = 60, behind = 60;
  std::string piece;
  std::size_t number = 0;
  for (const char c : statement) {
    number += !runtime::continuesCharacter(c);
    if (number + before > position && number <= position + behind + 1) piece += c;
  }
  position = std::min(position, before);
  return piece;
}

/// The statement's line that holds the character at `position`, with a caret under it.
std::string markedLine(std::string_view text, std::size_t position) {
  const std::string statement = nearPlace(text, position);
  std::string line;
  std::string mark;
  for (const char c : statement) {
    const bool startsCharacter = !runtime::continuesCharacter(c);
    const bool reached = position == 0;
    if (c == '\n') {
      if (reached) break;
      line.clear();
      mark.clear();
    } else {
      line += c;
      if (startsCharacter && !reached) mark += c == '\t' ? '\t' : ' ';
    }
    if (startsCharacter && !reached) --position;
  }
  return "  " + line + "\n  " + mark + "^\n";
}

}  // namespace

void tellError(std::ostream& stream, const runtime::Error& error, const ScriptPiece& piece) {
  stream << "jetsql: ";
  if (piece.line != 0) stream << "riga " << piece.line << ": ";
  stream << "errore " << error.number() << ": " << error.description() << "\n";
  const auto* placed = dynamic_cast<const jet::sql::SyntaxError*>(&error);
  if (placed && !piece.text.empty() && piece.text.front() != '.')
    stream << markedLine(piece.text, placed->position());
}

}  // namespace jetsql
