#include "jet/file/text/text_key.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>

#include "corpus.h"
#include "jet/file/definition.h"
#include "jet/file/text/general_order.h"
#include "jet/file/text/text.h"
#include "writing.h"

namespace jet::file {
namespace {

using writing::toHex;

std::vector<std::byte> keyOf(std::string_view utf8, std::size_t limit = 255) {
  std::vector<std::byte> key;
  appendTextKey(toUtf16(utf8), limit, key);
  return key;
}

/// A weight as the published table writes it, behind the code.
std::string written(const Weight& weight) {
  constexpr const char* Classes[] = {"", "P", "PD", "D", "N", "PK"};
  std::string other;
  if (weight.kind == Weight::Kind::Noted) other = toHex(std::array{std::byte{weight.other}});
  if (weight.kind == Weight::Kind::Kana) other = std::to_string(weight.other);
  return std::string(Classes[static_cast<int>(weight.kind)]) + "\t" +
         toHex(std::span(weight.primary).first(weight.primaryLength)) + "\t" +
         toHex(std::span(weight.diacritic).first(weight.diacriticLength)) + "\t" + other;
}

TEST(TextKey, TableGivesEveryCodeUnitItsPublishedWeight) {
  REQUIRE_CORPUS();
  std::ifstream in(std::string(std::getenv("AGGNORVO_JET_DATA")) + "/jet/general-sort.tsv");
  std::map<unsigned, std::string> published;
  for (std::string line; std::getline(in, line);)
    if (line[0] != '#')
      published[static_cast<unsigned>(std::stoul(line.substr(0, 4), nullptr, 16))] = line.substr(5);
  ASSERT_GT(published.size(), 40000u);
  for (unsigned unit = 0; unit < 0x10000; ++unit) {
    if (unit >= 0xD800 && unit < 0xE000) continue;
    const auto found = published.find(unit);
    ASSERT_EQ(written(generalOrder()[unit]), found == published.end() ? "\t\t\t" : found->second)
        << std::hex << unit;
  }
}

TEST(TextKey, FollowsTheOrderOfTheFile) {
  struct Case {
    const char *text, *key;
  };
  const Case cases[] = {
      {"a", "4A0100"},
      {"A", "4A0100"},
      {"", "0100"},
      {"a  ", "4A0100"},
      {"a-b", "4A4C01010101800B068200"},
      {"é", "51010E00"},
      {"aé", "4A5101020E00"},
      {"Tables", "6D4A4C5E516B0100"},
      {"ß", "6B6B0100"},
      {"ßé", "6B6B5101020E00"},             // a letter pair counts as one position
      {"e\u0301", "51010E00"},              // a combining accent adds to the one before
      {"é'b", "514C010E010101800B068000"},  // noted behind one position
      {"\U0001F600", "B03FB6FC013F3F00"},
  };
  for (const Case& c : cases) EXPECT_EQ(toHex(keyOf(c.text)), c.key) << c.text;
}

TEST(TextKey, CutsBeforeItStripsBlanks) {
  const std::string text = std::string(254, 'a') + " " + "b";
  EXPECT_EQ(keyOf(text), keyOf(std::string(254, 'a')));
  EXPECT_NE(keyOf(text, text.size()), keyOf(std::string(254, 'a'), 1000));
}

TEST(TextKey, ComparingTextsIsComparingTheirKeys) {
  std::vector<std::string> texts = {
      "",       " ",    "a",    "A",    "a ",    "a b",        "a-b",        "ab",     "co-op",
      "coop",   "è",    "e",    "È",    "e'",    "eà",         "ea",         "eb",     "ß",
      "ss",     "ssa",  "æ",    "ae",   "af",    "Ab",         "10",         "9",      "\t",
      "_",      "€",    "日本", "かな", "カナ",  "\U0001F600", "\U00010000", "perché", "perche",
      "PERCHE", "però", "\xFF", "\xC3", "l'oro", "loro",       "l’oro"};
  texts.push_back(std::string(300, 'x') + "1");
  texts.push_back(std::string(300, 'x') + "2");
  const auto sign = [](auto order) { return order < 0 ? -1 : order > 0 ? 1 : 0; };
  for (const std::string& a : texts)
    for (const std::string& b : texts)
      EXPECT_EQ(compareText(a, b), sign(keyOf(a, 1000) <=> keyOf(b, 1000))) << a << " / " << b;
}

TEST(TextKey, NamesAreTheSameWhereTheirKeysAre) {
  std::vector<std::string> names = {"",    "Set", "SET", "SetBis", "nr_1", "NR_1",
                                    "nr1", "è",   "È",   "a b",    "A B",  "a"};
  for (char c = ' '; c < '\x7F'; ++c) names.emplace_back(1, c);
  for (const std::string& a : names)
    for (const std::string& b : names) EXPECT_EQ(sameName(a, b), compareText(a, b) == 0) << a << " / " << b;
}

}  // namespace
}  // namespace jet::file
