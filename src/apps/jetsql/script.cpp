// A script cut into statements and dot commands.
#include "apps/jetsql/script.h"

#include <algorithm>
#include <cctype>
#include <string_view>

#include "runtime/error.h"
#include "runtime/letters.h"
#include "runtime/text.h"

namespace jetsql {

namespace {

/// Follows quotes and brackets over the lines of one statement.
class Quotes {
 public:
  void read(std::string_view line) {
    for (const char c : line) {
      if (open_ == 0 && (c == '\'' || c == '"' || c == '[')) {
        open_ = c == '[' ? ']' : c;
      } else if (c == open_) {
        open_ = 0;
      }
    }
  }
  bool open() const { return open_ != 0; }

 private:
  char open_ = 0;  // the character that will close it
};

bool beginsWithWord(std::string_view text, std::string_view word) {
  if (text.size() <= word.size() || !std::isspace(static_cast<unsigned char>(text[word.size()])))
    return false;
  return std::equal(word.begin(), word.end(), text.begin(),
                    [](char a, char b) { return a == std::toupper(static_cast<unsigned char>(b)); });
}

}  // namespace

Lines::Reading Script::readLine(std::string& line, bool continues) {
  const auto reading = lines_.read(line, continues);
  if (reading != Lines::Reading::Line) return reading;
  if (++line_ == 1 && line.starts_with("\xEF\xBB\xBF")) line.erase(0, 3);
  if (runtime::utf8Prefix(line) != line.size()) {
    throw runtime::Error(5, "jetsql", "La riga " + std::to_string(line_) + " non è un testo UTF-8");
  }
  return reading;
}

std::optional<ScriptPiece> Script::next() {
  ScriptPiece piece;
  Quotes quotes;
  bool declares = false;  // its PARAMETERS clause is not yet closed
  std::string line;
  while (true) {
    const auto reading = readLine(line, piece.line != 0);
    if (reading == Lines::Reading::End) break;
    if (reading == Lines::Reading::Abandoned) {
      piece = {};
      quotes = {};
      continue;
    }
    const auto content = runtime::trimmed(line, runtime::Blanks);
    if (piece.line == 0) {
      if (content.empty() || content.starts_with("--")) continue;
      piece.line = line_;
      if (content.front() == '.') {
        piece.text = content;
        return piece;
      }
      declares = beginsWithWord(content, "PARAMETERS");
    } else {
      piece.text += '\n';
    }
    piece.text += line;
    quotes.read(line);
    if (quotes.open() || !content.ends_with(';')) {
      // A clause that closes within the line leaves the next closing semicolon to the statement.
      if (declares && content.find(';') != std::string_view::npos) declares = false;
      continue;
    }
    const bool clauseOnly = declares && std::count(content.begin(), content.end(), ';') == 1;
    if (!clauseOnly) return piece;
    declares = false;
  }
  if (piece.line == 0) return std::nullopt;
  return piece;
}

}  // namespace jetsql
