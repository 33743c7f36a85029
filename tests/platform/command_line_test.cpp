#include "platform/command_line.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

using Words = std::vector<std::string>;

TEST(CommandLine, IsTakenApartAsTheOtherSystemDoes) {
  const struct {
    const char* line;
    Words words;
  } cases[] = {
      {"", {}},
      {" \t ", {}},
      {"RegSvr32.exe \\win\\a.ocx /u /s", {"RegSvr32.exe", "\\win\\a.ocx", "/u", "/s"}},
      {"\"c:\\un programma\\x.exe\"  c:\\due parole", {"c:\\un programma\\x.exe", "c:\\due", "parole"}},
      {"c:\\x\\\"y z\"\\p.exe a", {"c:\\x\\y z\\p.exe", "a"}},
      {"p \"a b\" c\"d e\"f", {"p", "a b", "cd ef"}},
      {"p \"\" x", {"p", "", "x"}},
      {"p \\\"a \\\\\"b c\" d\\e \"f\\\\\" g", {"p", "\"a", "\\b c", "d\\e", "f\\", "g"}},
      {"p \"a\"\"b c\" d", {"p", "a\"b c", "d"}},
      {"p \"fino alla fine", {"p", "fino alla fine"}},
      {"p a\\\\", {"p", "a\\\\"}},
      {"p 'a b' $HOME *; x|y", {"p", "'a", "b'", "$HOME", "*;", "x|y"}},
  };
  for (const auto& test : cases) EXPECT_EQ(splitCommandLine(test.line), test.words) << test.line;
}

TEST(CommandLine, IsPutTogetherToTheSameWords) {
  const Words words = {"c:\\a b\\p",       "",     "x",      "a b\\", "\\\"", "\"", "a\\b",
                       "\\\\srv\\d e\\\\", "à\tè", "a\\\" b"};
  EXPECT_EQ(splitCommandLine(joinCommandLine(words)), words);
}

}  // namespace
}  // namespace platform
