#include "controls/text_box.h"

#include <gtest/gtest.h>

#include "runtime/error.h"

using controls::TextBox;

namespace {

struct Replacement {
  const char* name;
  const char* before;
  int start;
  int length;
  const char* put;
  const char* after;
  int cursor;
  bool appends;
};

class SelText : public testing::TestWithParam<Replacement> {};

}  // namespace

TEST_P(SelText, TakesThePlaceOfTheSelection) {
  const Replacement& row = GetParam();
  TextBox box("txt");
  box.setText(row.before);
  box.setSelStart(row.start);
  box.setSelLength(row.length);
  std::string appended;
  int replaced = 0;
  int changes = 0;
  box.appended.connect([&](std::string_view text) { appended += text; });
  box.replaced.connect([&] { ++replaced; });
  box.change.connect([&] { ++changes; });

  box.setSelText(row.put);

  EXPECT_EQ(box.text(), row.after);
  EXPECT_EQ(box.selStart(), row.cursor);
  EXPECT_EQ(box.selLength(), 0);
  EXPECT_EQ(appended, row.appends ? row.put : "");
  const bool changed = std::string(row.before) != row.after;
  EXPECT_EQ(replaced, changed && !row.appends ? 1 : 0);
  EXPECT_EQ(changes, changed ? 1 : 0);
  // The count that is kept must be the count of the text.
  TextBox counted("txt");
  counted.setText(row.after);
  EXPECT_EQ(box.textLength(), counted.textLength());
}

INSTANTIATE_TEST_SUITE_P(
    Table, SelText,
    testing::Values(Replacement{"append", "abc", 3, 0, "def", "abcdef", 6, true},
                    Replacement{"appendLine", "abc", 3, 0, "\r\ndef", "abc\r\ndef", 8, true},
                    Replacement{"appendBehindLine", "a\r\n", 3, 0, "b", "a\r\nb", 4, true},
                    Replacement{"startBeyondTheEndIsTheEnd", "abc", 99, 0, "d", "abcd", 4, true},
                    Replacement{"intoEmpty", "", 0, 0, "x", "x", 1, true},
                    Replacement{"nothing", "abc", 3, 0, "", "abc", 3, false},
                    Replacement{"insert", "abc", 1, 0, "--", "a--bc", 3, false},
                    Replacement{"replace", "abc", 1, 1, "xyz", "axyzc", 4, false},
                    Replacement{"replaceToTheEnd", "abc", 1, 99, "x", "ax", 2, false},
                    Replacement{"delete", "abc", 0, 2, "", "c", 0, false},
                    Replacement{"accentsCountAsOne", "è più", 4, 1, "ù!", "è più!", 6, false},
                    Replacement{"appendBehindAccents", "è più", 5, 0, " €", "è più €", 7, true},
                    Replacement{"insertBetweenAccents", "òàù", 1, 1, "€€", "ò€€ù", 3, false}),
    [](const auto& row) { return row.param.name; });

TEST(TextBox, SelTextIsTheSelectedPart) {
  TextBox box("txt");
  box.setText("Città è\r\nqui");
  box.setSelStart(6);
  box.setSelLength(3);
  EXPECT_EQ(box.selText(), "è\r\n");
  EXPECT_EQ(box.textLength(), 12);
}

TEST(TextBox, ANewTextStartsWithTheSelectionAtItsBeginning) {
  TextBox box("txt");
  box.setText("abc");
  box.setSelStart(3);
  box.setText("xyz");
  box.setSelText("-");
  EXPECT_EQ(box.text(), "-xyz");
}

TEST(TextBox, TheSameTextIsNoChange) {
  TextBox box("txt");
  box.setText("abc");
  int changes = 0;
  box.change.connect([&] { ++changes; });
  box.setText("abc");
  EXPECT_EQ(changes, 0);
}

TEST(TextBox, NegativePositionsAreRefused) {
  TextBox box("txt");
  box.setText("abc");
  EXPECT_THROW(box.setSelStart(-1), runtime::Error);
  EXPECT_THROW(box.setSelLength(-1), runtime::Error);
}
