#include "runtime/text.h"

#include <gtest/gtest.h>

#include "runtime/like.h"
#include "runtime/numbers.h"
#include "runtime/random.h"
#include "shown.h"

namespace runtime {
namespace {

struct Case {
  std::string (*work)();
  const char* expected;
};

std::string number(std::int64_t value) {
  return std::to_string(value);
}

template <std::size_t Count>
void expectAll(const Case (&cases)[Count]) {
  for (std::size_t i = 0; i < Count; ++i) EXPECT_EQ(shown(cases[i].work), cases[i].expected) << "case " << i;
}

TEST(Text, PositionsCountCharacters) {
  const Case cases[] = {
      {[] { return number(static_cast<std::int64_t>(length("perché €😀"))); }, "9"},
      {[] { return std::string(left("perché", 6)); }, "perché"},
      {[] { return std::string(left("perché", 99)); }, "perché"},
      {[] { return std::string(left("perché", -1)); }, "error 5"},
      {[] { return std::string(right("perché €", 3)); }, "é €"},
      {[] { return std::string(right("perché", 0)); }, ""},
      {[] { return std::string(right("a", -1)); }, "error 5"},
      {[] { return std::string(mid("è più su", 3, 3)); }, "più"},
      {[] { return std::string(mid("abc", 4)); }, ""},
      {[] { return std::string(mid("abc", 0)); }, "error 5"},
      {[] { return std::string(mid("abc", 1, -1)); }, "error 5"},
      {[] { return number(inStr(1, "èa", "A")); }, "0"},
      {[] { return number(inStr(1, "èaÀ", "à", Compare::Text)); }, "3"},
      {[] { return number(inStr(4, "abcABC", "b", Compare::Text)); }, "5"},
      {[] { return number(inStr(2, "abc", "")); }, "2"},
      {[] { return number(inStr(4, "abc", "")); }, "0"},
      {[] { return number(inStr(1, "", "")); }, "0"},
      {[] { return number(inStr(0, "abc", "a")); }, "error 5"},
      {[] { return number(inStrRev("èbcèbc", "è")); }, "4"},
      {[] { return number(inStrRev("abcabc", "bc", 5)); }, "2"},
      {[] { return number(inStrRev("abc", "A", -1, Compare::Text)); }, "1"},
      {[] { return number(inStrRev("abc", "a", 9)); }, "0"},
      {[] { return number(inStrRev("abc", "a", 0)); }, "error 5"},
      {[] { return replace("l'età dell'oro", "'", "''"); }, "l''età dell''oro"},
      {[] { return replace("aaa", "A", "b", 2, 1, Compare::Text); }, "ba"},
      {[] { return replace("aaa", "a", "aa"); }, "aaaaaa"},
      {[] { return replace("aaa", "", "x"); }, "aaa"},
      {[] { return replace("aaa", "a", "x", 1, 0); }, "aaa"},
      {[] { return replace("aaa", "a", "x", 1, -2); }, "error 5"},
      {[] { return strReverse("perché"); }, "éhcrep"},
      {[] { return repeated(3, "èb"); }, "èèè"},
      {[] { return repeated(1, ""); }, "error 5"},
      {[] { return space(3'000'000'000); }, "error 5"},
      {[] { return "[" + std::string(trimmed("  a\tb\t ")) + "]"; }, "[a\tb\t]"},
      {[] { return "[" + std::string(trimmed("   ")) + std::string(leftTrimmed(" a ")) + "]"; }, "[a ]"},
      {[] { return number(ascW("€")) + chrW(8364) + number(ascW("")); }, "error 5"},
      {[] { return number(ascW("€")) + chrW(8364) + chrW(-32768); }, "8364€耀"},
      {[] { return chrW(65536); }, "error 5"},
      {[] { return strConv("l'ORDINE  degli àVVOCATI", 3); }, "L'ordine  Degli Àvvocati"},
      {[] { return strConv("Perché", 1) + strConv("ÀÈ", 2); }, "PERCHÉàè"},
      {[] { return strConv("x", 4); }, "error 5"},
      {[] { return number(strComp("abc", "ABC")) + number(strComp("àb", "ÀB", Compare::Text)); }, "10"},
      {[] { return number(strComp("a", "ab")) + number(strComp("", "")); }, "-10"},
  };
  expectAll(cases);
}

TEST(Numbers, RoundShowAndPartition) {
  const Case cases[] = {
      {[] { return numberText(roundTo(2.5, 0), 15, ',') + numberText(roundTo(3.5, 0), 15, ','); }, "24"},
      {[] { return numberText(roundTo(-0.125, 2), 15, ','); }, "-0,12"},
      {[] { return numberText(roundTo(1e300, 22), 15, ','); }, "1E+300"},
      {[] { return numberText(roundTo(1.0, -1), 15, ','); }, "error 5"},
      {[] { return number(roundTo(std::int64_t{10050}, 4, 2)); }, "10000"},
      {[] { return number(roundTo(std::int64_t{-10150}, 4, 2)); }, "-10200"},
      {[] { return number(roundTo(std::int64_t{10051}, 4, 2)); }, "10100"},
      {[] { return number(roundTo(std::int64_t{123}, 4, 9)); }, "123"},
      {[] { return number(roundTo(INT64_MAX, 4, 0)); }, "error 6"},
      {[] { return hex(std::int32_t{255}) + hex(std::int16_t{-1}) + hex(std::int32_t{-1}); },
       "FFFFFFFFFFFFFF"},
      {[] { return oct(std::int32_t{8}) + " " + oct(std::int16_t{-1}); }, "10 177777"},
      {[] { return partition(15, 0, 99, 10) + partition(-1, 0, 99, 10); }, " 10: 19   : -1"},
      {[] { return partition(100, 0, 99, 10) + partition(98, 0, 98, 10); }, "100:   90:98"},
      {[] { return partition(1, 5, 5, 1); }, "error 5"},
  };
  expectAll(cases);
}

TEST(Random, GivesTheLanguagesRow) {
  Random random;
  EXPECT_FLOAT_EQ(random.next(), 0.7055475F);
  EXPECT_FLOAT_EQ(random.next(), 0.533424F);
  EXPECT_FLOAT_EQ(random.next(0), 0.533424F);
  EXPECT_FLOAT_EQ(random.next(-1), 0.224007F);
  EXPECT_NE(random.next(), random.next());
}

int byLetters(std::string_view a, std::string_view b) {
  return strComp(a, b, Compare::Text);
}

TEST(Like, MatchesByTheOrderThatItIsGiven) {
  const struct {
    const char* text;
    const char* pattern;
    bool expected;
    // clang-format off
  } cases[] = {
      {"", "", true}, {"", "*", true}, {"a", "", false}, {"perché", "PERCH?", true}, {"perché", "perch??", false},
      {"MOD01.doc", "mod??.doc", true}, {"a1", "a#", true}, {"aà", "a#", false}, {"è", "[a-z]", false},
      {"m", "[!a-c,x]", true}, {",", "[!a-c,x]", false}, {"a]", "a]", true}, {"[", "[[]", true}, {"*", "[*]", true},
      {"x", "[*]", false}, {"?", "[?]", true}, {"#", "[#]", true}, {"-", "[a-]", true}, {"b", "[a-]", false},
      {"!", "[a!]", true}, {"!", "[!]", true}, {"x", "[!]", false}, {"ab", "a[]b", true}, {"ab", "*[]", true}, {"aXbXc", "a*x*c", true},
      {"aXbX", "a*x*c", false}, {"àè", "?*?", true}, {"è", "?*?", false}, {"aaab", "*aab", true},
  };
  // clang-format on
  for (const auto& test : cases)
    EXPECT_EQ(isLike(test.text, test.pattern, byLetters), test.expected) << test.text << " " << test.pattern;
  for (const char* open : {"[", "[a", "[!"})
    EXPECT_EQ(shown([&] { return isLike("x", open, byLetters) ? "yes" : "no"; }), "error 93") << open;
}

}  // namespace
}  // namespace runtime
