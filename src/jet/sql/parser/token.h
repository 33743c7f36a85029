#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace jet::sql {

struct Token {
  enum class Kind {
    End,
    Word,        // a bare name, a reserved word or @@IDENTITY, as written
    QuotedName,  // its characters, without brackets or back quotes
    Number,      // as written, "&HFF" too
    Text,        // its characters
    Date,        // "yyyy-mm-dd hh:mm:ss"
    Symbol,      // "(", "<>", ...
  };
  Kind kind = Kind::End;
  std::string text;
  std::size_t position = 0;  // in characters

  bool isSymbol(std::string_view symbol) const { return kind == Kind::Symbol && text == symbol; }
  /// True for a name in any writing, a reserved word among them.
  bool isName() const { return kind == Kind::Word || kind == Kind::QuotedName; }
  /// True for the word `upper`, written in capitals, whatever the token's case.
  bool isWord(std::string_view upper) const;
};

/// True if `text` is the word `upper`, written in capitals, without regard to case; ASCII.
bool sameWord(std::string_view text, std::string_view upper);

/// The statement's tokens, closed by one End. Error 3075 for a text, name or date that is not closed or
/// empty, for a character that begins nothing, and for bytes that are no UTF-8.
/// `position`: of the first character.
std::vector<Token> tokenize(std::string_view statement, std::size_t position = 0);

/// The inside of a date literal (month before day, or year first; "h:n[:s] [AM|PM]") as "yyyy-mm-dd
/// hh:mm:ss"; empty if it is none. A month above 12 is the day.
std::string canonicalDate(std::string_view inside);

/// Days since 1899-12-30 of a canonical date.
double dateValue(const std::string& canonical);

}  // namespace jet::sql
