#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace support {

/// The fields of a statement, parted by " | ". {HH} is a byte, {} nothing: an empty field, or the place of a
/// blank at an end.
inline std::vector<std::string> fieldsOf(const std::string& statement) {
  std::vector<std::string> fields(1);
  for (std::size_t at = 0; at < statement.size(); ++at) {
    const std::size_t close = statement.find('}', at);
    if (statement.compare(at, 3, " | ") == 0) {
      fields.emplace_back();
      at += 2;
    } else if (statement[at] == '{' && (close == at + 1 || close == at + 3)) {
      if (close == at + 3)
        fields.back() += static_cast<char>(std::stoi(statement.substr(at + 1, 2), nullptr, 16));
      at = close;
    } else {
      fields.back() += statement[at];
    }
  }
  return fields;
}

/// A case of a case file, and the line where it begins.
struct Case {
  int line = 0;
  std::string statement;
  std::vector<std::pair<std::string, std::string>> answers;  // "? NAME = VALUE"
  std::string look;                                          // "@ LOOK"
  std::string result;                                        // "=> RESULT"

  /// The values under a name, and the first of them; {HH} in them is a byte.
  std::vector<std::string> all(std::string_view name) const {
    std::vector<std::string> values;
    for (const auto& [key, value] : answers)
      if (key == name) values.push_back(fieldsOf(value)[0]);
    return values;
  }
  std::string one(std::string_view name, const char* otherwise = "") const {
    const std::vector<std::string> values = all(name);
    return values.empty() ? otherwise : values.front();
  }
};

/// A text as it stands in a case file: each control character as {HH}.
inline std::string inBraces(std::string_view text) {
  std::string shown;
  for (const unsigned char letter : text) {
    if (letter >= ' ') {
      shown += static_cast<char>(letter);
    } else {
      shown += {'{', "0123456789ABCDEF"[letter / 16], "0123456789ABCDEF"[letter % 16], '}'};
    }
  }
  return shown;
}

/// Reads a text of cases. A case is a statement, then lines "? NAME = VALUE" and "@ LOOK" where it needs
/// them, and its result: "=> RESULT", on a line of its own or behind the last of these. Lines that go on are
/// indented; they are joined by a blank, those of a result by a line feed. A result between double quotes is
/// what stands between them. Between cases stand empty lines and comments: '#' and a blank.
class CaseFile {
 public:
  /// Throws std::runtime_error with the place: the file is missing, has no case, or its form is wrong.
  explicit CaseFile(std::string path) : path_(std::move(path)) {
    std::ifstream file(path_);
    for (std::string line; std::getline(file, line);) {
      ++line_;
      read(line);
    }
    if (open_ && open_ != &cases_.back().result) fail("the last case has no result");
    if (cases_.empty()) fail("no case");
  }

  /// Fails at the place of each case for which `found(case)` is not its result.
  template <typename Found>
  void expectResults(Found found) const {
    for (const Case& each : cases_) {
      const testing::ScopedTrace place(path_.c_str(), each.line, each.statement);
      std::string result;
      try {
        result = found(each);
      } catch (const std::exception& error) {
        result = std::string("exception ") + error.what();
      }
      if (result == each.result) continue;
      ADD_FAILURE_AT(path_.c_str(), each.line) << "gives    " << result << "\nand not  " << each.result;
    }
  }

 private:
  [[noreturn]] void fail(const char* what) const {
    throw std::runtime_error(path_ + ":" + std::to_string(line_) + ": " + what);
  }

  void read(const std::string& line) {
    const bool ended = !open_ || open_ == &cases_.back().result;
    if (line.empty() || line == "#" || line.starts_with("# ")) {
      if (!ended) fail("the case before has no result");
      open_ = nullptr;
    } else if (line.starts_with("  ")) {
      if (!open_) fail("this line goes on with nothing");
      if (ended) {
        *open_ += "\n" + line.substr(2);
      } else {
        split(line.substr(2), *open_ + " ");
      }
    } else if (ended && !line.starts_with("=>") && !line.starts_with("? ") && !line.starts_with("@ ")) {
      cases_.emplace_back().line = line_;
      open_ = &cases_.back().statement;
      split(line, "");
    } else if (ended) {
      fail("this line has no statement before it");
    } else if (line.starts_with("? ")) {
      answer(line.substr(2));
    } else if (line.starts_with("@ ")) {
      open_ = &cases_.back().look;
      split(line.substr(2), "");
    } else if (line.starts_with("=>")) {
      result(line.substr(2));
    } else {
      fail("the case before has no result");
    }
  }

  /// Adds the rest of a line to what is open, up to a result.
  void split(const std::string& text, const std::string& before) {
    const auto mark = (text + " ").rfind(" => ");
    *open_ = before + text.substr(0, mark);
    if (mark != std::string::npos) result(text.substr(mark + 3));
  }

  void answer(const std::string& text) {
    const auto equals = text.find(" = ");
    if (equals == std::string::npos) fail("a parameter without a value");
    open_ = &cases_.back().answers.emplace_back(text.substr(0, equals), text.substr(equals + 3)).second;
  }

  void result(std::string text) {
    if (text.starts_with(' ')) text.erase(0, 1);
    if (text.size() > 1 && text.front() == '"' && text.back() == '"') text = text.substr(1, text.size() - 2);
    open_ = &cases_.back().result;
    *open_ = text;
  }

  const std::string path_;
  std::vector<Case> cases_;
  std::string* open_ = nullptr;  // the part of the last case that an indented line goes on with
  int line_ = 0;
};

}  // namespace support
