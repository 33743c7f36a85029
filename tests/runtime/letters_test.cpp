#include "runtime/letters.h"

#include <gtest/gtest.h>

#include "runtime/join.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

namespace runtime::test {
namespace {

/// The characters as they are taken, in hexadecimal.
std::string taken(std::string_view utf8) {
  std::string list;
  while (!utf8.empty()) list += hex(static_cast<std::int32_t>(takeValidCharacter(utf8))) + " ";
  return list;
}

TEST(Utf8, IsReadWithAMarkForEachByteThatBelongsToNoCharacter) {
  struct Case {
    const char *name, *bytes, *characters;
    std::size_t valid;
  };
  const Case cases[] = {
      {"of one to four bytes", "aè€\xF0\x9F\x98\x80", "61 E8 20AC 1F600 ", 10},
      {"the mark itself", "\xEF\xBF\xBDx", "FFFD 78 ", 4},
      {"a surrogate alone", "\xED\xA0\x80", "D800 ", 3},
      {"no beginning", "a\x80", "61 FFFD ", 1},
      {"cut short", "\xE2\x82", "FFFD FFFD ", 0},
      {"broken off", "\xE2\x82x", "FFFD FFFD 78 ", 0},
      {"written too long", "\xC0\x80\xE0\x80\x80", "FFFD FFFD FFFD FFFD FFFD ", 0},
      {"beyond the last", "\xF4\x90\x80\x80", "FFFD FFFD FFFD FFFD ", 0},
  };
  for (const Case& test : cases) {
    EXPECT_EQ(taken(test.bytes), test.characters) << test.name;
    EXPECT_EQ(utf8Prefix(test.bytes), test.valid) << test.name;
  }
}

TEST(Texts, AreJoinedQuotedAndTrimmed) {
  EXPECT_EQ(join(std::vector<std::string>{"", "b", ""}, ", "), ", b, ");
  EXPECT_EQ(join(std::vector<int>{1, 2}, "+", [](int i) { return std::to_string(i); }), "1+2");
  EXPECT_EQ(quoted("l'Aquila"), "'l''Aquila'");
  EXPECT_EQ(quoted("\"'", '"'), "\"\"\"'\"");
  EXPECT_EQ(trimmed("\t a b\r\n ", Blanks), "a b");
  EXPECT_EQ(trimmed(" \n", Blanks), "");
}

}  // namespace
}  // namespace runtime::test
