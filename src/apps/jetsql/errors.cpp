#include "apps/jetsql/errors.h"

#include <ostream>

#include "jet/sql/syntax_error.h"

namespace jetsql {
namespace {

/// The statement's line that holds the character at `position`, with a caret under it.
std::string markedLine(const std::string& statement, std::size_t position) {
  std::string line;
  std::string mark;
  for (const char c : statement) {
    const bool startsCharacter = (static_cast<unsigned char>(c) & 0xC0) != 0x80;
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
