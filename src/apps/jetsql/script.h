#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "apps/jetsql/lines.h"

namespace jetsql {

/// A statement or a dot command with the line where it begins; 0: it was an argument.
struct ScriptPiece {
  std::string text;
  std::size_t line = 0;
};

/// Reads a script of UTF-8 text piece by piece. A statement ends with a semicolon at the end of a line,
/// outside of quotes and brackets, and may have one more behind its PARAMETERS clause; a dot command is one
/// line; between them stand empty lines and lines that begin with "--".
class Script {
 public:
  explicit Script(Lines& lines) : lines_(lines) {}

  /// The next piece, or nothing at the end. A statement that the end cuts short is given as it stands, one
  /// that is given up not at all. Throws runtime::Error 5 for a line that is no UTF-8.
  std::optional<ScriptPiece> next();

 private:
  Lines::Reading readLine(std::string& line, bool continues);

  Lines& lines_;
  std::size_t line_ = 0;
};

}  // namespace jetsql
