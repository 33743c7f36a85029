#include "jet/file/text/text.h"

#include <gtest/gtest.h>

#include "runtime/error.h"
#include "runtime/letters.h"

namespace jet::file {
namespace {

using namespace std::string_literals;

std::span<const std::byte> bytesOf(const std::string& text) {
  return std::as_bytes(std::span(text));
}

TEST(Text, DecodesEveryStoredForm) {
  const struct {
    const char* what;
    const Format& format;
    std::string stored;
    std::string utf8;
  } cases[] = {
      {"empty", Jet4, "", ""},
      {"plain", Jet4, "a\0\xE8\0\xAC\x20"s, "a\u00E8\u20AC"},
      {"surrogate pair", Jet4, "\x3D\xD8\x00\xDE"s, "\U0001F600"},
      {"lone surrogates", Jet4, "\x3D\xD8\x61\x00\x00\xDE\x3D\xD8"s,
       "\xED\xA0\xBD"
       "a"
       "\xED\xB8\x80"
       "\xED\xA0\xBD"},
      {"compressed", Jet4, "\xFF\xFE\x61\xE8\xFF", "a\u00E8\u00FF"},
      {"compressed, nothing in it", Jet4, "\xFF\xFE", ""},
      {"compressed, two modes", Jet4, "\xFF\xFE\x61\0\xAC\x20\xE8\x03\0\x62"s, "a\u20AC\u03E8b"},
      {"compressed, wide to the end", Jet4, "\xFF\xFE\0\xAC\x20"s, "\u20AC"},
      {"compressed, surrogates", Jet4, "\xFF\xFE\0\x3D\xD8\x01\xDE\0\x61"s, "\U0001F601a"},
      {"code page", Jet3, "a\xE8\x80\x81", "a\u00E8\u20AC\u0081"},
      {"code page, no compression", Jet3, "\xFF\xFE", "\u00FF\u00FE"},
  };
  for (const auto& c : cases) {
    std::string out = "> ";
    appendText(c.format, bytesOf(c.stored), out);
    EXPECT_EQ(out, "> " + c.utf8) << c.what;
  }
}

TEST(Text, RefusesHalfCharactersAndCodePagesWithoutATable) {
  std::string out;
  EXPECT_THROW(appendText(Jet4, bytesOf("a\0b"s), out), runtime::Error);
  EXPECT_THROW(appendText(Jet4, bytesOf("\xFF\xFE\0\xAC"s), out), runtime::Error);
  EXPECT_THROW(appendText(Jet3, bytesOf("\xE8"), out, 1251), runtime::Error);
  out.clear();
  appendText(Jet3, bytesOf("ASCII"), out, 1251);
  EXPECT_EQ(out, "ASCII");
}

TEST(Text, EncodesAsTheEngineDoes) {
  const struct {
    const char* what;
    std::string utf8;
    bool compress;
    std::string stored;
  } cases[] = {
      {"compressed", "a\u00E8b", true, "\xFF\xFE\x61\xE8\x62"},
      {"too short to gain", "ab", true, "a\0b\0"s},
      {"not asked for", "abc", false, "a\0b\0c\0"s},
      {"outside the range", "ab\u20AC", true, "a\0b\0\xAC\x20"s},
      {"a NUL in it", "ab\0"s, true, "a\0b\0\0\0"s},
      {"pair", "\U0001F600", true, "\x3D\xD8\x00\xDE"s},
      {"begins with the mark", "\uFEFFa", false, "\xFF\xFE\0\xFF\xFE\x61\0"s},
      {"lone surrogate, as it was read", "\xED\xA0\x80", false, "\x00\xD8"s},
      {"no UTF-8", "a\xC3(\xC0\x80", false, "a\0\xFD\xFF(\0\xFD\xFF\xFD\xFF"s},
  };
  for (const auto& c : cases) {
    std::vector<std::byte> out;
    encodeText(c.utf8, c.compress, out);
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(out.data()), out.size()), c.stored) << c.what;
  }
  std::vector<std::byte> out;
  EXPECT_THROW(encodeText("\uFEFF\u0100", true, out), runtime::Error);
  EXPECT_EQ(utf16Length("a\u00E8\u20AC\U0001F600"), 5u);
}

TEST(Text, EveryCharacterSurvivesTheWayThroughTheFile) {
  for (char32_t character = 1; character <= 0x10FFFF;
       character = character < 0x3000 ? character + 1 : character + 977) {
    if ((character >= 0xD800 && character < 0xE000) || character == 0xFEFF) continue;
    std::string utf8;
    runtime::appendUtf8(character, utf8);
    utf8 += "xyz";
    for (const bool compress : {false, true}) {
      std::vector<std::byte> stored;
      encodeText(utf8, compress, stored);
      std::string back;
      appendText(Jet4, stored, back);
      ASSERT_EQ(back, utf8) << static_cast<unsigned>(character);
    }
  }
}

}  // namespace
}  // namespace jet::file
