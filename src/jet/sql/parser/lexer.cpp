// The characters of a statement as tokens.
#include "jet/sql/parser/token.h"
#include "jet/sql/syntax_error.h"
#include "runtime/letters.h"

namespace jet::sql {

namespace {

constexpr std::string_view IdentityWord = "@@IDENTITY";

char upper(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}
bool isDigit(char c) {
  return c >= '0' && c <= '9';
}
bool isBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}
/// A letter, an underscore, or a byte of a character outside ASCII.
bool beginsWord(char c) {
  return (upper(c) >= 'A' && upper(c) <= 'Z') || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}
bool continuesWord(char c) {
  return beginsWord(c) || isDigit(c) || c == '$';
}

bool isDigitOf(char c, bool hexadecimal) {
  return hexadecimal ? isDigit(c) || (upper(c) >= 'A' && upper(c) <= 'F') : c >= '0' && c <= '7';
}

class Lexer {
 public:
  Lexer(std::string_view statement, std::size_t position) : rest_(statement), position_(position) {}

  std::vector<Token> run() {
    const std::size_t readable = runtime::utf8Prefix(rest_);
    if (readable < rest_.size()) {
      take(readable);
      throw SyntaxError(ExpressionSyntax, "un carattere che non è UTF-8", position_);
    }
    while (true) {
      while (!rest_.empty() && isBlank(rest_.front())) take(1);
      tokens_.push_back({Token::Kind::End, "", position_});
      if (rest_.empty()) return std::move(tokens_);
      readToken(tokens_.back());
    }
  }

 private:
  std::string_view take(std::size_t bytes) {
    const std::string_view taken = rest_.substr(0, bytes);
    rest_.remove_prefix(bytes);
    for (char c : taken) position_ += !runtime::continuesCharacter(c);
    return taken;
  }

  char at(std::size_t index) const { return index < rest_.size() ? rest_[index] : '\0'; }

  void readToken(Token& token) {
    const char first = rest_.front();
    if (beginsWord(first)) return readWord(token);
    if (isDigit(first) || (first == '.' && isDigit(at(1)))) return readNumber(token);
    if (const std::size_t length = basedNumber()) {
      token.kind = Token::Kind::Number;
      token.text = take(length);
      return;
    }
    switch (first) {
      case '@':
        if (sameWord(rest_.substr(0, IdentityWord.size()), IdentityWord) &&
            !continuesWord(at(IdentityWord.size()))) {
          token.kind = Token::Kind::Word;
          token.text = take(IdentityWord.size());
          return;
        }
        return readSymbol(token);
      case '\'':
      case '"':
        return readQuoted(token, Token::Kind::Text, first, true);
      case '[':
        return readQuoted(token, Token::Kind::QuotedName, ']', false);
      case '`':
        return readQuoted(token, Token::Kind::QuotedName, '`', false);
      case '#':
        return readDate(token);
      default:
        return readSymbol(token);
    }
  }

  void readWord(Token& token) {
    std::size_t length = 1;
    while (continuesWord(at(length))) ++length;
    token.kind = Token::Kind::Word;
    token.text = take(length);
  }

  void readNumber(Token& token) {
    std::size_t length = 0;
    const auto digits = [&] {
      while (isDigit(at(length))) ++length;
    };
    digits();
    if (at(length) == '.') ++length, digits();
    if (upper(at(length)) == 'E') {
      const std::size_t sign = at(length + 1) == '+' || at(length + 1) == '-' ? 1 : 0;
      if (isDigit(at(length + 1 + sign))) length += 1 + sign, digits();
    }
    token.kind = Token::Kind::Number;
    token.text = take(length);
  }

  /// Length of "&HFF" or "&O17", with "&" behind it for a Long; 0 where none stands: "&" joins texts then.
  std::size_t basedNumber() const {
    const char base = upper(at(1));
    if (at(0) != '&' || (base != 'H' && base != 'O')) return 0;
    std::size_t length = 2;
    while (isDigitOf(at(length), base == 'H')) ++length;
    if (length == 2 || continuesWord(at(length))) return 0;
    const char behind = at(length + 1);
    const bool operand =
        continuesWord(behind) || std::string_view("'\"([`.#&").find(behind) != std::string_view::npos;
    return at(length) == '&' && !(behind != '\0' && operand) ? length + 1 : length;
  }

  void readQuoted(Token& token, Token::Kind kind, char close, bool doubled) {
    token.kind = kind;
    std::size_t length = 1;
    for (;; ++length) {
      if (length >= rest_.size() || rest_[length] == '\0') fail(token, rest_);
      if (rest_[length] != close) {
        token.text += rest_[length];
      } else if (doubled && at(length + 1) == close) {
        token.text += rest_[length++];
      } else {
        break;
      }
    }
    if (kind == Token::Kind::QuotedName && token.text.empty()) fail(token, rest_.substr(0, length + 1));
    take(length + 1);
  }

  void readDate(Token& token) {
    const std::size_t close = rest_.find('#', 1);
    if (close == std::string_view::npos) fail(token, rest_);
    token.kind = Token::Kind::Date;
    token.text = canonicalDate(rest_.substr(1, close - 1));
    if (token.text.empty()) fail(token, rest_.substr(0, close + 1));
    take(close + 1);
  }

  void readSymbol(Token& token) {
    static constexpr std::string_view symbols[] = {"<>", "<=", ">=", "=", "<",  ">", "(", ")", ",", ";",
                                                   ".",  "!",  "*",  "/", "\\", "+", "-", "^", "&"};
    for (std::string_view symbol : symbols) {
      if (!rest_.starts_with(symbol)) continue;
      token.kind = Token::Kind::Symbol;
      token.text = take(symbol.size());
      return;
    }
    fail(token, rest_.substr(0, 1));
  }

  [[noreturn]] void fail(const Token& token, std::string_view piece) const {
    throw SyntaxError(ExpressionSyntax, std::string(piece), token.position);
  }

  std::string_view rest_;
  std::size_t position_;
  std::vector<Token> tokens_;
};

}  // namespace

bool sameWord(std::string_view text, std::string_view word) {
  if (text.size() != word.size()) return false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (upper(text[i]) != word[i]) return false;
  }
  return true;
}

bool Token::isWord(std::string_view word) const {
  return kind == Kind::Word && sameWord(text, word);
}

std::vector<Token> tokenize(std::string_view statement, std::size_t position) {
  return Lexer(statement, position).run();
}

}  // namespace jet::sql
