#include "platform/command_line.h"

#include <gtest/gtest.h>

#include "support/case_file.h"

namespace platform {
namespace {

TEST(CommandLine, IsTakenApartAsTheOtherSystemDoes) {
  support::CaseFile(CASES "/command_lines.cases").expectResults([](const support::Case& each) {
    std::string words;
    for (const auto& word : splitCommandLine(support::fieldsOf(each.statement)[0])) words += "[" + word + "]";
    return words;
  });
}

TEST(CommandLine, IsPutTogetherToTheSameWords) {
  const std::vector<std::string> words = {"c:\\a b\\p",       "",     "x",      "a b\\", "\\\"", "\"", "a\\b",
                                          "\\\\srv\\d e\\\\", "à\tè", "a\\\" b"};
  EXPECT_EQ(splitCommandLine(joinCommandLine(words)), words);
}

}  // namespace
}  // namespace platform
