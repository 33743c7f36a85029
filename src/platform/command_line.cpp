// Words with their quotes, split and joined.
#include "platform/command_line.h"

#include <algorithm>

#include "runtime/join.h"

namespace platform {

namespace {

bool isBlank(char letter) {
  return letter == ' ' || letter == '\t';
}

/// Takes one word after the other from the front of a line.
class Splitter {
 public:
  explicit Splitter(std::string_view line) : rest_(line) {}

  /// False at the line's end.
  bool next() {
    rest_.remove_prefix(std::min(rest_.find_first_not_of(" \t"), rest_.size()));
    return !rest_.empty();
  }

  std::string program() {
    std::string word;
    for (bool quoted = false; !rest_.empty() && (quoted || !isBlank(rest_.front())); rest_.remove_prefix(1)) {
      if (rest_.front() == '"') {
        quoted = !quoted;
      } else {
        word += rest_.front();
      }
    }
    return word;
  }

  std::string argument() {
    std::string word;
    bool quoted = false;
    while (!rest_.empty() && (quoted || !isBlank(rest_.front()))) {
      const std::size_t backslashes = std::min(rest_.find_first_not_of('\\'), rest_.size());
      rest_.remove_prefix(backslashes);
      const bool quote = rest_.starts_with('"');
      word.append(quote ? backslashes / 2 : backslashes, '\\');
      if (!quote) {
        takeLetter(word, quoted);
      } else if (backslashes % 2 == 1) {
        takeLetter(word, true);
      } else if (quoted && rest_.starts_with("\"\"")) {
        rest_.remove_prefix(1);
        takeLetter(word, true);
      } else {
        quoted = !quoted;
        rest_.remove_prefix(1);
      }
    }
    return word;
  }

 private:
  void takeLetter(std::string& word, bool quoted) {
    if (rest_.empty() || (!quoted && isBlank(rest_.front()))) return;
    word += rest_.front();
    rest_.remove_prefix(1);
  }

  std::string_view rest_;
};

std::string commandLineWord(const std::string& word) {
  if (!word.empty() && word.find_first_of(" \t\"") == std::string::npos) return word;
  std::string result = "\"";
  std::size_t backslashes = 0;
  for (const char letter : word) {
    if (letter == '"') result.append(backslashes + 1, '\\');
    backslashes = letter == '\\' ? backslashes + 1 : 0;
    result += letter;
  }
  return result.append(backslashes, '\\') + '"';
}

}  // namespace

std::vector<std::string> splitCommandLine(std::string_view line) {
  std::vector<std::string> words;
  Splitter splitter(line);
  while (splitter.next()) words.push_back(words.empty() ? splitter.program() : splitter.argument());
  return words;
}

std::string joinCommandLine(const std::vector<std::string>& words) {
  return runtime::join(words, " ", commandLineWord);
}

}  // namespace platform
