#pragma once

#include <sys/wait.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include "temp_folder.h"

namespace support {

struct CommandResult {
  int status = 0;  // exit status, or minus the number of the signal that ended it
  std::string output, errors;
};

/// `argument` as one word of the shell.
inline std::string shellWord(const std::string& argument) {
  std::string word = "'";
  for (const char c : argument) word += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return word + "'";
}

/// All bytes of a file; none where it can't be read.
inline std::string contentOf(const std::string& systemPath) {
  std::ostringstream text;
  text << std::ifstream(systemPath, std::ios::binary).rdbuf();
  return text.str();
}

/// Runs a line of the shell with `input` as standard input.
inline CommandResult runCommand(const std::string& line, const std::string& input = {}) {
  const TempFolder folder;
  const auto file = [&](const char* name) { return folder.systemPath(name); };
  std::ofstream(file("input"), std::ios::binary) << input;
  const int status = std::system(("( " + line + " ) <" + shellWord(file("input")) + " >" +
                                  shellWord(file("output")) + " 2>" + shellWord(file("errors")))
                                     .c_str());
  return {WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status), contentOf(file("output")),
          contentOf(file("errors"))};
}

}  // namespace support
